#include "profiles/CSystemOptions.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

using Names = std::vector<Text>;

TEST(SystemOptions, TheServerNameStandsTwiceAndComesBackWithItsMarks) {
    const TemporaryFolder folder;
    CSystemOptions options;
    options.Load(folder.Path() / "configsis");
    options.Set(system_option::NOME_SERVIDOR_COMUNICACAO_COOPERATIVA, "pc da sala");
    ASSERT_TRUE(options.Save());
    EXPECT_NE(folder.Read("configsis")
                  .find("NOME_SERVIDOR_COMUNICACAO_COOPERATIVA pc da sala\n"
                        "PERFIL_UTILIZADOR_ARRANQUE generico\n"
                        "NOME_SERVIDOR_COMUNICACAO_COOPERATIVA pc;;;da;;;sala\n"),
              Text::npos);
    options.Load(folder.Path() / "configsis");
    EXPECT_EQ(options.Get(system_option::NOME_SERVIDOR_COMUNICACAO_COOPERATIVA), "pc;;;da;;;sala");
}

TEST(SystemOptions, PrioritiesSplitAtAnyRunOfSemicolons) {
    CSystemOptions options;
    options.Parse("LISTA_PRIORIDADES_ADAPTACAO_CONTEXTO ;ana;;;rui;eva;;\n");
    EXPECT_EQ(options.GetPriorities(), (Names{"ana", "rui", "eva"}));
    options.Parse("LISTA_PRIORIDADES_ADAPTACAO_CONTEXTO \n");
    EXPECT_EQ(options.GetPriorities(), Names{});
    EXPECT_TRUE(options.Format().ends_with("LISTA_PRIORIDADES_ADAPTACAO_CONTEXTO \n"));
}

TEST(SystemOptions, AreWrittenOnlyIfChangedAndEvenReadingThePrioritiesIsAChange) {
    const TemporaryFolder folder;
    CSystemOptions options;
    options.Load(folder.Path() / "configsis");
    EXPECT_EQ(options.Get(system_option::PERFIL_UTILIZADOR_ARRANQUE), "generico");
    EXPECT_TRUE(options.IsOn(system_option::ALTERACOES_SISTEMA));
    EXPECT_TRUE(options.Save());
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "configsis"));

    folder.Write("configsis", "ADAPTACAO_CONTEXTO 1\nLINHA_DESCONHECIDA 1\n");
    options.Load(folder.Path() / "configsis");
    EXPECT_FALSE(options.IsChanged());
    (void)options.GetPriorities();
    ASSERT_TRUE(options.Save());
    EXPECT_EQ(folder.Read("configsis"), options.Format());

    options.Load(folder.Path() / "no such folder" / "configsis");
    options.Set(system_option::ADAPTACAO_CONTEXTO, 1);
    EXPECT_FALSE(options.Save());
    EXPECT_TRUE(options.IsChanged());
}

} // namespace
} // namespace ondrilo
