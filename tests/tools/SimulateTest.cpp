#include "tests/support/TemporaryFolder.h"
#include "tests/tools/RunTool.h"

#include <algorithm>

namespace ondrilo {
namespace {

class Simulate : public testing::Test {
  protected:
    Simulate() {
        folder.Write("geral.pal", "água 4\nbom 3\n"_w);
        for (const auto* name :
             {"geral.par", "geral.frs", "geral.paf", "ana.pal", "ana.par", "ana.frs", "ana.paf"})
            folder.Write(name, "");
        folder.Write("ana.cfg", "NUMERO_MAXIMO_PALAVRAS_PREDITAS 1\n");
    }
    Ran OnText(const std::string& bytes, std::vector<std::string> words = {}) {
        texts.Write("texto.txt", bytes);
        words.insert(words.begin(), {"words", "--data", folder.Path().string(), "--profile", "ana", "--text",
                                     (texts.Path() / "texto.txt").string()});
        return RunTool(kSimulateCommand, std::move(words));
    }
    std::string Printed(const std::string& bytes, std::vector<std::string> words = {}) {
        const auto ran = OnText(bytes, std::move(words));
        EXPECT_EQ(ran.code, 0);
        return ran.out;
    }

    TemporaryFolder folder;
    TemporaryFolder texts;
};

TEST_F(Simulate, TellsWhatIsSavedOnATextOfEitherEncoding) {
    const auto utf8 = Printed("\xEF\xBB\xBF"
                              "água\n");
    EXPECT_EQ(utf8.substr(0, utf8.find("Percentagem")), "Número de Palavras: 1\nNúmero de Caracteres: 5\n"
                                                        "Número de Caracteres Escritos Pelo Utilizador: 2\n");
    EXPECT_EQ(Printed(std::string("água"_w), {"--encoding", "windows-1252"}), utf8)
        << "the encoding is the text's";
    EXPECT_NE(Printed("água", {"--predictions", "0"}), utf8);
}

TEST_F(Simulate, WritesARowARunAndLeavesTheDataAlone) {
    const auto rows = texts.Path() / "linhas.sim";
    Printed("xis xis", {"--adapt", "1", "--sim", rows.string()});
    EXPECT_EQ(texts.Read("linhas.sim"), "2\t8\t6\t25\t6\t6\t0\t5\t1\t0.0\t1.0\n");
    const auto six = Printed("xis xis", {"--type=1", "--sim", rows.string()});
    const auto written = texts.Read("linhas.sim");
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 6);
    EXPECT_EQ(std::count(six.begin(), six.end(), '\n'), 6 * 12 - 1)
        << "eleven figures a run, and a line between";
    EXPECT_EQ(folder.Read("ana.cfg"), "NUMERO_MAXIMO_PALAVRAS_PREDITAS 1\n");
    EXPECT_EQ(folder.Read("ana.pal"), "");
    EXPECT_EQ(OnText("", {"--type", "3"}).code, 2);
}

} // namespace
} // namespace ondrilo
