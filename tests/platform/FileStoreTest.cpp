#include "platform/FileStore.h"

#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ondrilo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::MatchesRegex;

/// A device that fails after `bytes` written bytes, for as long as it lives.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        // The signal that comes with the limit would end the program.
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, SIG_DFL);
    }

  private:
    rlimit before{};
};

class FileStoreTest : public testing::Test {
  protected:
    [[nodiscard]] std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.Path()))
            names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }
    [[nodiscard]] fs::path At(const std::string& name) const { return folder.Path() / name; }

    TemporaryFolder folder;
};

TEST_F(FileStoreTest, TellsAMissingFileFromAnEmptyAndFromOneThatCannotBeRead) {
    const FileBytes missing = ReadFile(At("a"));
    EXPECT_EQ(missing.state, ReadState::Missing);
    EXPECT_FALSE(missing.CouldOpen());

    folder.Write("a", "");
    EXPECT_EQ(ReadFile(At("a")).state, ReadState::Complete);
    EXPECT_TRUE(ReadFile(At("a")).CouldOpen());
    EXPECT_EQ(ReadFile(At("a") / "b").state, ReadState::Missing) << "a file where the folder should be";

    EXPECT_EQ(ReadFile("/proc/self/mem").state, ReadState::Broken);
    EXPECT_EQ(ReadFile(folder.Path()).state, ReadState::Broken);
    EXPECT_FALSE(ReadFile(folder.Path()).CouldOpen());
}

TEST_F(FileStoreTest, KeepsEveryByteOfABigFile) {
    Text bytes;
    for (int i = 0; i < 300000; ++i)
        bytes += static_cast<char>(i * 7);
    ASSERT_TRUE(ReplaceFile(At("ana.pal"), bytes));
    EXPECT_EQ(ReadFile(At("ana.pal")).bytes, bytes);
    EXPECT_THAT(Names(), ElementsAre("ana.pal")) << "no temporary file is left";
}

TEST_F(FileStoreTest, AFullDiskKeepsTheOldFileAndIsTold) {
    folder.Write("ana.pal", "casa 3\n");
    SaveResult result;
    {
        const FileSizeLimit full(1000);
        result = ReplaceFile(At("ana.pal"), Text(5000, 'x'));
    }
    EXPECT_FALSE(result);
    EXPECT_EQ(result.problem, "Não foi possível guardar o ficheiro ana.pal"_w);
    EXPECT_EQ(folder.Read("ana.pal"), "casa 3\n");
    EXPECT_THAT(Names(), ElementsAre("ana.pal")) << "half a file is not left behind";
    EXPECT_TRUE(ReplaceFile(At("ana.pal"), "nova 1\n")) << "once there is room again";
}

TEST_F(FileStoreTest, AFolderThatIsNotThereIsTold) {
    EXPECT_EQ(ReplaceFile(At("não") / "configsis", "x").problem,
              "Não foi possível guardar o ficheiro configsis"_w);
}

TEST_F(FileStoreTest, AFolderOrAFileThatIsWriteProtectedStaysAsItIsAndIsTold) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "the superuser may write anywhere";
    fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(ReplaceFile(At("ana.pal"), "x"));
    fs::permissions(folder.Path(), fs::perms::owner_all);
    folder.Write("fixo.cfg", "velho");
    fs::permissions(At("fixo.cfg"), fs::perms::owner_read);
    EXPECT_FALSE(ReplaceFile(At("fixo.cfg"), "novo")) << "a write-protected file stays";
    EXPECT_EQ(folder.Read("fixo.cfg"), "velho");
}

TEST_F(FileStoreTest, TheRightsOfAFileStayAndANewOneHasThoseThatThePersonWants) {
    folder.Write("a", "velho");
    fs::permissions(At("a"), fs::perms{0640});
    ASSERT_TRUE(ReplaceFile(At("a"), "novo"));
    EXPECT_EQ(fs::status(At("a")).permissions(), fs::perms{0640});

    const mode_t before = ::umask(027);
    ASSERT_TRUE(ReplaceFile(At("b"), "novo"));
    ::umask(before);
    EXPECT_EQ(fs::status(At("b")).permissions(), fs::perms{0640});
}

TEST_F(FileStoreTest, AFileThatCannotBeReadIsSetAsideAndNeverOverwritten) {
    fs::create_directory(At("ana.pal"));
    folder.Write("ana.pal/dentro", "não se perde");
    ASSERT_TRUE(ReplaceFile(At("ana.pal"), "casa 1\n"));
    fs::remove(At("ana.pal"));
    fs::create_directory(At("ana.pal"));
    ASSERT_TRUE(ReplaceFile(At("ana.pal"), "casa 2\n"));

    EXPECT_EQ(folder.Read("ana.pal"), "casa 2\n");
    const auto names = Names();
    ASSERT_EQ(names.size(), 3U) << "the second one does not take the first one's name";
    EXPECT_THAT(names[1], MatchesRegex("ana\\.pal\\.ilegivel-[0-9]*-[0-9-]*"));
    EXPECT_EQ(folder.Read(names[1] + "/dentro"), "não se perde");
}

TEST_F(FileStoreTest, ALinkKeepsPointingAtTheFileThatIsReplaced) {
    folder.Write("longe/ana.pal", "velho");
    fs::create_symlink(At("longe") / "ana.pal", At("ana.pal"));
    ASSERT_TRUE(ReplaceFile(At("ana.pal"), "novo"));
    EXPECT_TRUE(fs::is_symlink(At("ana.pal")));
    EXPECT_EQ(folder.Read("longe/ana.pal"), "novo");
}

TEST_F(FileStoreTest, APipeOfThatNameDoesNotFreezeTheReader) {
    ASSERT_EQ(::mkfifo(At("tubo").c_str(), 0600), 0);
    EXPECT_EQ(ReadFile(At("tubo")).bytes, "");
}

} // namespace
} // namespace ondrilo
