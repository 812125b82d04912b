#include "keyboards/CCommands.h"
#include "keyboards/KeyOutputs.h"
#include "keyboards/KeySymbol.h"
#include "keyboards/KeyboardFile.h"
#include "keyboards/Pictograms.h"
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

constexpr TextView kSample = "ALTURA_TECLAS 60\nDESCRICAO Escrita;;;de;;;mensagens\n"
                             "\nLINHA Predicao\n"
                             "GRUPO Palavras;;;novas\nTECLA TECLA_PREDICAO\nTECLA TECLA_VAZIA\n"
                             "GRUPO Vazio\n"
                             "\nLINHA Letras\n"
                             "\nLINHA Fim\n"
                             "GRUPO Vogais\nTECLA TECLA_NORMAL e letra;;;e e 1 16777215 0\n"
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

/// The descriptions of the pictogram keys that are found from "a.tec" in these files.
std::vector<Text> PictogramKeysIn(std::initializer_list<std::pair<const char*, TextView>> files) {
    const TemporaryFolder folder;
    for (const auto& [name, bytes] : files)
        folder.Write(name, bytes);
    std::vector<Text> descriptions;
    for (const auto& key : CollectPictogramKeys(DataFolder(folder.Path()), "a"))
        descriptions.push_back(key.description);
    return descriptions;
}

TEST(PictogramKeys, LinksAreFollowedWhereTheyStandAndCirclesEnd) {
    EXPECT_THAT(
        PictogramKeysIn(
            {{"a.tec", "TECLA TECLA_IMAGEM x.bmp um x.bmp\nTECLA TECLA_NORMAL b b B.TEC\n"
                       "TECLA TECLA_IMAGEM x.bmp tres x.bmp\nTECLA TECLA_NORMAL falta falta falta.tec\n"},
             {"b.tec", "TECLA TECLA_NORMAL a a a.tec\nTECLA TECLA_IMAGEM x.bmp dois palavra\n"}}),
        ElementsAre("um", "dois", "tres"));
}

TEST(PictogramKeys, OnlyActivePictogramKeysThatWriteCount) {
    EXPECT_THAT(PictogramKeysIn({{"a.tec", "TECLA TECLA_NORMAL x.bmp normal x.bmp\n"
                                           "TECLA TECLA_IMAGEM x.bmp inactiva x.bmp 0\n"
                                           "TECLA TECLA_IMAGEM x.bmp programa c:\\x.EXE\n"
                                           "TECLA TECLA_IMAGEM x.bmp teclas {Ctrl+c}\n"
                                           "TECLA TECLA_IMAGEM x.bmp boa texto\n"}}),
                ElementsAre("boa"));
}

TEST(KeyOutputs, APressTellsTheKindsApartInItsOrder) {
    const std::pair<TextView, OutputKind> rows[] = {
        {"Numeros.TEC", OutputKind::KeyboardLink},
        {"{a}.tec", OutputKind::KeyboardLink},
        {"c:\\Meus Programas\\x.COM", OutputKind::Program},
        {" {Ctrl+c} ", OutputKind::Sequence},
        {"[Apagar-Palavra]", OutputKind::Command},
        {"CAT_IMG_Casa\\porta.bmp", OutputKind::Pictogram},
    };
    for (const auto& [output, kind] : rows)
        EXPECT_EQ(KindOfOutput(output), kind) << output;
    for (const TextView text : {"Enter", "{", "[", "a{b}", "x.bmp.", ""})
        EXPECT_EQ(KindOfOutput(text), OutputKind::Text) << text;
    EXPECT_TRUE(HasLinkMark("a.tec") && !HasLinkMark("a.TEC")) << "only the first bears the mark";
}

TEST(KeyOutputs, AScriptIsAProgramOnlyWhereItStands) {
    const TemporaryFolder folder;
    const auto output = [&folder](const char* name) {
        return FromUtf8((folder.Path() / name).string());
    };
    for (const char* name : {"acção.sh", "x.AppImage", "x.SH", "x.appimage"})
        folder.Write(name, "");
    std::filesystem::create_directory(folder.Path() / "pasta.sh");
    EXPECT_EQ(KindOfOutput(output("acção.sh")), OutputKind::Program);
    EXPECT_EQ(KindOfOutput(output("x.AppImage")), OutputKind::Program);
    EXPECT_EQ(KindOfOutput("Correio.Desktop"), OutputKind::Program);
    for (const char* name : {"falta.sh", "pasta.sh", "x.SH", "x.appimage"})
        EXPECT_EQ(KindOfOutput(output(name)), OutputKind::Text) << name;
    const auto relative = std::filesystem::relative(folder.Path() / "x.AppImage").string();
    EXPECT_EQ(KindOfOutput(relative), OutputKind::Text) << "a text, whatever the working folder holds";
}

TEST(KeyOutputs, ACommandIsItsFirstWordAndItsSecondTheArgument) {
    EXPECT_EQ(ParseCommand("[Alterar-Perfil-Utilizador  ana x]"),
              (CommandCall{"Alterar-Perfil-Utilizador", "ana"}));
    EXPECT_EQ(ParseCommand("[]"), (CommandCall{"", ""}));
}

TEST(KeyOutputs, LabelsWithManyWordsOrASentenceAreWrapped) {
    EXPECT_TRUE(IsWrappedLabel("um dois três"_w));
    EXPECT_TRUE(IsWrappedLabel("Sim."));
    EXPECT_FALSE(IsWrappedLabel("bom dia"));
    EXPECT_FALSE(IsWrappedLabel("...")) << "a mark without a word";
    EXPECT_FALSE(IsWrappedLabel(""));
}

TEST(KeyOutputs, EveryCommandWithASymbolExists) {
    for (const auto& row : kSymbolOutputs)
        EXPECT_TRUE(!IsCommand(row.output) || CCommands::Find(ParseCommand(row.output).name)) << row.output;
}

TEST(Commands, OnlyTheChangeOfProfileAsksForAnArgumentAndOffersTheProfilesOfNow) {
    CCommands commands;
    std::vector<Text> profiles{"generico"};
    EXPECT_THAT(commands.getArgumentChoices("Alterar-Perfil-Utilizador", 0), IsEmpty());
    commands.SetProfileNames([&profiles] { return profiles; });
    profiles.emplace_back("ana");
    EXPECT_EQ(CCommands::getArgumentCount("Alterar-Perfil-Utilizador"), 1);
    EXPECT_EQ(CCommands::getArgumentCount("Apagar-Palavra"), 0);
    EXPECT_THAT(commands.getArgumentChoices("Alterar-Perfil-Utilizador", 0), ElementsAre("generico", "ana"));
    EXPECT_THAT(commands.getArgumentChoices("Alterar-Perfil-Utilizador", 1), IsEmpty());
    EXPECT_THAT(commands.getArgumentChoices("Apagar-Palavra", 0), IsEmpty());
}

TEST(Pictograms, LowerPicturesGrowByWholeFactorsOnly) {
    const auto joined = JoinPictures({{30, 40}, {50, 100}, {10, 60}});
    EXPECT_EQ(joined.size, (Size{60 + 50 + 10, 100}));
    EXPECT_EQ(joined.places[1], (Rectangle{60, 0, 50, 100}));
    EXPECT_FALSE(JoinPictures({}).IsLoaded());
}

TEST(Pictograms, ALabelShowsFiftyAtMost) {
    Text label;
    for (int i = 0; i < 60; ++i)
        label += "a.bmp:";
    EXPECT_EQ(PictogramsOf(label).size(), 50U);
    EXPECT_EQ(CountPictograms(label), 60);
    EXPECT_FALSE(HasPictograms("bmp:a.bmpx"));
}

} // namespace
} // namespace ondrilo
