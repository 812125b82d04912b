#include "profiles/CUserProfileProperties.h"
#include "tests/support/TemporaryFolder.h"
#include "text/Splitter.h"

#include <gtest/gtest.h>

#include <clocale>

namespace ondrilo {
namespace {

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

TEST(ProfileFile, HoldsEveryKeyInTheOrderOfTheTableAndTheDefaultsWhereNothingIsRead) {
    const TemporaryFolder folder;
    CUserProfileProperties profile;
    profile.Load(folder.Path() / "ana.cfg");
    ASSERT_TRUE(profile.Save()) << "a missing file is created";
    EXPECT_EQ(folder.Read("ana.cfg"), Parsed("").Format());
    const auto lines = Split(profile.Format(), "\n", kAllTokens);
    ASSERT_EQ(lines.size(), std::size(kProfileOptions));
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_TRUE(lines[i].starts_with(Text(kProfileOptions[i].key) + " ")) << lines[i];
    EXPECT_EQ(profile.Get(option::TEMPO_DE_PREDICAO), 1000);
    EXPECT_EQ(profile.Get(option::TECLA_MANIPULO2), "Num5");
    EXPECT_EQ(profile.activeKeyboardName, "QwertySimples");
}

TEST(ProfileFile, AKeyWithoutReadableValueIsClearedAndNotLeftAtItsDefault) {
    const auto profile =
        Parsed("ALTURA_TECLAS\nCOR_LETRAS azul\nTIPO_LETRA\nNOME_TECLADO\nLARGURA_JANELA 12px\n"
               "LATITUDE_LOCAL_FISICO norte\n");
    EXPECT_EQ(profile.Get(option::ALTURA_TECLAS), 0);
    EXPECT_EQ(profile.Get(option::COR_LETRAS), 0);
    EXPECT_EQ(profile.Get(option::LARGURA_JANELA), 12);
    EXPECT_EQ(profile.Get(option::LATITUDE_LOCAL_FISICO), 0.0);
    EXPECT_EQ(profile.Get(option::TIPO_LETRA), "");
    EXPECT_EQ(profile.activeKeyboardName, "");
}

TEST(ProfileFile, SkipsWhatIsNoKeyAndTakesTheLastOfTwoAndNumbersWithoutAnyRange) {
    const auto profile = Parsed("# ALTURA_TECLAS 1\n\naltura_teclas 2\nALTURA_TECLAS2 3\r\n"
                                "ALTURA_TECLAS 70\nCHAVE_FUTURA 4\nALTURA_TECLAS 8000\r\n"
                                "TEMPO_DE_PREDICAO -5\r\nTIPO_LETRA Comic;;;Sans;;;MS\r\n");
    EXPECT_EQ(profile.Get(option::ALTURA_TECLAS), 8000);
    EXPECT_EQ(profile.Get(option::ALTURA_TECLAS_IMAGENS), 50);
    EXPECT_EQ(profile.Get(option::TEMPO_DE_PREDICAO), -5);
    EXPECT_EQ(profile.Get(option::TIPO_LETRA), "Comic Sans MS");
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
    const TextOption spaced[] = {option::LETRAS_NAO_PRETENDIDAS,
                                 option::SEQUENCIAS_LETRAS_NAO_PRETENDIDAS,
                                 option::TIPO_LETRA,
                                 option::NOME_SINTETIZADOR_FALA,
                                 option::IMAGEM_FUNDO,
                                 option::IDENTIFICADOR_ETIQUETA_BLUETOOTH};
    CUserProfileProperties written;
    for (const auto& option : kProfileOptions)
        if (option.IsText())
            written.Set(TextOption{option.index}, "a b  c");
    const auto read = Parsed(written.Format());
    for (const auto& option : kProfileOptions) {
        if (!option.IsText())
            continue;
        const bool keeps = std::ranges::count(spaced, TextOption{option.index}) == 1;
        EXPECT_EQ(read.Get(TextOption{option.index}), keeps ? "a b  c" : "a") << option.key;
    }
    EXPECT_EQ(LineOf(written, "TIPO_LETRA"), "TIPO_LETRA a;;;b;;;;;;c");
}

TEST(ProfileFile, CoordinatesKeepSixDecimalsWhateverTheLocale) {
    // Where the locale with a decimal comma is not installed this still checks the plain one.
    std::setlocale(LC_ALL, "pt_PT.UTF-8");
    CUserProfileProperties profile;
    profile.Set(option::LATITUDE_LOCAL_FISICO, 38.0150004);
    profile.Set(option::LONGITUDE_LOCAL_FISICO, -9.5);
    EXPECT_EQ(LineOf(profile, "LATITUDE_LOCAL_FISICO"), "LATITUDE_LOCAL_FISICO 38.015000");
    const auto read = Parsed(profile.Format());
    EXPECT_EQ(read.Get(option::LATITUDE_LOCAL_FISICO), 38.015);
    EXPECT_EQ(read.Get(option::LONGITUDE_LOCAL_FISICO), -9.5);
    std::setlocale(LC_ALL, "C");
}

TEST(ProfileFile, WritesTheKeyboardOfTheProfileAndNotTheOneOnShow) {
    auto profile = Parsed("NOME_TECLADO Frases\n");
    EXPECT_EQ(profile.activeKeyboardName, "Frases");
    profile.activeKeyboardName = "Numeros";
    EXPECT_EQ(LineOf(profile, "NOME_TECLADO"), "NOME_TECLADO Frases");
}

} // namespace
} // namespace ondrilo
