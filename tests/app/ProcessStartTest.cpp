#include "app/CTessivorApp.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <map>

namespace ondrilo {
namespace {

struct FakeLock : InstanceLock {
    [[nodiscard]] bool Acquire(const std::filesystem::path& newFile) override {
        file = newFile;
        return free;
    }
    bool free = true;
    std::filesystem::path file;
};

class ProcessStartTest : public testing::Test {
  protected:
    ProcessStartTest() {
        folder.Write("installed/geral.pal", "a 1\n");
        for (const char* file : {"a.EXE", "a.exe", "b.dll", "c.isu", "CAT_IMG_Casa/porta.bmp"})
            folder.Write(std::string("installed/") + file, "x");
        folder.Write("xdg/Norvane/Ondrilo 3.0/Settings",
                     "Path " + (folder.Path() / "installed").string() + "\n");
        folders.systemConfiguration = {folder.Path() / "nowhere", folder.Path() / "xdg"};
        folders.userData = folder.Path() / "home" / "data";
        folders.runtime = folder.Path() / "run";
    }
    CTessivorApp::Start Start() { return CTessivorApp(folders, lock, boxes).InitInstance(); }
    [[nodiscard]] bool HasData(const char* name) const {
        return std::filesystem::exists(folders.DataFolder() / name);
    }

    TemporaryFolder folder;
    UserFolders folders;
    FakeLock lock;
    FakeMessageBoxes boxes;
};

TEST_F(ProcessStartTest, TheFirstStartCopiesTheDeliveredFilesFlat) {
    EXPECT_EQ(Start(), CTessivorApp::Start::Ready);
    EXPECT_EQ(lock.file, folders.runtime / "ondrilo.lock");
    EXPECT_TRUE(HasData("geral.pal"));
    EXPECT_TRUE(HasData("a.EXE")) << "extensions are compared exactly";
    EXPECT_FALSE(HasData("a.exe") || HasData("b.dll") || HasData("c.isu"));
    EXPECT_FALSE(HasData("CAT_IMG_Casa"));
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ProcessStartTest, NothingIsCopiedWhenEitherFolderStands) {
    std::filesystem::create_directories(folders.DataFolder().parent_path());
    EXPECT_EQ(Start(), CTessivorApp::Start::Ready);
    EXPECT_FALSE(std::filesystem::exists(folders.DataFolder()));
}

TEST_F(ProcessStartTest, ASecondStartTouchesNothing) {
    lock.free = false;
    EXPECT_EQ(Start(), CTessivorApp::Start::AlreadyRunning);
    EXPECT_FALSE(std::filesystem::exists(folders.userData));
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ProcessStartTest, AMissingInstallationIsToldTwiceAndEndsTheStart) {
    folders.systemConfiguration.pop_back();
    EXPECT_EQ(Start(), CTessivorApp::Start::Failed);
    EXPECT_EQ(
        boxes.shown,
        (std::vector<Text>{Text("O Ondrilo não se encontra correctamente instalado neste computador!"_w),
                           Text("Não foi possível copiar os ficheiros do Ondrilo para este utilizador."_w)}));
}

TEST_F(ProcessStartTest, SettingsThatTellNoFolderOrAnEmptyOneLetTheStartGoOn) {
    for (const char* settings : {"", "Path\n", "Path /no/such/folder\n"}) {
        std::filesystem::remove_all(folders.userData);
        folder.Write("xdg/Norvane/Ondrilo 3.0/Settings", settings);
        EXPECT_EQ(Start(), CTessivorApp::Start::Ready) << settings;
        EXPECT_TRUE(std::filesystem::is_empty(folders.DataFolder())) << settings;
    }
}

TEST(UserFoldersTest, FollowTheDesktopsVariablesAndTheirFallBacks) {
    std::map<std::string, std::string> variables{{"HOME", "/home/ana"}};
    auto variable = [&variables](const std::string& name) {
        return variables[name];
    };
    auto folders = UserFolders::FromEnvironment(variable);
    EXPECT_EQ(folders.DataFolder(), "/home/ana/.local/share/Norvane/Ondrilo 3.0");
    EXPECT_EQ(folders.systemConfiguration, (std::vector<std::filesystem::path>{"/etc/xdg"}));

    variables["XDG_DATA_HOME"] = "/data";
    variables["XDG_CONFIG_DIRS"] = "/a:relative:/b";
    variables["XDG_RUNTIME_DIR"] = "/run/user/7";
    folders = UserFolders::FromEnvironment(variable);
    EXPECT_EQ(folders.DataFolder(), "/data/Norvane/Ondrilo 3.0");
    EXPECT_EQ(folders.systemConfiguration, (std::vector<std::filesystem::path>{"/a", "/b"}));
    EXPECT_EQ(folders.LockFile(), "/run/user/7/ondrilo.lock");
}

} // namespace
} // namespace ondrilo
