#include "app/SessionKindNotice.h"
#include "tests/support/FakeFrameWindow.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <map>

namespace ondrilo {
namespace {

SessionKind KindWith(const std::map<std::string, std::string>& variables) {
    return SessionKind::FromEnvironment([&](const std::string& name) {
        const auto variable = variables.find(name);
        return variable == variables.end() ? std::string() : variable->second;
    });
}

TEST(SessionKind, AWaylandSessionIsToldInABoxOnceAndThenInTheStatusLine) {
    const TemporaryFolder folder;
    const DataFolder data(folder.Path());
    FakeMessageBoxes boxes;
    Journal journal;
    FakeFrameWindow frame(journal);
    TellSessionKind(KindWith({{"XDG_SESSION_TYPE", "x11"}, {"DISPLAY", ":0"}}), data, boxes, frame);
    EXPECT_TRUE(boxes.shown.empty() && frame.statusMessages.empty());

    TellSessionKind(KindWith({{"XDG_SESSION_TYPE", "wayland"}}), data, boxes, frame);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_THAT(boxes.shown.front(), testing::HasSubstr("X11"));
    frame.statusMessages.clear();
    TellSessionKind(KindWith({{"WAYLAND_DISPLAY", "wayland-0"}}), data, boxes, frame);
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_THAT(frame.statusMessages, testing::ElementsAre(testing::HasSubstr("X11")));
}

} // namespace
} // namespace ondrilo
