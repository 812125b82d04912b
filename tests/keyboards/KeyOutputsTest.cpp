#include "keyboards/KeyOutputs.h"

#include "keyboards/CCommands.h"
#include "keyboards/KeySymbol.h"
#include "keyboards/Pictograms.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
    EXPECT_EQ(CCommands::getArgumentCount("Alterar-Perfil-Utilizador"), 1);
    EXPECT_EQ(CCommands::getArgumentCount("Apagar-Palavra"), 0);

    EXPECT_THAT(commands.getArgumentChoices("Alterar-Perfil-Utilizador", 0), IsEmpty());
    commands.SetProfileNames([&profiles] { return profiles; });
    profiles.emplace_back("ana");
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
