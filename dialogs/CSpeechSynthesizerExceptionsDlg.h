#pragma once

#include "dialogs/BaseDialog.h"
#include "speech/CSpeechSynthesizer.h"

#include <QListWidget>

namespace ondrilo {

/// "Excepções do Sintetizador de Fala": what a voice says in place of which texts, a row each. Each change is
/// written at once; Cancel takes nothing back. The buttons say what is in the way.
class CSpeechSynthesizerExceptionsDlg : public BaseDialog {
    Q_OBJECT

  public:
    /// `engine` outlives the dialog.
    CSpeechSynthesizerExceptionsDlg(const DialogHost& host, SpeechEngine& engine, const DataFolder& folder,
                                    TextView voice, const SpeechManner& manner);
    void done(int result) override;

  protected:
    /// Enter goes on to the next step instead of closing the dialog.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct Exception {
        Text text, replacement;
    };

    [[nodiscard]] QWidget* CreateContent();
    void StartNew();
    void RemoveSelected();
    void Hear();

    /// The text of a new exception is complete.
    void EndText();
    /// What is said in place of the text on show is complete.
    void EndReplacement();
    void ShowSelected();

    void Select(int row);
    [[nodiscard]] int RowOf(TextView text) const;
    void Tell(const SaveResult& saved);

    CSpeechSynthesizer synthesizer;
    std::vector<Exception> listed; ///< in the order of the rows
    int shownRow = -1;             ///< the row whose exception the fields hold; -1 for none
    QListWidget* rows = new QListWidget;
    QLineEdit* textField = new QLineEdit; ///< read-only but for a new exception
    QLineEdit* replacementField = new QLineEdit;
};

} // namespace ondrilo
