#include "tests/app/RunningSystem.h"

namespace ondrilo {
namespace {

/// A board with two word keys, two pictogram keys and one for pictogram sentences, which links to a board
/// with the pictograms themselves, which links back.
class PictogramTest : public RunningSystem {
  protected:
    PictogramTest() {
        folder.Write("Casa.tec", "LINHA P\nGRUPO P\nTECLA TECLA_PREDICAO\nTECLA TECLA_PREDICAO_IMAGEM\n"
                                 "TECLA TECLA_PREDICAO_IMAGEM\nTECLA TECLA_PREDICAO_FRASE_IMAGENS\n"
                                 "TECLA TECLA_NORMAL Mais mais [Mostrar-Predições-Seguintes]\n"
                                 "TECLA TECLA_NORMAL Mais mais imagens.tec\n"
                                 "TECLA TECLA_IMAGEM G\\gato.bmp gato G\\gato.bmp\n"_w);
        folder.Write("imagens.tec", "LINHA P\nGRUPO P\nTECLA TECLA_NORMAL Casa casa Casa.tec\n"
                                    "TECLA TECLA_IMAGEM G\\agua.bmp:Água água G\\agua.bmp 1 255 -1\n"
                                    "TECLA TECLA_IMAGEM G\\quero.bmp:Quero quero G\\quero.bmp\n"
                                    "TECLA TECLA_IMAGEM G\\pao.bmp pão pão;;;fresco\n"
                                    "TECLA TECLA_IMAGEM G\\sumo.bmp sumo G\\sumo.bmp 0\n"_w);
        folder.Write("geral.pal", "[gato] 1\n[pão] 1\n[quero] 1\n[sumo] 1\n[água] 1\n___ 1\n"_w);
        folder.Write("geral.par", "___ [gato] 9\n___ [pão] 8\n___ [quero] 7\n___ [sumo] 6\n___ [água] 5\n"_w);
        folder.Write("geral.frs", "[quero]|[leite] 1\n[quero]|[água] 1\n___ 1\n"_w);
        folder.Write("geral.paf", "___ [quero]|[leite] 2\n___ [quero]|[água] 3\n"_w);
    }
    [[nodiscard]] const COnScreenKeyData& Image(int key) const { return Key({0, 0, key}).data; }
    [[nodiscard]] Text More() const { return Key({0, 0, 4}).data.output; }
};

TEST_F(PictogramTest, PredictedPictogramsAreFoundThroughTheLinksAndPaged) {
    StartWriting();
    EXPECT_EQ(Image(1).description, "pão"_w) << "the cat is on show anyway";
    EXPECT_EQ(Image(1).output, "pão fresco"_w);
    EXPECT_EQ(Image(2).description, "quero");
    EXPECT_EQ(Image(3).label, "G\\quero.bmp:G\\agua.bmp");
    EXPECT_EQ(Image(3).imageText, "Quero Água"_w);
    EXPECT_EQ(Image(3).description, "quero água"_w);
    EXPECT_EQ(Image(3).backgroundColor, 255);
    EXPECT_EQ(Image(3).type, "TECLA_PREDICAO_FRASE_IMAGENS");

    Click(More());
    EXPECT_EQ(Image(1).description, "água"_w) << "an inactive key is no pictogram";
    EXPECT_EQ(Image(2).description, "");
    EXPECT_TRUE(Key({0, 0, 1}).lastPageMark);
    Click(More());
    EXPECT_EQ(Image(1).description, "pão"_w);
    EXPECT_FALSE(Key({0, 0, 1}).lastPageMark);
}

TEST_F(PictogramTest, TheProfileDecidesAboutCaptionsTextAndLength) {
    StartWriting("COLOCAR_ETIQUETA_FRASES_TRADUZIDAS_SIMBOLOS 0\nSAIDA_TEXTO_FRASES_TRADUZIDAS_SIMBOLOS 1\n");
    EXPECT_EQ(Image(3).imageText, "");
    EXPECT_EQ(Image(3).output, "quero água"_w);
    Click(COnScreenKeyIdentifier{0, 0, 3});
    EXPECT_EQ(Written(), "quero água "_w);
    EXPECT_EQ(view->Profiles().Active().properties.profileName, "generico");

    Options().Set(option::NUMERO_MAXIMO_IMAGENS_FRASES_PREDITAS, 1);
    Press(vk::Backspace);
    frame.listener->OnDraw();
    EXPECT_EQ(Image(3).description, "");
}

TEST_F(PictogramTest, APictogramTakesThePlaceOfWhatItsWordsBegan) {
    StartWriting();
    Type("olá. que"_w);
    services.cooperation.up = true;
    Click(COnScreenKeyIdentifier{0, 0, 3});
    EXPECT_EQ(Written(), "olá. "_w);
    EXPECT_EQ(Image(1).description, "") << "a partner's suggestions go after a selection";
}

} // namespace
} // namespace ondrilo
