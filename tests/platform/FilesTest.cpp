#include "platform/DataFolder.h"
#include "platform/FileStore.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

namespace ondrilo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

class FilesTest : public testing::Test {
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
    DataFolder data{folder.Path()};
};

TEST_F(FilesTest, TellsAMissingFileFromAnEmptyAndFromOneThatCannotBeRead) {
    folder.Write("a", "");
    ASSERT_EQ(::mkfifo(At("tubo").c_str(), 0600), 0); // must not freeze the reader
    const std::tuple<fs::path, ReadState, bool> rows[] = {
        {At("b"), ReadState::Missing, false},       {At("a"), ReadState::Complete, true},
        {At("a") / "b", ReadState::Missing, false}, {At("tubo"), ReadState::Complete, true},
        {folder.Path(), ReadState::Broken, false},  {"/proc/self/mem", ReadState::Broken, true},
    };
    for (const auto& [path, state, opened] : rows) {
        EXPECT_EQ(ReadFile(path).state, state) << path;
        EXPECT_EQ(ReadFile(path).CouldOpen(), opened) << path;
    }
}

TEST_F(FilesTest, KeepsEveryByteOfABigFile) {
    Text bytes;
    for (int i = 0; i < 300000; ++i)
        bytes += static_cast<char>(i * 7);
    ASSERT_TRUE(ReplaceFile(At("ana.pal"), bytes));
    EXPECT_EQ(ReadFile(At("ana.pal")).bytes, bytes);
    EXPECT_THAT(Names(), ElementsAre("ana.pal")) << "no temporary file is left";
}

TEST_F(FilesTest, AFullDiskKeepsTheOldFileAndIsTold) {
    folder.Write("ana.pal", "casa 3\n");
    {
        const FullDisk disk(1000);
        EXPECT_EQ(ReplaceFile(At("ana.pal"), Text(5000, 'x')).problem,
                  "Não foi possível guardar o ficheiro ana.pal"_w);
    }
    EXPECT_EQ(folder.Read("ana.pal"), "casa 3\n");
    EXPECT_THAT(Names(), ElementsAre("ana.pal")) << "half a file is not left behind";
    EXPECT_TRUE(ReplaceFile(At("ana.pal"), "nova 1\n")) << "once there is room again";
}

TEST_F(FilesTest, AFolderOrAFileThatIsWriteProtectedOrNotThereStaysAsItIsAndIsTold) {
    EXPECT_FALSE(ReplaceFile(At("não") / "configsis", "x"));
    if (::geteuid() == 0)
        GTEST_SKIP() << "the superuser may write anywhere";
    fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(ReplaceFile(At("ana.pal"), "x"));
    fs::permissions(folder.Path(), fs::perms::owner_all);
    fs::permissions(folder.Write("fixo.cfg", "velho"), fs::perms::owner_read);
    EXPECT_FALSE(ReplaceFile(At("fixo.cfg"), "novo"));
    EXPECT_EQ(folder.Read("fixo.cfg"), "velho");
}

TEST_F(FilesTest, TheRightsOfAFileStayAndANewOneHasThoseThatThePersonWants) {
    fs::permissions(folder.Write("a", "velho"), fs::perms{0640});
    const mode_t before = ::umask(027);
    EXPECT_TRUE(ReplaceFile(At("b"), "novo"));
    ::umask(before);
    EXPECT_TRUE(ReplaceFile(At("a"), "novo"));
    for (const char* name : {"a", "b"})
        EXPECT_EQ(fs::status(At(name)).permissions(), fs::perms{0640}) << name;
}

TEST_F(FilesTest, AFileThatCannotBeReadIsSetAsideAndNeverOverwritten) {
    for (const char* lost : {"um", "dois"}) {
        fs::remove(At("ana.pal"));
        folder.Write("ana.pal/dentro", lost);
        ASSERT_TRUE(ReplaceFile(At("ana.pal"), "casa 2\n"));
    }
    EXPECT_EQ(folder.Read("ana.pal"), "casa 2\n");
    const auto names = Names();
    ASSERT_EQ(names.size(), 3U) << "the second one does not take the first one's name";
    EXPECT_THAT(names[1], MatchesRegex("ana\\.pal\\.ilegivel-[0-9]*-[0-9-]*"));
    EXPECT_EQ(folder.Read(names[1] + "/dentro"), "um");
}

TEST_F(FilesTest, ALinkKeepsPointingAtTheFileThatIsReplaced) {
    folder.Write("longe/ana.pal", "velho");
    fs::create_symlink(At("longe") / "ana.pal", At("ana.pal"));
    ASSERT_TRUE(ReplaceFile(At("ana.pal"), "novo"));
    EXPECT_TRUE(fs::is_symlink(At("ana.pal")));
    EXPECT_EQ(folder.Read("longe/ana.pal"), "novo");
}

TEST_F(FilesTest, ALookUpForgivesOnlyCaseAndPrefersTheExactNameWhichIsUtf8OnDisk) {
    for (const char* name : {"CAT_IMG_Casa/Chão.BMP", "Letras.tec", "letras.tec"})
        folder.Write(name, "");
    EXPECT_EQ(data.Find("cat_img_casa\\CHÃO.bmp"_w), folder.Path() / "CAT_IMG_Casa" / "Chão.BMP");
    EXPECT_EQ(data.Find("letras.tec"), folder.Path() / "letras.tec");
    EXPECT_EQ(data.Find("LETRAS.TEC"), folder.Path() / "Letras.tec");
    EXPECT_EQ(data.Find("outra.tec"), folder.Path() / "outra.tec");
    EXPECT_EQ(data.Path("CAT_IMG_Casa\\CHÃO.bmp"_w), folder.Path() / "CAT_IMG_Casa" / "CHÃO.bmp");
    EXPECT_EQ(data.Path(""), folder.Path());
}

TEST_F(FilesTest, ListsAreSortedWithoutRegardToCaseAndHoldOnlyWhatCanBeNamedAgain) {
    for (const char* name :
         {"zebra.tec", "Beta.TEC", "alfa.tec", "água.tec", "alfa.cfg", "字.tec", "CAT_IMG_b/x.bmp"})
        folder.Write(name, "");
    std::filesystem::create_directories(folder.Path() / "CAT_IMG_A");
    std::filesystem::create_directories(folder.Path() / "pasta.tec");
    EXPECT_THAT(data.Files(".tec"), ElementsAre("alfa.tec", "Beta.TEC", "zebra.tec", "água.tec"_w));
    EXPECT_THAT(data.Folders("CAT_IMG_"), ElementsAre("CAT_IMG_A", "CAT_IMG_b"));
    EXPECT_THAT(DataFolder(folder.Path() / "nada").Files(""), IsEmpty());
}

} // namespace
} // namespace ondrilo
