#include "tests/support/TemporaryFolder.h"
#include "tools/CheckDictionaries.h"
#include "tools/CheckKeyboards.h"
#include "tools/CheckOptions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace ondrilo {
namespace {

/// "line: reason" of the findings in one file, in order.
std::vector<Text> Of(TextView file, CheckReport report) {
    std::sort(report.begin(), report.end());
    std::vector<Text> found;
    for (const auto& finding : report)
        if (finding.file == file)
            found.push_back(std::to_string(finding.line) + ": " + finding.reason);
    return found;
}

class Check : public testing::Test {
  protected:
    using CheckOf = void(const DataFolder&, const std::vector<Text>&, CheckReport&);
    CheckReport With(CheckOf check) {
        CheckReport report;
        check(data, {"generico", "ana"}, report);
        return report;
    }
    /// That the findings in this file begin like these, and are no others.
    void Expect(CheckOf check, TextView file, const std::vector<const char*>& beginnings) {
        std::vector<testing::Matcher<Text>> expected;
        for (const char* beginning : beginnings)
            expected.emplace_back(testing::StartsWith(beginning));
        EXPECT_THAT(Of(file, With(check)), testing::ElementsAreArray(expected)) << file;
    }

    TemporaryFolder folder;
    DataFolder data{folder.Path()};
};

TEST_F(Check, FindsNothingInASoundFolder) {
    for (const auto* stem : {"geral", "generico", "ana"})
        for (const auto* extension : {".pal", ".par", ".frs", ".paf", ".abr"})
            folder.Write(std::string(stem) + extension, "");
    folder.Write("geral.pal", "___ 4\nbom|dia 2 N\ncasa 12 N\nárvore\n"_w);
    folder.Write("geral.par", "___ casa 3\n___ árvore 1\ncasa bom|dia 2\n"_w);
    folder.Write("geral.cg", "N 10\nV 2\n");
    folder.Write("geral.pcg", "N V 3\r\nV N 1\r\n");
    folder.Write("geral.frs", "Bom|dia! 2\ncomo|estás?\n"_w);
    folder.Write("generico.par", "casa casa 1\n");
    folder.Write("generico.abr", "bd bom dia a todos\n");
    folder.Write("generico.cfg",
                 "# nota\n\nNOME_TECLADO letras\nTIPO_LETRA Comic;;;Sans\nLETRAS_NAO_PRETENDIDAS \n");
    folder.Write("base.cfg", "");
    folder.Write("Letras.tec", "// nota\n\nALTURA_TECLAS 60\nLINHA l\nGRUPO g\nTECLA TECLA_VAZIA\n"
                               "TECLA TECLA_NORMAL a a letras.tec 1 -1 -1\n"
                               "TECLA TECLA_NORMAL a a {Ctrl+c} 1 -1 -1\n"
                               "TECLA TECLA_NORMAL a a [Alterar-Perfil-Utilizador;;;ana]\n");
    folder.Write("letras.tec", "");
    for (auto* const check : {CheckDictionaries, CheckOptions, CheckKeyboards})
        EXPECT_TRUE(With(check).empty());
}

TEST_F(Check, TellsOutOfPlaceWordsAndCountsThatDoNotRead) {
    folder.Write("geral.pal", "casa 12\nabrir 2\nabrir 3\nbom dia 4\ndado -1\nerva 99999999999 N x\n");
    Expect(CheckDictionaries, "geral.pal",
           {"2: \"abrir\" does not sort after \"casa\"", "3: \"abrir\" does not sort after \"abrir\"",
            "4: count: \"dia\"", "5: count: \"-1\" is negative", "6: count: \"99999999999\" is read as",
            "6: what follows \"N\" is lost"});
}

TEST_F(Check, TellsPairsThatWouldBeDroppedOrUnsorted) {
    folder.Write("geral.pal", "a 1\nb 1\nc 1\n");
    folder.Write("ana.pal", "d 1\n");
    folder.Write("geral.par", "a b 1\na d 1\nb c 1\nb a 1\na c 1\nb c\n");
    folder.Write("ana.par", "d a 1\na d 1\na e 2\n");
    Expect(CheckDictionaries, "geral.par",
           {"2: \"d\" is in no dictionary", "4: \"a\" does not sort after \"c\"",
            "5: pairs of \"a\" stand in two places", "6: not two entries"});
    Expect(CheckDictionaries, "ana.par", {"3: \"e\" is in no dictionary"});
}

TEST_F(Check, TellsLongLinesOnceAndLinesInAnotherEncoding) {
    folder.Write("geral.pal", Text(999, 'a') + Text(999, 'b') + "c\nárvore 2\n");
    folder.Write("generico.abr", "bd\nbb bom dia\nbb outra\n");
    Expect(CheckDictionaries, "geral.pal", {"1: longer than 999 bytes", "2: is UTF-8"});
    Expect(CheckDictionaries, "generico.abr", {"1: not an abbreviation", "3: replaces line 2"});
}

TEST_F(Check, TellsClassesThatShiftTheTotals) {
    folder.Write("geral.cg", "N 10\n\nV x\nN 3\n");
    folder.Write("geral.pcg", "N X 3\nN N\n");
    Expect(CheckDictionaries, "geral.cg",
           {"2: not a class", "3: not a class", "4: class \"N\" is already on line 1"});
    Expect(CheckDictionaries, "geral.pcg", {"1: class \"X\" is not in", "2: not two classes"});
}

TEST_F(Check, TellsOptionsThatAreUnknownUnreadableOrOutOfRange) {
    folder.Write("ana.cfg",
                 "CHAVE 1\nALTURA_TECLAS\nALTURA_TECLAS 900\nTEMPO_DE_PREDICAO 250\nTECLAS_COMPLETAR 60\n"
                 "TECLA_MANIPULO1 F13\nMETODO_VARRIMENTO Outro\nNOME_TECLADO nenhum\n"
                 "INTERVALOS_TEMPO_SABADO 08:30-25:00\nLATITUDE_LOCAL_FISICO 1,5\nTIPO_LETRA Comic Sans\n");
    Expect(CheckOptions, "ana.cfg",
           {"1: \"CHAVE\" is no option", "2: ALTURA_TECLAS has no value", "3: \"900\" is outside 1 to 500",
            "3: replaces line 2", "4: \"250\" is no multiple of 100", "5: \"60\" is neither",
            "6: \"F13\" is no key name", "7: \"Outro\" is no scanning method",
            "8: there is no keyboard \"nenhum\"", "9: \"08:30-25:00\" is no list of time spans",
            "10: \"1,5\" is read as 1.0", "11: what follows \"Comic\" is lost"});
}

TEST_F(Check, TellsAccessOptionsThatWouldNotHoldAsTheyStand) {
    folder.Write("ana.acs", "# nota\nTEMPO_PERMANENCIA 10100\nTEMPO_PERMANENCIA 250\nCHAVE 1\n"
                            "TEMPO_PERMANENCIA 2s\nTOM_FALA 101\nVOZ_PISTAS Voz Baixa\n");
    folder.Write("rui.acs", "TEMPO_PERMANENCIA 10000\nVOLUME_PISTAS -100\nVOZ_PISTAS Voz;;;Baixa\n");
    Expect(CheckOptions, "ana.acs",
           {"2: \"10100\" is outside 0 to 10000", "3: \"250\" is no multiple of 100", "3: replaces line 2",
            "4: \"CHAVE\" is no option", "5: \"2s\" is", "5: replaces line 2",
            "6: \"101\" is outside -100 to 100", "7: what follows \"Voz\" is lost"});
    Expect(CheckOptions, "rui.acs", {});
}

TEST_F(Check, TellsProfilesThatAreNamedButNotThere) {
    folder.Write("configsis", "PERFIL_UTILIZADOR_ARRANQUE eva\nFOO 1\nADAPTACAO_CONTEXTO sim\n"
                              "LISTA_PRIORIDADES_ADAPTACAO_CONTEXTO ana;;;rui\n");
    folder.Write("utils", "ana ana\n");
    folder.Write("ana.cfg", "");
    Expect(CheckOptions, "configsis",
           {"1: \"eva\" is no profile", "2: \"FOO\"", "3: \"sim\"", "4: \"rui\" is no profile"});
    Expect(CheckOptions, "utils", {"1: \"ana\" is in the list already"});
}

TEST_F(Check, TellsKeyLinesThatLoseWordsAndOutputsThatLeadNowhere) {
    folder.Write("t.tec", "LINHA l m\nGRUPO g\nFOO bar\nTECLA TECLA_NORMAL a b\n"
                          "TECLA TECLA_NORMAL a b [Foo] 1 -1\nTECLA TECLA_NORMAL a b nada.tec 1 -1 -1\n"
                          "TECLA TECLA_OUTRA\nTECLA TECLA_NORMAL a b {Ctrl+Foo} 1 -1 -1\n"
                          "TECLA TECLA_IMAGEM CAT_IMG_X\\p.bmp b c 1 -1 -1\n"
                          "TECLA TECLA_NORMAL a b [Alterar-Perfil-Utilizador;;;eva]\nALTURA_TECLAS x\n");
    Expect(CheckKeyboards, "t.tec",
           {"1: only the first 2 of 3 words", "3: \"FOO\" begins no line", "4: only the first 2 of 4 words",
            "5: \"Foo\" is no command", "5: only the first 6 of 7 words",
            "6: there is no keyboard \"nada.tec\"", "7: \"TECLA_OUTRA\"", "8: \"Foo\" is no key name",
            "9: there is no picture", "10: \"eva\" is no profile", "11: \"x\" is no number"});
}

TEST_F(Check, TellsWhereTheReadingOfAKeyboardEnds) {
    folder.Write("a.tec", "LINHA l\nTECLA TECLA_VAZIA\nFOO bar\n");
    Text lines;
    for (int i = 0; i < 25; ++i)
        lines += "LINHA l\n";
    folder.Write("b.tec", lines);
    Expect(CheckKeyboards, "a.tec", {"2: a key before its group", "2: the program stops"});
    Expect(CheckKeyboards, "b.tec", {"21: more than 20 lines", "21: the program stops"});
}

} // namespace
} // namespace ondrilo
