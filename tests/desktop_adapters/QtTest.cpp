#include "Support.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtConversion.h"
#include "platform/qt/QtPictures.h"
#include "platform/qt/QtQueuePump.h"
#include "platform/qt/QtTextMeasure.h"
#include "platform/qt/QtTimerService.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <thread>

namespace ondrilo {
namespace {

TEST(Conversion, EveryByteOfTheCodePageSurvivesQt) {
    Text all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(FromQString(ToQString(all)), all);
    EXPECT_EQ(FromQString(QString::fromUtf8("Ω a")), "? a");
}

TEST(Timers, TicksKeepTheirPaceAlsoInsideADialogOfATickAndEndWithTheirTimer) {
    using namespace std::chrono_literals;
    QtClock clock;
    QtTimerService timers(clock);
    int ticks = 0;
    bool wentOnInside = false;
    const auto start = clock.Monotonic();
    std::unique_ptr<Timer> timer = timers.Start(10ms, [&] {
        if (++ticks == 1)
            wentOnInside = Eventually([&] { return ticks >= 3; });
        else if (ticks == 5)
            timer.reset();
    });
    EXPECT_TRUE(Eventually([&] { return !timer; }));
    EXPECT_GE(clock.Monotonic() - start, 50ms) << "ticks came in a bunch";
    EXPECT_TRUE(wentOnInside);
    int shots = 0;
    const auto once = timers.After(1ms, [&] { ++shots; });
    timers.After(1ms, [&] { shots += 100; }).reset();
    PassTime(50);
    EXPECT_EQ(shots, 1);
    EXPECT_EQ(ticks, 5);
}

TEST(Pump, WhatIsPostedAnywhereIsHandledInOrderAlsoInsideADialogOfAHandler) {
    MessageQueue queue;
    std::vector<int> handled;
    bool wentOnInside = false;
    const QtQueuePump pump(queue, [&](const MessageEvent& event) {
        handled.push_back(event.first);
        if (event.first == 1)
            wentOnInside = Eventually([&] { return handled.size() == 3; });
    });
    std::thread([&queue] {
        for (int i = 1; i <= 3; ++i)
            queue.Post(Message::UM_CHAR, i);
    }).join();
    EXPECT_TRUE(handled.empty()) << "posting never runs a handler";
    EXPECT_TRUE(Eventually([&] { return handled.size() == 3; }));
    EXPECT_TRUE(wentOnInside);
    EXPECT_EQ(handled, (std::vector<int>{1, 2, 3}));
}

TEST(Measures, AFontThatIsNotInstalledIsMeasuredWithAnother) {
    const QtTextMeasure measure;
    const Font missing{"No Such Font", 20};
    EXPECT_GT(measure.Width(missing, "palavra"), measure.Width(missing, "pal"));
    EXPECT_GT(measure.LineHeight(missing), measure.LineHeight({"No Such Font", 10}));
    EXPECT_GT(measure.LineHeight({"No Such Font", 0}), 0) << "a size that files can hold and Qt refuses";
}

TEST(Pictures, APictogramIsFoundWithoutRegardToCaseAndABrokenOneIsNone) {
    const TemporaryFolder folder;
    folder.Write("CAT_IMG_Casa/broken.bmp", "no picture");
    QImage(40, 30, QImage::Format_RGB32)
        .save(QString::fromStdString((folder.Path() / "CAT_IMG_Casa/Porta.BMP").string()), "BMP");
    QtPictures pictures(DataFolder(folder.Path()));
    EXPECT_EQ(pictures.SizeOf("CAT_IMG_Casa\\porta.bmp"), (Size{40, 30}));
    EXPECT_EQ(pictures.SizeOf("CAT_IMG_Casa\\broken.bmp"), std::nullopt);
    EXPECT_TRUE(pictures.Load("CAT_IMG_Casa\\missing.bmp").isNull());
    std::filesystem::remove(folder.Path() / "CAT_IMG_Casa/Porta.BMP");
    EXPECT_FALSE(pictures.Load("CAT_IMG_Casa\\porta.bmp").isNull()) << "kept in memory";
    pictures.Clear();
    EXPECT_TRUE(pictures.Load("CAT_IMG_Casa\\porta.bmp").isNull());
}

} // namespace
} // namespace ondrilo
