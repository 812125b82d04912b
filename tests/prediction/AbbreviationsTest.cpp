#include "prediction/CAbbreviationExpansionSet.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

class Abbreviations : public testing::Test {
  protected:
    void Load(TextView bytes) { abbreviations.Load(folder.Write("ana.abr", bytes)); }

    TemporaryFolder folder;
    CAbbreviationExpansionSet abbreviations;
};

TEST_F(Abbreviations, AnExpansionKeepsItsBlanksAndTheMatchIsExact) {
    Load("bd bom   dia \r\n\nso\n  obg \t muito obrigado\r\n");
    EXPECT_EQ(abbreviations.Find("bd"), "bom   dia ");
    EXPECT_EQ(abbreviations.Find("obg"), "muito obrigado");
    EXPECT_EQ(abbreviations.Find("Bd"), std::nullopt);
    EXPECT_EQ(abbreviations.Entries().size(), 2U) << "a line of one field is no entry";
    Load("lg " + Text(76, 'x') + "b c\n"); // too long for one read
    EXPECT_EQ(abbreviations.Find("lg"), Text(76, 'x'));
    EXPECT_EQ(abbreviations.Find("b"), "c");
}

TEST_F(Abbreviations, TheFileIsWrittenByBucketAndWithinOneInTheOrderOfEntry) {
    Load("");
    // Hashes modulo 17: "a" 12, "b" 13, "r" and "\x83" 12 again.
    abbreviations.Set("b", "1");
    abbreviations.Set("r", "2");
    abbreviations.Set("a", "3");
    abbreviations.Set("\x83", "4");
    abbreviations.Set("r", "5");
    EXPECT_TRUE(abbreviations.Save());
    EXPECT_EQ(folder.Read("ana.abr"), "a 3\n\x83 4\nr 5\nb 1\n");
    EXPECT_FALSE(abbreviations.Changed());
}

TEST_F(Abbreviations, OnlyARealRemovalIsAChange) {
    Load("bd bom dia\n");
    abbreviations.Remove("obg");
    EXPECT_FALSE(abbreviations.Changed());
    abbreviations.Remove("bd");
    EXPECT_TRUE(abbreviations.Changed());
    abbreviations.Reload();
    EXPECT_EQ(abbreviations.Find("bd"), "bom dia");
    EXPECT_FALSE(abbreviations.Changed());
}

TEST_F(Abbreviations, ASetThatGoesSavesItself) {
    const auto path = folder.Path() / "ana.abr";
    {
        CAbbreviationExpansionSet leaving;
        leaving.Load(path);
        leaving.Set("bd", "bom dia");
    }
    EXPECT_EQ(folder.Read("ana.abr"), "bd bom dia\n");
    { CAbbreviationExpansionSet neverLoaded; }
}

} // namespace
} // namespace ondrilo
