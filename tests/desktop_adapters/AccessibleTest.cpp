#include "Support.h"
#include "platform/qt/AccessibleBus.h"
#include "platform/qt/QtDesktop.h"
#include "platform/x11/X11KeyOutput.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTextEdit>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <csignal>

namespace ondrilo {

void PrintTo(const Point& point, std::ostream* out) {
    *out << "(" << point.x << ", " << point.y << ")";
}

int ShowTextBoxes(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(kTextBoxes);
    QVBoxLayout layout(&window);
    QTextEdit text;
    text.setTabChangesFocus(true);
    layout.addWidget(&text);
    QLineEdit password;
    password.setEchoMode(QLineEdit::Password);
    layout.addWidget(&password);
    window.show();
    return QApplication::exec();
}

namespace {

QDBusMessage Ask(const QDBusConnection& bus, const char* service, const char* path, const char* method) {
    return bus.call(QDBusMessage::createMethodCall(service, path, service, method));
}

/// Some programs that start before this is so stay silent.
bool SomebodyListens() {
    const auto address = Ask(QDBusConnection::sessionBus(), "org.a11y.Bus", "/org/a11y/bus", "GetAddress");
    const auto bus = QDBusConnection::connectToBus(address.arguments().value(0).toString(), "test");
    const auto events =
        Ask(bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "GetRegisteredEvents");
    const auto list = events.arguments().value(0).value<QDBusArgument>();
    if (events.type() != QDBusMessage::ReplyMessage)
        return false;
    list.beginArray();
    return !list.atEnd();
}

/// Somebody else's program into which keys are typed.
class AnotherProgram : public testing::Test {
  protected:
    AnotherProgram() {
        SetLayout("pt");
        isReady = Eventually(SomebodyListens);
    }

    void Start(const std::vector<std::string>& command, TextView title) {
        program = std::make_unique<ChildProcess>(command);
        window = WaitForWindow(desktop, title);
        ASSERT_TRUE(isReady && GiveFocus(desktop, window));
        texts.Follow(desktop.ProcessOf(window));
        ASSERT_TRUE(Eventually([this] { return IsInside(texts.CaretPosition()); }));
    }

    [[nodiscard]] bool IsInside(Point point) const { return desktop.ClientArea(window).Contains(point); }
    /// Waits for the caret to stand right of a place, and tells where.
    Point CaretRightOf(Point place) const {
        EXPECT_TRUE(Eventually([&] { return texts.CaretPosition().x > place.x; })) << place.x;
        EXPECT_TRUE(IsInside(texts.CaretPosition()));
        return texts.CaretPosition();
    }
    /// Reads until it is so: a busy machine brings keys later than the program seems to rest.
    void ExpectParagraph(TextView text, std::size_t cursor) {
        AccessibleText::Paragraph read;
        EXPECT_TRUE(Eventually([&] {
            bool isRead = false;
            texts.ReadParagraph([&](const auto& paragraph) {
                read = paragraph;
                isRead = true;
            });
            return Eventually([&] { return isRead; }) && read.text == text && read.cursor == cursor;
        })) << ToUtf8(read.text)
            << " " << read.cursor;
    }

    QtDesktop desktop;
    X11KeyOutput keys;
    AccessibleBus texts;
    std::unique_ptr<ChildProcess> program;
    WindowId window = 0;
    bool isReady = false;
};

struct Editor {
    const char* name;
    std::vector<std::string> command;
    TextView title;
};
void PrintTo(const Editor& editor, std::ostream* out) {
    *out << editor.name;
}

class AnyEditor : public AnotherProgram, public testing::WithParamInterface<Editor> {};

INSTANTIATE_TEST_SUITE_P(
    OfEachToolkit, AnyEditor,
    testing::Values(Editor{"GTK3", {"mousepad", "--disable-server"}, "Untitled 1 - Mousepad"},
                    Editor{"Qt5", {"featherpad", "-s"}, "Untitled"},
                    Editor{"Qt6", Ourselves({kTextBoxes}), kTextBoxes}),
    [](const auto& row) { return row.param.name; });

TEST_P(AnyEditor, TellsTheCaretsPlaceAndTheRealTextAfterKeysAndClicks) {
    Start(GetParam().command, GetParam().title);
    const Point empty = texts.CaretPosition();
    Type(keys, "Olá"_w);
    ExpectParagraph("Olá"_w, 3);
    const Point afterWord = CaretRightOf(empty);
    Type(keys, ",\u00A0avó €"_w); // as browsers write a blank at an end
    ExpectParagraph("Olá, avó €"_w, 10);
    CaretRightOf(afterWord);
    Tap(keys, {vk::Enter});
    EXPECT_TRUE(Eventually([&] { return texts.CaretPosition().x < afterWord.x; }));
    ExpectParagraph("", 0);
    Type(keys, "à noite"_w);
    Tap(keys, {vk::Home, vk::Right});
    ExpectParagraph("à noite"_w, 1);
    Tap(keys, {vk::Up, vk::End, vk::Left});
    ExpectParagraph("Olá, avó €"_w, 9);

    Click(desktop, {afterWord.x, afterWord.y + 5});
    EXPECT_TRUE(Eventually([&] { return std::abs(texts.CaretPosition().x - afterWord.x) <= 1; }));
    ExpectParagraph("Olá, avó €"_w, 3);
}

class ABox : public AnotherProgram {
  protected:
    ABox() { Start(Ourselves({kTextBoxes}), kTextBoxes); }
};

TEST_F(ABox, IsToldToBeSecretAsLongAsAPasswordIsWrittenThere) {
    Type(keys, "um");
    ExpectParagraph("um", 2);
    EXPECT_FALSE(texts.IsPassword());
    bool hasMoved = false;
    texts.OnCaretMoved([&](bool isElsewhere) { hasMoved |= isElsewhere; });
    Tap(keys, {vk::Tab});
    ASSERT_TRUE(Eventually([&] { return texts.IsPassword() && hasMoved; }));
    bool isRead = false;
    texts.ReadParagraph([&](const auto&) { isRead = true; });
    Type(keys, "dois");
    PassTime(300);
    EXPECT_TRUE(texts.IsPassword());
    EXPECT_FALSE(isRead);
    Tap(keys, {vk::Tab});
    EXPECT_TRUE(Eventually([&] { return !texts.IsPassword(); }));
    ExpectParagraph("um", 2);
}

TEST_F(ABox, ThatHangsOrDiesHoldsUpNobody) {
    Type(keys, "um");
    ExpectParagraph("um", 2);
    const auto process = static_cast<pid_t>(desktop.ProcessOf(window));
    kill(process, SIGSTOP);
    Type(keys, " dois");
    QElapsedTimer time;
    time.start();
    texts.Follow(static_cast<std::uint32_t>(process));
    texts.ReadParagraph([](const auto&) { FAIL() << "nobody could tell"; });
    EXPECT_EQ(texts.CaretPosition(), Point());
    EXPECT_LT(time.elapsed(), 20);
    PassTime(200);
    kill(process, SIGCONT);
    ExpectParagraph("um dois", 7);
    program.reset();
    texts.ReadParagraph([](const auto&) { FAIL() << "nobody could tell"; });
    EXPECT_TRUE(Eventually([&] {
        texts.Follow(static_cast<std::uint32_t>(process));
        return !texts.IsPassword();
    }));
    PassTime(300);
    EXPECT_EQ(texts.CaretPosition(), Point());
}

} // namespace
} // namespace ondrilo
