#include "tools/LogCsv.h"
#include "tools/LogReplay.h"
#include "tools/OpenBoardLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ondrilo {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;

using Verdict = ReplayedMetric::Verdict;

LogFile Log(TextView events) {
    const auto log = ReadLog(Text("TIME Time when the event occurred\n$$$ End Header\n\n").append(events));
    EXPECT_TRUE(log);
    return log.value_or(LogFile{});
}

/// The verdicts on these metrics of a log that ends with them.
auto Verdicts(TextView events, TextView end) {
    std::vector<Verdict> verdicts;
    for (const auto& metric : Replay(Log(Text(events).append("$$$ End Body\n\n").append(end))))
        verdicts.push_back(metric.verdict);
    return verdicts;
}

TEST(Log, QuotesThatAPersonWroteStayInTheirTexts) {
    const auto log =
        Log("09:08:07.006 \"\" SYSTEM_INFO START_LOGGING - - - \"-\"\r\n"
            "09:08:08.000 \"\"\" CHAR_\" CHAR  -  - A_minha_casa \"disse \" e \"\" \"\r\n"
            "09:08:09.000 \"\" NEW_SENTENCE SENTENCE_o_\"rei\"_\"  -  - Casa \"o \"rei\" - - x\"\r\n");
    const LogRecord start{"09:08:07.006", "", "SYSTEM_INFO", "START_LOGGING", "", "", "", "", ""};
    const LogRecord quote{"09:08:08.000",     "\"", "CHAR_\"", "CHAR", "", "", "A_minha_casa",
                          "disse \" e \"\" ", ""};
    const LogRecord sentence{"09:08:09.000",    "", "NEW_SENTENCE", "SENTENCE_o_\"rei\"_\"", "", "", "Casa",
                             "o \"rei\" - - x", ""};
    EXPECT_THAT(log.records, ElementsAre(start, quote, sentence));
    EXPECT_FALSE(log.hasEnd);
}

TEST(Log, NothingOfALogIsDroppedOrGuessed) {
    const TextView twoWays = "09:00:01.000 \"\" KEY_DOWN_A KEY  -  - Casa \"a\" B C  -  - D \"e\"";
    const auto log =
        Log(Text(twoWays) + "\n09:00:02.000 \"\" LEFT_MOUSE_DOWN_KEY TEXT_KEY_SELECTION_um\n\ndois 0.1.2 "
                            "-5.42 Casa \"\"\nsolta\n09:00:03.000 \"\" KEY_DOWN_B KEY  -  - Ca");
    ASSERT_THAT(log.records, SizeIs(5));
    EXPECT_EQ(log.records[0].undecided, twoWays);
    EXPECT_EQ(log.records[1].undecided, "09:00:02.000 \"\" LEFT_MOUSE_DOWN_KEY TEXT_KEY_SELECTION_um");
    EXPECT_EQ(log.records[3].undecided, "solta");
    EXPECT_EQ(log.records[4].undecided, "09:00:03.000 \"\" KEY_DOWN_B KEY  -  - Ca");

    const auto broken = Log("09:00:02.000 \"\" KEY_DOWN_A TEXT_um\n\ndois 0.1.2 -5.42 Casa \"\"\n");
    ASSERT_THAT(broken.records, SizeIs(1));
    EXPECT_EQ(broken.records[0].type, "TEXT_um\n\ndois");
    EXPECT_FALSE(ReadLog("2026-11-14 09:00 started\n"));
    EXPECT_FALSE(ReadLog(""));
}

TEST(Log, TheEndKeepsTextsOfSeveralLines) {
    const auto log = Log("$$$ End Body\n\nTempo_Total_Escrita 12\nPosicao_Media_Palavras_Lista -\n"
                         "Linha_Texto_Final um\n\ndois\nLinha_Texto_Final \n");
    EXPECT_TRUE(log.hasEnd);
    EXPECT_THAT(log.metrics, ElementsAre(LogMetric{"Tempo_Total_Escrita", "12"},
                                         LogMetric{"Posicao_Media_Palavras_Lista", "-"}));
    EXPECT_THAT(log.finalTexts, ElementsAre("um\n\ndois", ""));
}

TEST(Log, DaysGoOnPastMidnightAndNotWhenAClockIsSetBack) {
    const auto name = ReadLogName("ana maria Tue Feb  3 22-00-00 2026");
    ASSERT_TRUE(name);
    EXPECT_EQ(name->profile, "ana maria");
    const auto at = [](const Text& time) {
        return LogRecord{time, "", "", "", "", "", "", "", ""};
    };
    const std::vector<LogRecord> records{
        at("22:00:00.500"), at("21:30:00.000"), {"", "", "", "", "", "", "", "", "?"}, at("00:10:00.000")};
    EXPECT_THAT(MomentsOf(records, name->day),
                ElementsAre("2026-02-03T22:00:00.500", "2026-02-03T21:30:00.000", "2026-02-03T21:30:00.000",
                            "2026-02-04T00:10:00.000"));
    EXPECT_EQ(SecondsOf(records), 7800);
    for (const auto* other : {"ana", "Tue Feb  3 22-00-00 2026", "ana Tue Feb 30 22-00-00 2026"})
        EXPECT_FALSE(ReadLogName(other)) << other;
    EXPECT_FALSE(ReadLogDay("2026-13-01"));
}

TEST(Log, TablesAndBoardLogsAreWhatOtherProgramsExpect) {
    const auto log = Log("09:00:01.000 \"\" LEFT_MOUSE_DOWN_KEY PREDICTED_WORD_SELECTION_0_2_amanh\xE3 1.0.2 "
                         "310.42 Casa \"at\xE9, \"a\"\"\n"
                         "09:00:02.000 \"\\n\" CHAR_ENTER CHAR  -  - Casa \"\"\nsolta\n"
                         "$$$ End Body\n\nNumero_Cliques 1\nLinha_Texto_Final a\n\tb\n");
    EXPECT_EQ(LogAsCsv(log), "TIME,OUTPUT,EVENT,TYPE,ELEMENT,CENTER,PAGE,CONTEXT,UNDECIDED\r\n"
                             "09:00:01.000,,LEFT_MOUSE_DOWN_KEY,PREDICTED_WORD_SELECTION_0_2_amanhã,1.0.2,"
                             "310.42,Casa,\"até, \"\"a\"\"\",\r\n"
                             "09:00:02.000,\\n,CHAR_ENTER,CHAR,,,Casa,,\r\n"
                             ",,,,,,,,solta\r\n");
    EXPECT_EQ(
        LogAsOpenBoardLog(log, "s", "ana", ReadLogDay("2026-02-03").value()),
        R"({"format": "open-board-log-0.1", "user_id": "ondrilo:ana", "source": "ondrilo", "locale": "pt-PT", )"
        R"("anonymized": false, "sessions": [
{"id": "s", "type": "log", "started": "2026-02-03T09:00:01.000", "ended": "2026-02-03T09:00:02.000", )"
        R"("events": [
{"id": "s:0", "timestamp": "2026-02-03T09:00:01.000", "type": "button", "label": "amanhã", )"
        R"("spoken": true, "button_id": "1.0.2", "board_id": "Casa", "actions": [
{"action": ":prediction", "text": "amanhã"}], "ext_ondrilo_event": "LEFT_MOUSE_DOWN_KEY", )"
        R"("ext_ondrilo_type": "PREDICTED_WORD_SELECTION_0_2_amanhã", "ext_ondrilo_element": "1.0.2", )"
        R"("ext_ondrilo_center": "310.42", "ext_ondrilo_page": "Casa", "ext_ondrilo_context": "até, \"a\""},
{"id": "s:1", "timestamp": "2026-02-03T09:00:02.000", "type": "action", )"
        R"("action": ":ext_ondrilo_enter", "ext_ondrilo_event": "CHAR_ENTER", "ext_ondrilo_type": "CHAR", )"
        R"("ext_ondrilo_output": "\\n", "ext_ondrilo_page": "Casa"},
{"id": "s:2", "timestamp": "2026-02-03T09:00:02.000", "type": "note", "text": "solta"}], )"
        R"("ext_ondrilo_metrics": {"Numero_Cliques": "1"}, "ext_ondrilo_final_texts": [
"a\u000a\u0009b"]}]}
)");
}

TEST(Log, ReplayTellsWrongCountsFromThoseThatEventsShowOnlyInPart) {
    const TextView events =
        "09:00:01.000 \"\" KEY_DOWN_A KEY  -  - Casa \"\"\n"
        "09:00:01.000 \"a\" CHAR_a CHAR  -  - Casa \"\"\n"
        "09:00:05.000 \"\" KEY_DOWN_F1 PREDICTED_WORD_SELECTION_0_3_as 1.0.2 3.4 Casa \"a\"\n"
        "09:00:05.000 \"\" KEY_DOWN_S AUTO_KEY  -  - Casa \"a\"\n"
        "09:00:06.000 \"s\" CHAR_s CHAR  -  - Casa \"a\"\n"
        "09:00:07.000 \"\" NEW_WORD WORD_CHAR  -  - Casa \"as\"\n";
    EXPECT_THAT(
        Verdicts(events, "Tempo_Total_Escrita 9\nTempo_Efectivo_Escrita 4\nNumero_Teclas_Pressionadas 2\n"
                         "Numero_Teclas_Sistema 0\nNumero_Caracteres_Escritos 2\nNumero_Palavras_Escritas 1\n"
                         "Numero_Palavras_Completadas 2\nPosicao_Media_Palavras_Lista 3.000000\n"
                         "Teclas_Poupadas_Comparacao_Escrita_Teclado_Qwerty 33.333333\n"
                         "Numero_Teclas_Texto_Teclado_Qwerty 3\nLinha_Texto_Final as \n"),
        ElementsAre(Verdict::AtLeast, Verdict::Unknown, Verdict::AtLeast, Verdict::Differs, Verdict::Equal,
                    Verdict::Equal, Verdict::Differs, Verdict::Equal, Verdict::Equal, Verdict::Equal));
    const auto cutOff = Replay(Log(events));
    EXPECT_THAT(cutOff, Contains(AllOf(Field(&ReplayedMetric::name, "Numero_Caracteres_Escritos"),
                                       Field(&ReplayedMetric::recomputed, "2"),
                                       Field(&ReplayedMetric::logged, IsEmpty()),
                                       Field(&ReplayedMetric::verdict, Verdict::NoEnd))));
}

TEST(Log, ReplayCountsAPressOnceHoweverManyEventsItLeaves) {
    const TextView heardAndSeen =
        "09:00:01.000 \"\" LEFT_MOUSE_DOWN_KEY SYNTHESIZE_TEXT_KEY_BEFORE_SELECTION 1.0.2 3.4 Casa \"\"\n"
        "09:00:01.000 \"\" LEFT_MOUSE_DOWN_KEY SHOW_TEXT_KEY_BEFORE_SELECTION 1.0.2 3.4 Casa \"\"\n"
        "09:00:02.000 \"\" LEFT_MOUSE_DOWN_KEY TEXT_KEY_SELECTION 1.0.2 3.4 Casa \"\"\n"
        "09:00:02.000 \"\" LEFT_MOUSE_DOWN_KEY SYNTHESIZE_TEXT_KEY_AFTER_SELECTION 1.0.2 3.4 Casa \"\"\n";
    const TextView heldSwitch = "09:00:01.000 \"\" SWITCH1_DOWN START_SCANNING_LINES  -  - Casa \"\"\n"
                                "09:00:02.000 \"\" SWITCH1_UP LINE_SELECTION 1  - Casa \"\"\n"
                                "09:00:02.000 \"\" SWITCH1_UP GROUP_SELECTION 1.0  - Casa \"\"\n"
                                "09:00:02.000 \"\" SWITCH1_UP TEXT_KEY_SELECTION 1.0.0 3.4 Casa \"\"\n";
    const TextView end =
        "Numero_Teclas_Ecra_Pressionadas 2\nNumero_Cliques 2\nNumero_Activacoes_Manipulos 0\n";
    EXPECT_THAT(Verdicts(heardAndSeen, end), ElementsAre(Verdict::Equal, Verdict::Equal, Verdict::Equal));
    EXPECT_THAT(Verdicts(heldSwitch, "Numero_Teclas_Ecra_Pressionadas 1\nNumero_Activacoes_Manipulos 1\n"),
                ElementsAre(Verdict::Equal, Verdict::Equal));
}

} // namespace
} // namespace ondrilo
