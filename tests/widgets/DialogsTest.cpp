#include "dialogs/CNewUserProfileDlg.h"
#include "dialogs/CSystemChangesPasswordDlg.h"
#include "dialogs/CSystemOptionsDlg.h"
#include "dialogs/CUserDlg.h"
#include "platform/qt/PortugueseTexts.h"
#include "tests/widgets/DialogFixture.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QScreen>
#include <QTimer>
#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Sources : SystemOptionSources {
    [[nodiscard]] std::vector<Text> ProfileNames() const override { return {"generico", "ana"}; }
    [[nodiscard]] std::vector<Text> GpsPorts() const override { return {"com1", "com2"}; }
    [[nodiscard]] std::vector<Text> BluetoothMechanisms() const override { return {Text("Inquérito"_w)}; }
    [[nodiscard]] Text ChooseProfile() override { return profile; }
    [[nodiscard]] bool PassesLock() override { return passes; }
    Text profile;
    bool passes = false;
};

class DialogsTest : public DialogFixture {
  protected:
    /// Runs a dialog while the person does something in it; what they leave open is cancelled.
    bool Run(BaseDialog& dialog, const std::function<void()>& person) {
        QTimer::singleShot(0, &dialog, [&] {
            WaitForFocus(dialog);
            person();
            if (dialog.isVisible())
                dialog.reject();
        });
        return dialog.Run();
    }
};

TEST_F(DialogsTest, ATypedNameChoosesTheFirstRowThatBeginsWithItAndNoOther) {
    CUserDlg dialog(host, {"generico", "Ana", "ana-maria", "ana"});
    EXPECT_TRUE(Run(dialog, [&] {
        Type("ax");
        Press(Qt::Key_Tab);
        Press(Qt::Key_Return);
        EXPECT_THAT(boxes.shown, ElementsAre("Não existe nenhum utilizador com esse nome!"_w))
            << "a row that merely has the focus is not chosen";
        EXPECT_TRUE(dialog.isVisible());
        Type("a"); // over the refused text
        EXPECT_EQ(dialog.Name(), "ana-maria");
        Type("na");
        Press(Qt::Key_Return);
    }));
    EXPECT_EQ(dialog.Name(), "ana") << "a whole name comes before one that it begins";
    EXPECT_FALSE(Run(dialog, [] { Press(Qt::Key_Escape); }));
}

TEST_F(DialogsTest, ANameThatIsObjectedToStaysOpenAndATrimmedOneIsTaken) {
    CNewUserProfileDlg dialog(host, [](TextView name) { return name == "ana" ? Text("Existe.") : Text(); });
    EXPECT_TRUE(Run(dialog, [&] {
        Type(" ana ");
        Press(Qt::Key_Return);
        EXPECT_THAT(boxes.shown, ElementsAre("Existe."));
        Type(" rui ");
        Press(Qt::Key_Return);
    }));
    EXPECT_EQ(dialog.Name(), "rui");
}

class SystemOptionsDialogTest : public DialogsTest {
  protected:
    bool Edit(const std::function<void()>& person) {
        CSystemOptionsDlg dialog(host, options, sources);
        return Run(dialog, person);
    }
    CSystemOptions options;
    Sources sources;
};

TEST_F(SystemOptionsDialogTest, WhatIsNoneOfTheChoicesIsKeptAndCancelKeepsEverything) {
    options.Parse(
        "PERFIL_UTILIZADOR_ARRANQUE rui\nPORTA_GPS COM1\nPAPEL_COMUNICACAO_COOPERATIVA 1\n"
        "NOME_SERVIDOR_COMUNICACAO_COOPERATIVA sala\nLISTA_PRIORIDADES_ADAPTACAO_CONTEXTO ana;;;rui\n");
    const auto before = options.Format();
    EXPECT_TRUE(Edit([this] {
        EXPECT_FALSE(Find<QLineEdit>("serverName").isEnabled());
        Click("okButton");
    }));
    EXPECT_EQ(options.Format(), before);

    const auto change = [this] {
        for (const auto* name : {"contextAdaptation", "adaptWhenLeaving", "clientRole", "clearSuggestions"})
            Click(name);
        Find<QComboBox>("gpsPort").setCurrentText("com2");
        Find<QLineEdit>("serverName").setText("outra");
    };
    EXPECT_FALSE(Edit(change));
    EXPECT_EQ(options.Format(), before);
    EXPECT_TRUE(Edit([&] {
        change();
        Click("okButton");
    }));
    EXPECT_EQ(options.Format(),
              "ADAPTACAO_CONTEXTO 1\nMODO_PROCURA_ETIQUETAS_BLUETOOTH \nPORTA_GPS com2\n"
              "ALTERACOES_SISTEMA 1\nPAPEL_COMUNICACAO_COOPERATIVA 0\n"
              "NOME_SERVIDOR_COMUNICACAO_COOPERATIVA outra\nPERFIL_UTILIZADOR_ARRANQUE rui\n"
              "NOME_SERVIDOR_COMUNICACAO_COOPERATIVA outra\n"
              "LIMPAR_SUGESTOES_APOS_SELECCAO 0\nADAPTAR_APENAS_COM_PERFIL_GENERICO_ATIVO 1\n"
              "LISTA_PRIORIDADES_ADAPTACAO_CONTEXTO ana;;;rui\n");
}

TEST_F(SystemOptionsDialogTest, PrioritiesAreAddedOnceMovedAndRemovedOnlyWhereOneIsSelected) {
    const auto add = [&](const char* name) {
        sources.profile = name;
        Click("addPriority");
    };
    EXPECT_TRUE(Edit([&] {
        Click("lowerPriority");
        for (const auto* name : {"ana", "", "rui", "ana", "eva"})
            add(name);
        Find<QListWidget>("priorities").clearSelection();
        Click("removePriority");
        Find<QListWidget>("priorities").setCurrentRow(2);
        for (const auto* name : {"raisePriority", "raisePriority", "raisePriority", "lowerPriority"})
            Click(name); // eva ends between ana and rui
        boxes.answers = {Answer::No, Answer::Yes};
        Click("removePriority");
        Click("removePriority");
        Click("lowerPriority"); // the row before is selected
        Click("okButton");
    }));
    EXPECT_THAT(boxes.shown,
                ElementsAre("Lista vazia!", "Esse perfil de utilizador já se encontra na lista! "_w,
                            "Seleccione primeiro um perfil de utilizador.",
                            "Quer mesmo retirar o perfil evada lista?",
                            "Quer mesmo retirar o perfil evada lista?"));
    EXPECT_THAT(options.GetPriorities(), ElementsAre("rui", "ana"));
}

TEST_F(SystemOptionsDialogTest, TheLockTurnsOnlyForWhoPassesItAndOnlyWithOk) {
    const auto turn = [&](bool passes, const char* end) {
        sources.passes = passes;
        (void)Edit([&] {
            Click("changesAllowed");
            Click(end);
        });
        return options.IsOn(system_option::ALTERACOES_SISTEMA);
    };
    EXPECT_TRUE(turn(false, "okButton"));
    EXPECT_TRUE(turn(true, "cancelButton"));
    EXPECT_FALSE(turn(true, "okButton"));
    EXPECT_FALSE(turn(false, "okButton"));
    EXPECT_TRUE(turn(true, "okButton"));
}

TEST_F(SystemOptionsDialogTest, ADialogInADialogIsCentredOnItAndGivesTheFocusBackToIt) {
    struct : UserRecord {
        void DialogOpened(int number) override { numbers.push_back(number); }
        void DialogClosed(int number) override { numbers.push_back(-number); }
        std::vector<int> numbers;
    } opened;
    const DialogHost host{desktop, boxes, opened};
    desktop.foreground = 77; // the outer dialog is not yet known to have the focus
    CSystemOptionsDlg outer(host, options, sources);
    (void)Run(outer, [&] {
        outer.move(60, 20);
        CSystemChangesPasswordDlg inner(host);
        EXPECT_TRUE(Run(inner, [&] {
            EXPECT_LE((inner.geometry().center() - outer.geometry().center()).manhattanLength(), 40);
            Press(Qt::Key_Return);
        }));
        EXPECT_EQ(desktop.foreground, outer.winId());
        outer.close();
    });
    EXPECT_EQ(desktop.foreground, 77U);
    EXPECT_THAT(opened.numbers, ElementsAre(133, 132, -132, -133));
}

TEST_F(SystemOptionsDialogTest, WithLargeLettersItFitsTheScreenAndTabReachesAndShowsEverything) {
    const auto font = QApplication::font();
    QApplication::setFont(QFont(font.family(), 30));
    (void)Edit([this] {
        const auto area = Front()->screen()->availableSize();
        EXPECT_LE(Front()->height(), area.height());
        EXPECT_LE(Front()->width(), area.width());
        EXPECT_EQ(Front()->focusWidget()->objectName(), "startProfile");
        QStringList reached;
        while (Front()->focusWidget()->objectName() != "okButton" && reached.size() < 20) {
            auto* focused = Front()->focusWidget();
            reached << focused->objectName();
            EXPECT_FALSE(focused->visibleRegion().isEmpty()) << reached.back().toStdString();
            Press(Qt::Key_Tab);
        }
        EXPECT_EQ(reached.back(), "changesAllowed");
        EXPECT_EQ(reached.size(), 14) << reached.join(' ').toStdString();
    });
    QApplication::setFont(font);
}

/// The texts of Qt's own that have no translation.
struct Untranslated : PortugueseTexts {
    [[nodiscard]] QString translate(const char* context, const char* source, const char* comment,
                                    int number) const override {
        auto text = PortugueseTexts::translate(context, source, comment, number);
        const bool isShown = QString(context) != "QShortcut" && !QString(source).startsWith("Alt+");
        if (text.isEmpty() && isShown && QString(context) != "QGuiApplication")
            missing.push_back(std::string(context) + ": " + source);
        return text;
    }
    mutable std::vector<std::string> missing;
};

TEST(QtsOwnDialogs, ChoosersAndMenusOfTextFieldsSpeakPortuguese) {
    Untranslated texts;
    QApplication::installTranslator(&texts);
    QFileDialog files(nullptr, "Ficheiro", {}, "Texto (*.txt)");
    files.setOption(QFileDialog::DontUseNativeDialog);
    files.show();
    files.setFileMode(QFileDialog::Directory);
    QColorDialog colours;
    colours.setOption(QColorDialog::DontUseNativeDialog);
    colours.show();
    QLineEdit line;
    line.createStandardContextMenu(); // the line's own
    QApplication::processEvents();
    EXPECT_THAT(texts.missing, IsEmpty());
    EXPECT_EQ(files.labelText(QFileDialog::FileName), "Pasta:");
}

} // namespace
} // namespace ondrilo
