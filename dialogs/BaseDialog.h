#pragma once

#include "platform/Desktop.h"
#include "platform/Dialogs.h"
#include "platform/UserRecord.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

namespace ondrilo {

/// What dialogs need of the program around them. All of it outlives every dialog.
struct DialogHost {
    Desktop& desktop;
    MessageBoxes& boxes;
    UserRecord& record;
};

/// The numbers under which the configurator's records know the dialogs.
enum class DialogNumber {
    About = 100,
    ChooseProfile = 130,
    NewProfile,
    Password,
    SystemOptions,
    ProfileOptions,
    NewTimeSpan,
    Words,
    Sentences,
    Abbreviations,
    WordSimulator,
    SpeechExceptions,
    Metrics,
};

/// The base of all dialogs: the person's content above a row of buttons, at whose left end there is room for
/// a small button of the records. Recorded when it opens and closes, top-most, as large as its content but
/// never larger than the screen, where the content scrolls; over the dialog that opened it, if any; the focus
/// goes back to where it was. Escape and closing the window cancel.
class BaseDialog : public QDialog {
    Q_OBJECT

  public:
    /// `objectName` by which tests and assistive programs know it.
    BaseDialog(const DialogHost& host, DialogNumber number, const char* objectName, const QString& title);

    /// Shows the dialog and waits for its end; true on OK.
    [[nodiscard]] bool Run();
    void setVisible(bool visible) override;

  protected:
    /// Fills the room above the buttons; once, with all that is in it.
    void SetContent(QWidget* content);
    /// "OK" and "Cancelar" at first, with the object names "okButton" and "cancelButton". OK calls TryAccept.
    [[nodiscard]] QDialogButtonBox& Buttons() { return *buttons; }
    /// Closes with OK if what was chosen may stand; tells what is in the way otherwise.
    virtual void TryAccept() { accept(); }
    /// Tells what is in the way of OK, and goes back to the text that is.
    void Refuse(TextView reason, QLineEdit& field);

    DialogHost host;

  private:
    void FitScreen();

    DialogNumber number;
    QVBoxLayout* rows = new QVBoxLayout(this);
    QHBoxLayout* lastRow = new QHBoxLayout;
    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
};

} // namespace ondrilo
