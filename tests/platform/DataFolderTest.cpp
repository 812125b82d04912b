#include "platform/DataFolder.h"

#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DataFolderTest : public testing::Test {
  protected:
    TemporaryFolder folder;
    DataFolder data{folder.Path()};
};

TEST_F(DataFolderTest, ALookUpForgivesOnlyCaseAndPrefersTheExactNameWhichIsUtf8OnDisk) {
    for (const char* name : {"CAT_IMG_Casa/Chão.BMP", "Letras.tec", "letras.tec"})
        folder.Write(name, "");
    EXPECT_EQ(data.Find("cat_img_casa\\CHÃO.bmp"_w), folder.Path() / "CAT_IMG_Casa" / "Chão.BMP");
    EXPECT_EQ(data.Find("letras.tec"), folder.Path() / "letras.tec");
    EXPECT_EQ(data.Find("LETRAS.TEC"), folder.Path() / "Letras.tec");
    EXPECT_EQ(data.Find("outra.tec"), folder.Path() / "outra.tec");
    EXPECT_EQ(data.Path("CAT_IMG_Casa\\CHÃO.bmp"_w), folder.Path() / "CAT_IMG_Casa" / "CHÃO.bmp");
    EXPECT_EQ(data.Path(""), folder.Path());
}

TEST_F(DataFolderTest, ListsAreSortedWithoutRegardToCaseAndHoldOnlyWhatCanBeNamedAgain) {
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
