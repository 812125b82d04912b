#include "dialogs/options/CUserProfileOptionsPSheet.h"
#include "dialogs/options/ColorField.h"
#include "tests/support/FakeSpeechEngine.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/widgets/DialogFixture.h"

#include <QColorDialog>
#include <QTimer>

#include <memory>

namespace ondrilo {
namespace {

struct Choices : ProfileOptionSources {
    [[nodiscard]] std::vector<Text> KeyNames() const override { return {"Tab", "F11", "F12", "Num5"}; }
    [[nodiscard]] std::vector<Text> KeyboardNames() const override { return {"Numeros", "QwertySimples"}; }
    [[nodiscard]] SpeechEngine& Speech() const override { return speech; }
    [[nodiscard]] const DataFolder& Folder() const override { return data; }

    mutable FakeSpeechEngine speech;
    TemporaryFolder folder;
    DataFolder data{folder.Path()};
};

struct ProfileOptionsTest : DialogFixture {
    ProfileOptionsTest() { choices.speech.voices = {"Voz da Casa"}; }
    void Open() {
        sheet =
            std::make_unique<CUserProfileOptionsPSheet>(PersonalOptions{properties, access}, choices, host);
        Show(*sheet);
    }

    CUserProfileProperties properties;
    CAccessOptions access;
    Choices choices;
    std::unique_ptr<CUserProfileOptionsPSheet> sheet;
};

/// What the person could do to a control, whatever it is; false if it does not let itself be changed.
bool Change(QWidget* control) {
    if (auto* number = qobject_cast<QSpinBox*>(control))
        return number->stepBy(number->value() < number->maximum() ? 1 : -1), true;
    if (auto* choice = qobject_cast<QComboBox*>(control))
        return choice->setCurrentIndex(choice->currentIndex() == 0 ? 1 : 0), true;
    if (auto* line = qobject_cast<QLineEdit*>(control)) {
        line->selectAll();
        return QTest::keyClicks(line, "3,5"), true;
    }
    if (auto* color = qobject_cast<ColorField*>(control)) {
        QTimer::singleShot(0, color, [color] {
            auto* chooser = color->findChild<QColorDialog*>();
            chooser->setCurrentColor(QColor(1, 2, 3));
            chooser->accept();
        });
        return color->click(), true;
    }
    if (auto* list = qobject_cast<QListWidget*>(control)) {
        auto* add = list->window()->findChild<QAbstractButton*>("add_" + list->objectName());
        QTimer::singleShot(0, list,
                           [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept(); });
        return add->click(), true;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(control))
        return button->click(), true;
    for (auto* radio : control->findChildren<QAbstractButton*>())
        if (!radio->isChecked())
            return radio->click(), true;
    return false;
}

Text LineOf(const Text& file, TextView key) {
    const auto start = file.find(Text(key) + " ");
    return file.substr(start, file.find('\n', start) - start);
}

TEST_F(ProfileOptionsTest, EachOptionHasOneControlWhoseChangeReachesItsOwnLineOfTheFile) {
    for (const auto& row : kProfileOptions) {
        properties = {};
        const auto before = properties.Format();
        Open();
        auto& control = Find<QWidget>(row.key);
        ASSERT_TRUE(Change(&control)) << row.key;
        EXPECT_FALSE(control.accessibleName().isEmpty()) << row.key;
        EXPECT_EQ(properties.Format(), before) << "before OK";
        Click("okButton");
        auto after = properties.Format();
        EXPECT_NE(LineOf(after, row.key), LineOf(before, row.key));
        after.replace(after.find(LineOf(after, row.key)), LineOf(after, row.key).size(),
                      LineOf(before, row.key));
        EXPECT_EQ(after, before) << "another option changed with " << row.key;
    }
}

TEST_F(ProfileOptionsTest, CancelLeavesEverythingAsItWas) {
    const auto before = properties.Format() + access.Format();
    Open();
    for (const auto key : {"ALTURA_TECLAS", "NOME_TECLADO", "TIPO_PREENCHIMENTO_TECLA", "TEMPO_PERMANENCIA"})
        Change(&Find<QWidget>(key));
    Click("cancelButton");
    EXPECT_EQ(properties.Format() + access.Format(), before);
}

TEST_F(ProfileOptionsTest, ValuesOfAnotherHandSurviveUntouchedAndOnlyTimesAreBroughtToTheirStep) {
    properties.Parse("ALTURA_TECLAS 900\nALTURA_EDITOR_MENSAGENS -3\nTECLAS_COMPLETAR 7\nSOM_TECLAS 5\n"
                     "COR_FUNDO -1\nTIPO_LETRA Tipo;;;Raro\nNOME_SINTETIZADOR_FALA Voz;;;Levada\n"
                     "NOME_TECLADO Perdido\nMETODO_VARRIMENTO\nTIPO_PREENCHIMENTO_TECLA 2\n"
                     "LATITUDE_LOCAL_FISICO -123.456789\nINTERVALOS_TEMPO_SABADO ;8:00;;x\n"
                     "TEMPO_DE_PREDICAO 5000\n");
    const auto before = properties.Format();
    properties.Parse("VELOCIDADE_VARRIMENTO 2960\nLATENCIA_INTERRUPTORES_VARRIMENTO -100\n");
    access.Parse("TEMPO_PERMANENCIA 1234");
    Open();
    EXPECT_EQ(Find<QComboBox>("NOME_TECLADO").currentText(), "Perdido (não disponível)");
    EXPECT_EQ(Find<QSpinBox>("ALTURA_TECLAS").value(), 900);
    Click("okButton");
    EXPECT_EQ(properties.Get(option::VELOCIDADE_VARRIMENTO), 3000);
    EXPECT_EQ(properties.Get(option::LATENCIA_INTERRUPTORES_VARRIMENTO), 0);
    EXPECT_EQ(access.DwellTime(), 1200);
    properties.Set(option::LATENCIA_INTERRUPTORES_VARRIMENTO, 100);
    EXPECT_EQ(properties.Format(), before);
}

TEST_F(ProfileOptionsTest, TheKeyboardAloneReachesAPageAndATypedTimeIsBroughtToTicks) {
    Open();
    Find<QListWidget>("areas").setFocus();
    Type("Varr");
    auto& speed = Find<QSpinBox>("VELOCIDADE_VARRIMENTO");
    ASSERT_TRUE(speed.isVisible());
    for (int tabs = 0; tabs < 10 && !speed.hasFocus(); ++tabs)
        Press(Qt::Key_Tab);
    ASSERT_TRUE(speed.hasFocus());
    speed.selectAll();
    Type("1260\r");
    EXPECT_EQ(sheet->result(), QDialog::Accepted);
    EXPECT_EQ(properties.Get(option::VELOCIDADE_VARRIMENTO), 1300);
}

TEST_F(ProfileOptionsTest, TimeSpansAreRemovedOnlyWhenOneIsChosenAndTheAnswerIsYes) {
    properties.Set(option::INTERVALOS_TEMPO_SABADO, "08:00-09:00;10:00-11:00;22:00-02:00");
    properties.Set(option::IDENTIFICADOR_ETIQUETA_BLUETOOTH, "a b");
    Open();
    auto& list = Find<QListWidget>("INTERVALOS_TEMPO_SABADO");
    Click("remove_INTERVALOS_TEMPO_DOMINGO");
    list.setCurrentRow(0, QItemSelectionModel::NoUpdate); // as the focus does
    Click("remove_INTERVALOS_TEMPO_SABADO");
    list.setCurrentRow(1);
    boxes.answers = {Answer::No, Answer::Yes, Answer::Yes};
    Click("remove_INTERVALOS_TEMPO_SABADO");
    EXPECT_EQ(list.count(), 3);
    Click("remove_INTERVALOS_TEMPO_SABADO");
    EXPECT_EQ(list.currentRow(), 0);
    Click("clearTags");
    const Text question = "Quer mesmo apagar este intervalo de tempo?";
    EXPECT_EQ(
        boxes.shown,
        (std::vector<Text>{"Lista vazia!", "Seleccione primeiro um intervalo de tempo.", question, question,
                           "Quer mesmo apagar limpar as etiquetas bluetooth associadas a este perfil?"}));
    Click("okButton");
    EXPECT_EQ(properties.Get(option::INTERVALOS_TEMPO_SABADO), "08:00-09:00;22:00-02:00");
    EXPECT_EQ(properties.Get(option::IDENTIFICADOR_ETIQUETA_BLUETOOTH), "");
}

TEST_F(ProfileOptionsTest, AVoiceThatIsNotListedStaysChosenAndVoicesMayComeLate) {
    properties.Set(option::NOME_SINTETIZADOR_FALA, "Voz Tardia");
    access.SetCueVoice("Voz Levada");
    choices.speech.voices.clear();
    Open();
    EXPECT_EQ(Find<QComboBox>("NOME_SINTETIZADOR_FALA").currentText(), "Voz Tardia");
    Click("okButton");
    EXPECT_EQ(properties.Get(option::NOME_SINTETIZADOR_FALA), "Voz Tardia");

    Open();
    choices.speech.voices = {"Voz da Casa", "Voz Tardia"};
    const auto& voice = Find<QComboBox>("NOME_SINTETIZADOR_FALA");
    ASSERT_TRUE(QTest::qWaitFor([&] { return voice.count() == 3; }));
    EXPECT_EQ(voice.itemText(0), "Nenhum");
    EXPECT_EQ(voice.currentText(), "Voz Tardia");
    EXPECT_EQ(Find<QComboBox>("VOZ_PISTAS").currentText(), "Voz Levada (não disponível)");
    Click("okButton");
    EXPECT_EQ(properties.Get(option::NOME_SINTETIZADOR_FALA), "Voz Tardia");
    EXPECT_EQ(access.CueVoice(), "Voz Levada");
}

TEST_F(ProfileOptionsTest, AVoiceIsTriedInTheMannerOfTheDraftAndAbsentValuesStayAbsent) {
    access.Parse("TOM_FALA 20\nVOLUME_PISTAS -30\n");
    const auto before = access.Format();
    Open();
    Click("hearVoice");
    Click("speechExceptions");
    const Text noVoice("Não se encontra selecionado um sintetizador de falar!"_w);
    EXPECT_EQ(boxes.shown, (std::vector{noVoice, noVoice}));
    EXPECT_TRUE(choices.speech.said.empty());

    Find<QComboBox>("NOME_SINTETIZADOR_FALA").setCurrentIndex(1);
    Click("TOM_FALA_absent");
    Click("VOLUME_FALA_absent");
    Find<QSpinBox>("VOLUME_FALA").setValue(70);
    Click("hearVoice");
    EXPECT_EQ(choices.speech.said.back().voice, "Voz da Casa");
    EXPECT_EQ(choices.speech.said.back().manner, (SpeechManner{std::nullopt, std::nullopt, 70}));
    Click("hearCue");
    EXPECT_EQ(choices.speech.said.back().manner.volume, -30);
    EXPECT_EQ(access.Format(), before);
    Click("okButton");
    EXPECT_EQ(access.Format(), "VOLUME_FALA 70\nVOLUME_PISTAS -30\n");
}

} // namespace
} // namespace ondrilo
