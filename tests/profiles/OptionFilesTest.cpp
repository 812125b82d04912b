#include "profiles/CSystemOptions.h"
#include "profiles/CUserProfileProperties.h"
#include "tests/support/TemporaryFolder.h"
#include "text/Splitter.h"

#include <gmock/gmock.h>

#include <clocale>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

CUserProfileProperties Parsed(TextView bytes) {
    CUserProfileProperties profile;
    profile.Parse(bytes);
    return profile;
}

/// The line of one key as the writer puts it.
Text LineOf(const CUserProfileProperties& profile, TextView key) {
    for (const auto& line : Split(profile.Format(), "\n", kAllTokens))
        if (line.starts_with(key) && line[key.size()] == ' ')
            return line;
    return "no line";
}

TEST(ProfileFile, ThatIsMissingIsCreatedWithTheDefaults) {
    const TemporaryFolder folder;
    CUserProfileProperties profile;
    profile.Load(folder.Path() / "ana.cfg");
    ASSERT_TRUE(profile.Save());
    const auto read = Parsed(folder.Read("ana.cfg"));
    EXPECT_EQ(read.Format(), CUserProfileProperties().Format());
    EXPECT_EQ(read.Get(option::TEMPO_DE_PREDICAO), 1000);
    EXPECT_EQ(read.Get(option::TECLA_MANIPULO2), "Num5");
    EXPECT_EQ(read.activeKeyboardName, "QwertySimples");
}

TEST(ProfileFile, AKeyWithoutReadableValueIsClearedAndNotLeftAtItsDefaultAndNoNumberHasARange) {
    // Where the locale with a decimal comma is not installed this still checks the plain one.
    std::setlocale(LC_ALL, "pt_PT.UTF-8");
    const std::pair<TextView, TextView> rows[] = {
        {"ALTURA_TECLAS", "ALTURA_TECLAS 0"},
        {"COR_LETRAS azul", "COR_LETRAS 0"},
        {"LARGURA_JANELA 12px", "LARGURA_JANELA 12"},
        {"TIPO_LETRA", "TIPO_LETRA "},
        {"NOME_TECLADO", "NOME_TECLADO "},
        {"LATITUDE_LOCAL_FISICO norte", "LATITUDE_LOCAL_FISICO 0.000000"},
        {"LATITUDE_LOCAL_FISICO 38.0150004", "LATITUDE_LOCAL_FISICO 38.015000"},
        {"ALTURA_TECLAS 70\nCHAVE_FUTURA 4\nALTURA_TECLAS 8000\r", "ALTURA_TECLAS 8000"},
        {"TEMPO_DE_PREDICAO -5", "TEMPO_DE_PREDICAO -5"},
        {"# ALTURA_TECLAS 1\n\naltura_teclas 2\nALTURA_TECLAS2 3", "ALTURA_TECLAS 50"},
    };
    for (const auto& [lines, written] : rows)
        EXPECT_EQ(LineOf(Parsed(lines), written.substr(0, written.find(' '))), written) << lines;
    EXPECT_EQ(Parsed("NOME_TECLADO").activeKeyboardName, "");
    EXPECT_EQ(Parsed("LONGITUDE_LOCAL_FISICO -9.5").Get(option::LONGITUDE_LOCAL_FISICO), -9.5);
    std::setlocale(LC_ALL, "C");
}

TEST(ProfileFile, ALineOfMoreThan499BytesBecomesTwoAndAWeekHasSevenDays) {
    const Text spans(499 - Text("INTERVALOS_TEMPO_DOMINGO ").size(), 'x');
    const auto profile = Parsed("INTERVALOS_TEMPO_DOMINGO " + spans +
                                "ALTURA_TECLAS 33\nINTERVALOS_TEMPO_SABADO 10:00-11:00\n");
    EXPECT_EQ(profile.GetTimeSpans(1), spans);
    EXPECT_EQ(profile.Get(option::ALTURA_TECLAS), 33);
    EXPECT_EQ(profile.GetTimeSpans(7), "10:00-11:00");
    EXPECT_EQ(profile.GetTimeSpans(0), "");
    EXPECT_EQ(profile.GetTimeSpans(8), "");
}

TEST(ProfileFile, OnlyTheSixFreeTextsKeepTheirBlanks) {
    CUserProfileProperties written;
    for (const auto& option : kProfileOptions)
        if (option.IsText())
            written.Set(TextOption{option.index}, "a b  c");
    EXPECT_EQ(LineOf(written, "TIPO_LETRA"), "TIPO_LETRA a;;;b;;;;;;c");
    const auto read = Parsed(written.Format());
    std::vector<Text> spaced;
    for (const auto& option : kProfileOptions)
        if (option.IsText() && read.Get(TextOption{option.index}) != "a")
            spaced.emplace_back(option.key);
    EXPECT_THAT(spaced, testing::UnorderedElementsAre(
                            "LETRAS_NAO_PRETENDIDAS", "SEQUENCIAS_LETRAS_NAO_PRETENDIDAS", "TIPO_LETRA",
                            "NOME_SINTETIZADOR_FALA", "IMAGEM_FUNDO", "IDENTIFICADOR_ETIQUETA_BLUETOOTH"));
    EXPECT_EQ(read.Get(option::TIPO_LETRA), "a b  c");
}

TEST(ProfileFile, WritesTheKeyboardOfTheProfileAndNotTheOneOnShow) {
    auto profile = Parsed("NOME_TECLADO Frases\n");
    EXPECT_EQ(profile.activeKeyboardName, "Frases");
    profile.activeKeyboardName = "Numeros";
    EXPECT_EQ(LineOf(profile, "NOME_TECLADO"), "NOME_TECLADO Frases");
}

TEST(SystemOptions, TheServerNameStandsTwiceAndComesBackWithItsMarks) {
    CSystemOptions options;
    options.Set(system_option::NOME_SERVIDOR_COMUNICACAO_COOPERATIVA, "pc da sala");
    EXPECT_NE(options.Format().find("NOME_SERVIDOR_COMUNICACAO_COOPERATIVA pc da sala\n"
                                    "PERFIL_UTILIZADOR_ARRANQUE generico\n"
                                    "NOME_SERVIDOR_COMUNICACAO_COOPERATIVA pc;;;da;;;sala\n"),
              Text::npos);
    options.Parse(options.Format());
    EXPECT_EQ(options.Get(system_option::NOME_SERVIDOR_COMUNICACAO_COOPERATIVA), "pc;;;da;;;sala");
}

TEST(SystemOptions, PrioritiesSplitAtAnyRunOfSemicolons) {
    CSystemOptions options;
    options.Parse("LISTA_PRIORIDADES_ADAPTACAO_CONTEXTO ;ana;;;rui;eva;;\n");
    EXPECT_THAT(options.GetPriorities(), ElementsAre("ana", "rui", "eva"));
    options.Parse("LISTA_PRIORIDADES_ADAPTACAO_CONTEXTO \n");
    EXPECT_THAT(options.GetPriorities(), IsEmpty());
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
    EXPECT_FALSE(options.IsChanged());

    options.Load(folder.Path() / "no such folder" / "configsis");
    options.Set(system_option::ADAPTACAO_CONTEXTO, 1);
    EXPECT_FALSE(options.Save());
    EXPECT_TRUE(options.IsChanged());
}

} // namespace
} // namespace ondrilo
