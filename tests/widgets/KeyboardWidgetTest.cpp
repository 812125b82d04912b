#include "keyboards/ui/KeyboardWidget.h"

#include "platform/qt/QtTextMeasure.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeSounds.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/widgets/Images.h"

#include <QAccessible>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Milliseconds kDot{300}, kRest{400}, kRepeat{4000}, kDwellStep{25};

class KeyboardWidgetTest : public testing::Test {
  protected:
    KeyboardWidgetTest() {
        std::filesystem::create_directories(folder.Path() / "CAT_IMG_Casa");
        SavePicture(folder.Path() / "CAT_IMG_Casa/porta.bmp", {20, 20}, Qt::green);
        folder.Write("k.tec", "LINHA um\nGRUPO a\nTECLA TECLA_NORMAL a letra;;;a a\n"
                              "TECLA TECLA_NORMAL b letra;;;b b 0 -1 -1\n"
                              "LINHA dois\nGRUPO b\nTECLA TECLA_PREDICAO\nTECLA TECLA_PREDICAO_IMAGEM\n");
        settings.font = {"DejaVu Sans", 10};
        settings.backgroundColor = 0xFFFFFF;
        settings.predictionBackground = 0xFFFFFF;
        settings.keySound = true;
        settings.hoverSpeechLimit = 2;
        keyboard.Open(folder.Path() / "k.tec", settings);
        keyboard.LayOut(text, pictures);
        window = std::make_unique<KeyboardWidget>(keyboard, queue, timers, sounds, data, pictures, nullptr);
        QCursor::setPos(790, 590); // away from the keys: one under the pointer is lit
        window->move(0, 0);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    QWidget* KeyWidget(const char* name) { return window->findChild<QWidget*>(name); }
    std::vector<MessageEvent> Posted() {
        std::vector<MessageEvent> posted;
        queue.Drain([&](const MessageEvent& event) { posted.push_back(event); });
        return posted;
    }
    static QAccessibleInterface* Accessible(QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget);
    }
    static void Enter(QWidget* widget, QPoint position = {1, 1}) {
        QEnterEvent event(position, position, position);
        QApplication::sendEvent(widget, &event);
    }
    static void Leave(QWidget* widget) {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(widget, &event);
    }
    static QImage ImageOf(QWidget* widget) { return widget->grab().toImage(); }
    static MessageEvent Press(int button) { return {Message::UM_KEY_PRESS, 0, button}; }

    TemporaryFolder folder;
    const DataFolder data{folder.Path()};
    KeyboardSettings settings;
    QtTextMeasure text;
    QtPictures pictures{data};
    MessageQueue queue;
    FakeTimers timers;
    FakeSounds sounds;
    COnScreenKeyboard keyboard;
    std::unique_ptr<KeyboardWidget> window;
};

TEST_F(KeyboardWidgetTest, EachKeyIsAButtonForAssistiveProgramsAtThePlaceOfTheLayout) {
    auto* key = KeyWidget("key_0_0_0");
    ASSERT_TRUE(key);
    EXPECT_EQ(Accessible(key)->role(), QAccessible::Button);
    ASSERT_TRUE(Accessible(key)->actionInterface());
    Accessible(key)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(Posted(), ElementsAre(Press(0))) << "an assistive program presses like the mouse";
    EXPECT_EQ(Accessible(key)->text(QAccessible::Name), "letra a");
    EXPECT_EQ(key->focusPolicy(), Qt::NoFocus);
    const auto place = keyboard.PlaceOf({1, 0, 1});
    EXPECT_EQ(KeyWidget("key_1_0_1")->geometry(), QRect(place.x, place.y, place.width, place.height));

    keyboard.SetDescription({1, 0, 0}, "olá"_w);
    EXPECT_EQ(Accessible(KeyWidget("key_1_0_0"))->text(QAccessible::Name), "olá");
}

TEST_F(KeyboardWidgetTest, EachButtonPostsItsPressAndAFastSecondPressCountsToo) {
    auto* key = KeyWidget("key_0_0_0");
    QTest::mouseClick(key, Qt::RightButton);
    QTest::mouseClick(key, Qt::MiddleButton);
    EXPECT_THAT(sounds.played, IsEmpty()) << "only the left button answers";
    EXPECT_THAT(Posted(), ElementsAre(Press(1), Press(2)));

    QTest::mouseClick(key, Qt::LeftButton);
    QTest::mouseDClick(key, Qt::LeftButton);
    EXPECT_EQ(sounds.played.size(), 2U);
    EXPECT_THAT(Posted(), ElementsAre(Press(0), Press(0), MessageEvent{Message::UM_KEY_DOUBLE_CLICK}));

    QTest::mouseDClick(KeyWidget("key_0_0_1"), Qt::LeftButton);
    EXPECT_THAT(Posted(), IsEmpty()) << "an inactive key posts nothing";
}

TEST_F(KeyboardWidgetTest, ThePressDotLeavesTheKeyAsItWasUntilItGoes) {
    auto* key = KeyWidget("key_0_0_0");
    const auto rest = ImageOf(key);
    QTest::mousePress(key, Qt::LeftButton);
    const auto pressed = ImageOf(key);
    EXPECT_NE(pressed, rest);

    keyboard.SetLabel({0, 0, 0}, "z");
    EXPECT_EQ(ImageOf(key), pressed);
    timers.Fire(kDot);
    EXPECT_NE(ImageOf(key), pressed);
    EXPECT_NE(ImageOf(key), rest);
}

TEST_F(KeyboardWidgetTest, AKeyThatGoesTakesItsPressDotAndHoverWithIt) {
    QTest::mousePress(KeyWidget("key_0_0_0"), Qt::LeftButton);
    Enter(KeyWidget("key_0_0_0"));
    keyboard.Open(folder.Path() / "k.tec", settings);
    keyboard.LayOut(text, pictures);
    Posted();
    timers.Fire(kDot);
    timers.Fire(kRest);
    EXPECT_THAT(Posted(), IsEmpty());
    EXPECT_FALSE(keyboard.Key({0, 0, 0}).pressDotShowing);

    window.reset();
    keyboard.SetLabel({0, 0, 0}, "z");
}

TEST_F(KeyboardWidgetTest, RestingOnAKeyLightsItAndAsksForSpeechAsOftenAsTheProfileSays) {
    auto* key = KeyWidget("key_0_0_0");
    const auto rest = ImageOf(key);
    Enter(key);
    EXPECT_NE(ImageOf(key), rest);
    timers.Fire(kRest);
    timers.Fire(kRepeat);
    timers.Fire(kRepeat);
    const MessageEvent hover{Message::UM_KEY_HOVER};
    EXPECT_THAT(Posted(), ElementsAre(hover, hover));

    Leave(key);
    EXPECT_EQ(ImageOf(key), rest);
}

TEST_F(KeyboardWidgetTest, APointerThatComesOrMovesStartsTheRingAndOneThatWasThereDoesNot) {
    settings.dwellTime = 400;
    keyboard.ApplySettings(settings);
    auto* key = KeyWidget("key_0_0_0");
    Enter(key, QCursor::pos());
    timers.Fire(kDwellStep);
    EXPECT_EQ(keyboard.Key({0, 0, 0}).dwell, 0) << "the pointer was there before the keyboard";
    const auto lit = ImageOf(key);

    QMouseEvent move(QEvent::MouseMove, {5, 5}, {5, 5}, Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(key, &move);
    timers.Fire(kDwellStep);
    const auto first = ImageOf(key);
    EXPECT_NE(first, lit);
    timers.Fire(kDwellStep);
    EXPECT_NE(ImageOf(key), first) << "it grows";

    Leave(key);
    Enter(key, {9, 9});
    EXPECT_EQ(ImageOf(key), lit);
    window->move(3, 3);
    QApplication::processEvents();
    timers.Fire(kDwellStep);
    EXPECT_EQ(ImageOf(key), lit) << "the window moved under the pointer";
}

TEST_F(KeyboardWidgetTest, APredictedPictogramIsReadOnceForEachLabel) {
    auto* key = KeyWidget("key_1_0_1");
    keyboard.SetLabel({1, 0, 1}, "CAT_IMG_Casa\\porta.bmp");
    EXPECT_GT(CountPixels(ImageOf(key), qRgb(0, 255, 0)), 100);

    std::filesystem::remove(folder.Path() / "CAT_IMG_Casa/porta.bmp");
    pictures.Clear();
    keyboard.SetHighlighted({{1, 0, 1}}, true);
    EXPECT_GT(CountPixels(ImageOf(key), qRgb(0, 255, 0)), 100);
    keyboard.SetLabel({1, 0, 1}, "");
    EXPECT_EQ(CountPixels(ImageOf(key), qRgb(0, 255, 0)), 0);
}

TEST_F(KeyboardWidgetTest, OnlyTheKeyThatChangedIsRepainted) {
    QApplication::processEvents();
    const PaintCounter changed(KeyWidget("key_1_0_0")), other(KeyWidget("key_0_0_0")), whole(window.get());
    keyboard.SetLabel({1, 0, 0}, "casa");
    keyboard.SetLabel({1, 0, 0}, "casa");
    QApplication::processEvents();
    EXPECT_EQ(changed.paints, 1);
    EXPECT_EQ(other.paints + whole.paints, 0);
}

} // namespace
} // namespace ondrilo
