#include "keyboards/KeyboardFile.h"

#include "tests/support/TemporaryFolder.h"
#include "text/Splitter.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

Text Repeated(TextView line, int times) {
    Text text;
    for (int i = 0; i < times; ++i)
        text += line;
    return text;
}

/// The only key of a line of a file.
COnScreenKeyData KeyOf(TextView line) {
    return std::get<COnScreenKeyData>(ParseKeyboardLine(line).content);
}

constexpr TextView kSample = "ALTURA_TECLAS 60\n"
                             "DESCRICAO Escrita;;;de;;;mensagens\n"
                             "\n"
                             "LINHA Predicao\n"
                             "GRUPO Palavras;;;novas\n"
                             "TECLA TECLA_PREDICAO\n"
                             "TECLA TECLA_VAZIA\n"
                             "GRUPO Vazio\n"
                             "\n"
                             "LINHA Letras\n"
                             "\n"
                             "LINHA Fim\n"
                             "GRUPO Vogais\n"
                             "TECLA TECLA_NORMAL e letra;;;e e 1 16777215 0\n"
                             "TECLA TECLA_NORMAL <Nenhum> Apagar BkSp 0 -1 -1\n";

TEST(KeyboardFile, EmptyGroupsAndLinesAndEveryFieldSurviveARoundTrip) {
    const auto keyboard = ParseKeyboard(kSample);
    EXPECT_EQ(keyboard.keyHeight, 60);
    EXPECT_EQ(keyboard.description, "Escrita de mensagens");
    ASSERT_THAT(keyboard.lines, SizeIs(3));
    EXPECT_EQ(keyboard.lines[0].groups[0].name, "Palavras novas");
    EXPECT_THAT(keyboard.lines[1].groups, IsEmpty());
    EXPECT_EQ(FormatKeyboard(keyboard), kSample);
    EXPECT_EQ(FormatKeyboard(ParseKeyboard(Replace(kSample, "\n", "\r\n"))), kSample);
}

TEST(KeyboardFile, AKeyLineFallsThroughToTheLongestFormThatReads) {
    const std::pair<TextView, TextView> rows[] = {
        {"a letra;;;a b 0 255 7", "T a  letra;;;a b 0 255 7"},
        {"a b c 0 255", "T a  b c 0 -1 -1"},
        {"a b c x 1 2", "T a  b c 1 -1 -1"},
        {"a b", "T     1 -1 -1"},
    };
    for (const auto& [words, read] : rows)
        EXPECT_EQ(KeyOf(Text("TECLA T ").append(words)).ToHint(), read) << words;
}

TEST(KeyboardFile, WordsThatAreLostCanBeToldFromThoseTaken) {
    EXPECT_EQ(ParseKeyboardLine("TECLA TECLA_NORMAL a b").words, 2);
    EXPECT_EQ(ParseKeyboardLine("TECLA TECLA_NORMAL a b c 0 255").words, 6);
    EXPECT_EQ(ParseKeyboardLine("LINHA a b c").words, 2);
    EXPECT_EQ(ParseKeyboardLine("linha a").words, 0);
}

TEST(KeyboardFile, LinesThatFitNoFormAreIgnored) {
    const auto ignored = ParseKeyboard("  //TECLA TECLA_VAZIA\nLINHA\nGRUPO\nTECLA\nlinha a\nTecla b\n\t\n"
                                       "ALTURA_TECLAS 9 a b c\nALTURA_TECLAS 45\nALTURA_TECLAS_IMAGENS x\n");
    EXPECT_EQ(ignored.failedLine, 0);
    EXPECT_THAT(ignored.lines, IsEmpty());
    EXPECT_EQ(ignored.keyHeight, 45);
    EXPECT_EQ(FormatKeyboard(ignored), "ALTURA_TECLAS 45\n");
}

TEST(KeyboardFile, SemicolonsSurviveOnlyAlone) {
    EXPECT_EQ(DecodeKeyboardText(";"), ";");
    EXPECT_EQ(DecodeKeyboardText(";;;"), " ");
    EXPECT_EQ(DecodeKeyboardText("a;b"), "a b");
    EXPECT_EQ(DecodeKeyboardText(";;;;"), "  ");
    EXPECT_EQ(EncodeKeyboardText("a b;"), "a;;;b;");
}

TEST(KeyboardFile, TextsBesidePictogramsBecomeTheCaptionAndTheLastOneWins) {
    const auto mixed = KeyOf("TECLA TECLA_IMAGEM um:a.BMP:A;;;porta:b.bmp d o");
    EXPECT_EQ(mixed.label, "a.BMP:b.bmp");
    EXPECT_EQ(mixed.imageText, "A porta");

    const auto time = KeyOf("TECLA TECLA_NORMAL 12:30 d o");
    EXPECT_EQ(time.label, "12:30");
    EXPECT_EQ(time.imageText, "");
}

TEST(KeyboardFile, KeysOfUnknownTypeAreReadButNotWritten) {
    const TextView bytes = "LINHA a\nGRUPO b\nTECLA TECLA_OUTRA\nTECLA TECLA_VAZIA\n";
    EXPECT_THAT(ParseKeyboard(bytes).lines[0].groups[0].keys, SizeIs(2));
    EXPECT_EQ(FormatKeyboard(ParseKeyboard(bytes)), "\nLINHA a\nGRUPO b\nTECLA TECLA_VAZIA\n");
}

TEST(KeyboardFile, ItemsWithoutParentOrPastALimitEndTheReadingAtTheirLine) {
    EXPECT_EQ(ParseKeyboard("\nGRUPO a\n").failedLine, 2);
    EXPECT_EQ(ParseKeyboard("LINHA a\nTECLA TECLA_VAZIA\n").failedLine, 2);
    EXPECT_EQ(ParseKeyboard("LINHA a\nGRUPO a\nLINHA b\nTECLA TECLA_VAZIA\n").failedLine, 4);

    EXPECT_EQ(ParseKeyboard(Repeated("LINHA a\n", 20)).failedLine, 0);
    const auto lines = ParseKeyboard(Repeated("LINHA a\n", 22));
    EXPECT_EQ(lines.failedLine, 21);
    EXPECT_THAT(lines.lines, SizeIs(20));

    EXPECT_EQ(ParseKeyboard("LINHA a\n" + Repeated("GRUPO a\n", 11)).failedLine, 12);
    const auto keys = ParseKeyboard("LINHA a\nGRUPO a\n" + Repeated("TECLA TECLA_VAZIA\n", 201));
    EXPECT_EQ(keys.failedLine, 203);
    EXPECT_THAT(keys.lines[0].groups[0].keys, SizeIs(200));
}

TEST(KeyboardFile, OverlongLinesAreSeveralReadsAndOverlongWordsAreCut) {
    const Text word(600, 'x');
    const auto keyboard = ParseKeyboard("LINHA " + word + "\nGRUPO a\n");
    EXPECT_EQ(keyboard.lines[0].name.size(), 511U);
    EXPECT_THAT(keyboard.lines[0].groups, SizeIs(1));

    const Text blanks(999, ' ');
    EXPECT_EQ(ParseKeyboard("LINHA a" + blanks + "LINHA b\n").lines.size(), 2U);
}

TEST(KeyboardFile, FlatReadingHasNoRegardForParentsAndLimits) {
    const TemporaryFolder folder;
    const auto path = folder.Write("a.tec", "TECLA TECLA_PREDICAO\n" + Repeated("TECLA TECLA_VAZIA\n", 300));
    EXPECT_THAT(ReadFlatKeys(path), SizeIs(301));
    EXPECT_EQ(CountKeysOfType(path, "TECLA_VAZIA"), 300);
}

TEST(KeyboardFile, NamesAndFileNamesTurnIntoEachOther) {
    EXPECT_EQ(KeyboardFileName("Casa"), "Casa.tec");
    EXPECT_EQ(KeyboardFileName("Casa.tec"), "Casa.tec");
    EXPECT_EQ(KeyboardFileName("Ca.tecsa"), "Ca.tecsa");
    EXPECT_EQ(KeyboardName("c:\\x\\Abc.tec"), "Abc");
    EXPECT_EQ(KeyboardName("Numeros.TEC"), "Numeros");
    EXPECT_EQ(KeyboardName("c:\\.tec"), "");
}

TEST(KeyboardFile, AHintKeepsAllFieldsAndShortOrBrokenOnesAreInert) {
    const Text hint = "TECLA_IMAGEM a.bmp:b.bmp A;;;porta porta;;;de;;;casa a;b 0 255 -1";
    const auto key = COnScreenKeyData::FromHint(hint);
    EXPECT_EQ(key.imageText, "A porta");
    EXPECT_EQ(key.backgroundColor, 255);
    EXPECT_EQ(key.ToHint(), hint);

    const auto sixWords = COnScreenKeyData::FromHint("T a.bmp:x b c d 1");
    EXPECT_EQ(sixWords.label, "a.bmp:x") << "a hint carries its caption apart";
    EXPECT_EQ(sixWords.active, 1);
    const auto broken = COnScreenKeyData::FromHint("T a b c d");
    EXPECT_EQ(broken.type, "");
    EXPECT_EQ(broken.active, 0);
}

class PictogramKeys : public testing::Test {
  protected:
    std::vector<Text> Collect(TextView name) {
        std::vector<Text> descriptions;
        for (const auto& key : CollectPictogramKeys(data, name))
            descriptions.push_back(key.description);
        return descriptions;
    }

    TemporaryFolder folder;
    DataFolder data{folder.Path()};
};

TEST_F(PictogramKeys, LinksAreFollowedWhereTheyStandAndCirclesEnd) {
    folder.Write("a.tec", "TECLA TECLA_IMAGEM x.bmp um x.bmp\n"
                          "TECLA TECLA_NORMAL b b B.TEC\n"
                          "TECLA TECLA_IMAGEM x.bmp tres x.bmp\n"
                          "TECLA TECLA_NORMAL falta falta falta.tec\n");
    folder.Write("b.tec", "TECLA TECLA_NORMAL a a a.tec\nTECLA TECLA_IMAGEM x.bmp dois palavra\n");
    EXPECT_THAT(Collect("a"), ElementsAre("um", "dois", "tres"));
}

TEST_F(PictogramKeys, OnlyActivePictogramKeysThatWriteCount) {
    folder.Write("a.tec", "TECLA TECLA_NORMAL x.bmp normal x.bmp\n"
                          "TECLA TECLA_IMAGEM x.bmp inactiva x.bmp 0\n"
                          "TECLA TECLA_IMAGEM x.bmp programa c:\\x.EXE\n"
                          "TECLA TECLA_IMAGEM x.bmp teclas {Ctrl+c}\n"
                          "TECLA TECLA_IMAGEM x.bmp boa texto\n");
    EXPECT_THAT(Collect("a"), ElementsAre("boa"));
}

} // namespace
} // namespace ondrilo
