#include "Support.h"
#include "platform/qt/AccessibleBus.h"
#include "platform/qt/QtDesktop.h"
#include "platform/x11/X11KeyOutput.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTextEdit>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <optional>

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

/// Programs that start before this is so stay silent.
bool ProgramsAreAskedToTell() {
    auto call = QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus",
                                               "org.freedesktop.DBus.Properties", "Get");
    call.setArguments({"org.a11y.Status", "IsEnabled"});
    const QDBusReply<QDBusVariant> on = QDBusConnection::sessionBus().call(call);
    return on.isValid() && on.value().variant().toBool();
}

/// Somebody else's program into which keys are typed.
class AnotherProgram : public testing::Test {
  protected:
    AnotherProgram() {
        SetLayout("pt");
        isReady = Eventually(ProgramsAreAskedToTell);
    }

    void Start(const std::vector<std::string>& command, TextView title) {
        program = std::make_unique<ChildProcess>(command);
        window = WaitForWindow(desktop, title);
        ASSERT_TRUE(isReady && GiveFocus(desktop, window));
        texts.Follow(desktop.ProcessOf(window));
        ASSERT_TRUE(Eventually([this] { return IsInside(texts.CaretPosition()); }));
    }

    void Type(TextView text) {
        for (const char c : text)
            keys.TypeCharacter(c);
    }
    void Tap(std::initializer_list<int> codes) {
        for (const int code : codes) {
            keys.KeyDown(code);
            keys.KeyUp(code);
        }
    }
    [[nodiscard]] bool IsInside(Point point) const { return desktop.ClientArea(window).Contains(point); }
    /// Waits for the caret to stand right of a place, and tells where.
    Point CaretRightOf(Point place) const {
        EXPECT_TRUE(Eventually([&] { return texts.CaretPosition().x > place.x; })) << place.x;
        EXPECT_TRUE(IsInside(texts.CaretPosition()));
        return texts.CaretPosition();
    }
    [[nodiscard]] std::optional<AccessibleText::Paragraph> Read() {
        std::optional<AccessibleText::Paragraph> read;
        texts.ReadParagraph([&](const auto& paragraph) { read = paragraph; });
        static_cast<void>(Eventually([&] { return read.has_value(); }));
        return read;
    }
    void ExpectParagraph(TextView text, std::size_t cursor) {
        const auto read = Read().value_or(AccessibleText::Paragraph{"no answer"});
        EXPECT_EQ(ToUtf8(read.text), ToUtf8(text));
        EXPECT_EQ(read.cursor, cursor);
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
    Type("Olá"_w);
    const Point afterWord = CaretRightOf(empty);
    Type(", avó €"_w);
    CaretRightOf(afterWord);
    ExpectParagraph("Olá, avó €"_w, 10);
    Tap({vk::Enter});
    EXPECT_TRUE(Eventually([&] { return texts.CaretPosition().x < afterWord.x; }));
    ExpectParagraph("", 0);
    Type("à noite"_w);
    Tap({vk::Home, vk::Right});
    ExpectParagraph("à noite"_w, 1);
    Tap({vk::Up, vk::End, vk::Left});
    ExpectParagraph("Olá, avó €"_w, 9);

    const auto click = "xdotool mousemove " + std::to_string(afterWord.x) + " " +
                       std::to_string(afterWord.y + 5) + " click 1";
    ASSERT_EQ(std::system(click.c_str()), 0);
    EXPECT_TRUE(Eventually([&] { return std::abs(texts.CaretPosition().x - afterWord.x) <= 1; }));
    ExpectParagraph("Olá, avó €"_w, 3);
}

class ABox : public AnotherProgram {
  protected:
    ABox() { Start(Ourselves({kTextBoxes}), kTextBoxes); }
};

TEST_F(ABox, IsToldToBeSecretAsLongAsAPasswordIsWrittenThere) {
    Type("um");
    ExpectParagraph("um", 2);
    EXPECT_FALSE(texts.IsPassword());
    Tap({vk::Tab});
    ASSERT_TRUE(Eventually([&] { return texts.IsPassword(); }));
    bool isRead = false;
    texts.ReadParagraph([&](const auto&) { isRead = true; });
    Type("dois");
    PassTime(300);
    EXPECT_TRUE(texts.IsPassword());
    EXPECT_FALSE(isRead);
    Tap({vk::Tab});
    EXPECT_TRUE(Eventually([&] { return !texts.IsPassword(); }));
    ExpectParagraph("um", 2);
}

TEST_F(ABox, ThatHangsOrDiesHoldsUpNobody) {
    Type("um");
    ExpectParagraph("um", 2);
    const auto process = static_cast<pid_t>(desktop.ProcessOf(window));
    kill(process, SIGSTOP);
    Type(" dois");
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
