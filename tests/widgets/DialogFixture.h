#pragma once

#include "dialogs/BaseDialog.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeMessageBoxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace ondrilo {

/// What dialogs need of the program, and a person who works the one in front.
class DialogFixture : public testing::Test {
  protected:
    void Show(QDialog& dialog) {
        shown = &dialog;
        dialog.show();
        dialog.activateWindow();
        WaitForFocus(dialog);
    }
    static void WaitForFocus(const QDialog& dialog) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return dialog.isAncestorOf(QApplication::focusWidget()); }));
    }
    /// The dialog that was shown, or the one that runs over it.
    [[nodiscard]] QWidget* Front() const {
        auto* running = QApplication::activeModalWidget();
        return running ? running : shown;
    }
    template <typename Widget>
    [[nodiscard]] Widget& Find(TextView name) const {
        const auto found = Front()->findChildren<Widget*>(QString::fromStdString(Text(name)));
        if (found.size() != 1)
            throw std::runtime_error(Text(name) + " is not there once");
        return *found.front();
    }
    void Click(TextView name) const { Find<QAbstractButton>(name).click(); }
    /// Keys into whatever has the focus.
    static void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }
    static void Type(TextView text) {
        for (const char c : text)
            QTest::keyClick(QApplication::focusWidget(), c);
    }
    [[nodiscard]] std::vector<Text> Shown() { return std::exchange(boxes.shown, {}); }

    FakeDesktop desktop;
    FakeMessageBoxes boxes;
    UserRecord record;
    DialogHost host{desktop, boxes, record};

  private:
    QWidget* shown = nullptr;
};

} // namespace ondrilo
