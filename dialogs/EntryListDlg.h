#pragma once

#include "dialogs/BaseDialog.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>

namespace ondrilo {

/// Lists entries with a value each, a row an entry, and lets the person add, change and remove them. Each
/// change goes to the list at once.
class EntryListDlg : public BaseDialog {
    Q_OBJECT

  public:
    /// `entries` outlives the dialog.
    EntryListDlg(const DialogHost& host, EntryList& entries);

  protected:
    /// Enter goes on to the next step instead of closing the dialog.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    [[nodiscard]] QWidget* CreateContent();
    [[nodiscard]] QWidget* CreateValueBox();
    void FillRows();

    void Add();
    void ChangeSelected(TextView value);
    void RemoveSelected();
    void ShowSelected();
    void Find(const QString& text);

    void Select(int row);
    [[nodiscard]] int RowOf(TextView name) const;
    [[nodiscard]] const ListedEntry& At(int row) const { return listed[static_cast<std::size_t>(row)]; }

    EntryList& entries;
    std::vector<ListedEntry> listed; ///< in the order of the rows
    QLineEdit* nameField = new QLineEdit;
    QLineEdit* findField = new QLineEdit;
    QListWidget* rows = new QListWidget;
    /// One of the two is the box of the value, the other is null.
    QSpinBox* numberBox = nullptr;
    QLineEdit* textBox = nullptr;
    QWidget* valueBox;
};

} // namespace ondrilo
