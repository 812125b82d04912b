#include "platform/qt/KeyRepeats.h"

#include <QKeyEvent>
#include <QTest>
#include <QTextEdit>
#include <gtest/gtest.h>

#include <string>

namespace ondrilo {
namespace {

class Editor : public QTextEdit {
  public:
    std::string told;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        told += event->isAutoRepeat() ? "again " : "down ";
        QTextEdit::keyPressEvent(event);
    }
    void keyReleaseEvent(QKeyEvent*) override { told += "up "; }
};

TEST(KeyRepeatsTest, AKeyIsPressedOnceUntilItIsReleased) {
    const KeyRepeats repeats;
    Editor editor;
    editor.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&editor));
    const auto send = [&editor](QEvent::Type type, quint32 scanCode, const QString& text) {
        QKeyEvent event(type, Qt::Key_A, Qt::NoModifier, scanCode, 0, 0, text);
        QCoreApplication::sendEvent(editor.windowHandle(), &event);
    };
    for (const auto type : {QEvent::KeyPress, QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress})
        send(type, 38, "a");
    EXPECT_EQ(editor.told, "down again up down ");
    send(QEvent::KeyPress, 39, "s");
    EXPECT_EQ(editor.told, "down again up down down ") << "another key";
    EXPECT_EQ(editor.toPlainText(), "aaas") << "a held key still writes again and again";

    // What an input method sends has no key.
    send(QEvent::KeyPress, 0, "x");
    send(QEvent::KeyPress, 0, "x");
    QEvent away(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(qApp, &away);
    send(QEvent::KeyPress, 38, "a");
    EXPECT_EQ(editor.told, "down again up down down down down down ") << "nobody told of the release";
}

} // namespace
} // namespace ondrilo
