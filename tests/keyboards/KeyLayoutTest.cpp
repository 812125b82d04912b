#include "keyboards/KeyLayout.h"

#include "keyboards/KeyboardFile.h"
#include "tests/support/FakeMeasures.h"

#include <gtest/gtest.h>

#include <climits>

namespace ondrilo {
namespace {

COnScreenKey MakeKey(KeyType type, TextView label = {}, TextView output = {}) {
    COnScreenKey key;
    for (const auto& row : kKeyTypes)
        if (row.type == type)
            key.data.type = row.fileWord;
    key.data.label = label;
    key.data.output = output;
    key.letters = static_cast<int>(label.size());
    return key;
}

COnScreenKey Letter(TextView label) {
    return MakeKey(KeyType::Normal, label);
}

const COnScreenKey kBlank = MakeKey(KeyType::Empty);

class KeyLayout : public testing::Test {
  protected:
    KeyLayout() {
        settings.keyHeight = 50;
        settings.imageHeight = 70;
        pictures.sizes["p.bmp"] = {120, 40};
    }

    [[nodiscard]] Size Natural(const COnScreenKey& key) const {
        return NaturalSize(key, settings, MeasureKeys({}, text, pictures));
    }
    [[nodiscard]] Size NaturalOfLetters(KeyType type, int letters) const {
        COnScreenKey key = MakeKey(type);
        key.letters = letters;
        return Natural(key);
    }
    void AddLine(const std::vector<std::vector<COnScreenKey>>& groups) {
        lines.emplace_back();
        for (const auto& keys : groups)
            lines.back().groups.emplace_back().keys = keys;
    }
    void LayOut() { size = LayOutKeys(lines, settings, MeasureKeys({}, text, pictures)); }

    FakeTextMeasure text;
    FakePictureMeasure pictures;
    KeyboardSettings settings;
    std::vector<COnScreenKeyLine> lines;
    Size size;
};

TEST_F(KeyLayout, TheOutputFixesTheWidthWhateverTheLabel) {
    const auto width = [this](TextView output) {
        return Natural(MakeKey(KeyType::Normal, "abc", output)).width;
    };
    settings.keyHeight = 45;
    EXPECT_EQ(width("Shift"), 45);
    EXPECT_EQ(width("BkSp"), 90);
    EXPECT_EQ(width("Space"), 225);
    EXPECT_EQ(width("[Sintetizar-Fala-Frase]"), 67) << "one and a half, truncated";
    EXPECT_EQ(width("[Enviar-Mensagem-Editor_Externo]"), 90);
    EXPECT_EQ(width("[Sair-Aplicação]"_w), 45);
    EXPECT_EQ(width("shift"), 3 * 8 + 20) << "names are compared exactly";
}

TEST_F(KeyLayout, PictogramKeysKeepTheProportionsOfTheJoinedPicture) {
    EXPECT_EQ(Natural(MakeKey(KeyType::Image, "p.bmp:falta.bmp")), (Size{210, 90}));
    EXPECT_EQ(Natural(MakeKey(KeyType::Image, "falta.bmp")), (Size{20, 20}));
    EXPECT_EQ(Natural(MakeKey(KeyType::Normal, "falta.bmp", "x")), (Size{9 * 8 + 20, 20}));
    EXPECT_EQ(Natural(MakeKey(KeyType::Normal, "p.bmp", "x")).height, 50);
}

TEST_F(KeyLayout, PredictionKeysAreAsLargeAsWhatTheyMayHold) {
    EXPECT_EQ(NaturalOfLetters(KeyType::WordPrediction, 17), (Size{15 * 17 + 20, 50}));
    EXPECT_EQ(NaturalOfLetters(KeyType::ImagePrediction, 0), (Size{70, 90}));
    settings.sentencePictograms = 4;
    EXPECT_EQ(NaturalOfLetters(KeyType::ImageSentencePrediction, 0), (Size{300, 90}));
    EXPECT_EQ(NaturalOfLetters(KeyType::Empty, 0), (Size{20, 20}));
    EXPECT_EQ(Natural(COnScreenKey{}), (Size{20, 20})) << "an unknown type";
    text.averageWidth = 5;
    EXPECT_EQ(NaturalOfLetters(KeyType::WordPrediction, 1).width, 7 + 20) << "7.5 pixels, truncated";
}

TEST_F(KeyLayout, ASentenceKeyGrowsInHeightInsteadOfPastFourHundred) {
    settings.sentenceKeyHeight = 0;
    EXPECT_EQ(NaturalOfLetters(KeyType::SentencePrediction, 10), (Size{170, 2 * 16}));
    EXPECT_EQ(NaturalOfLetters(KeyType::SentencePrediction, 83), (Size{400, (1265 / 400 + 1) * 16}));
    settings.sentenceKeyHeight = 100;
    EXPECT_EQ(NaturalOfLetters(KeyType::SentencePrediction, 83), (Size{400, 100}));
}

TEST_F(KeyLayout, EmptyGroupsAndLinesStillTakeTheirGaps) {
    settings.lineGap = 3;
    settings.groupGap = 5;
    settings.keyGap = 2;
    LayOut();
    EXPECT_EQ(size, (Size{0, 6})) << "no lines, but two gaps";
    AddLine({{Letter("a"), Letter("b")}, {}, {Letter("c")}});
    AddLine({});
    AddLine({{Letter("d")}});
    LayOut();
    EXPECT_EQ(lines[0].groups[0].keys[1].place, (Rectangle{30, 0, 28, 50}));
    EXPECT_EQ(lines[0].groups[1].place, (Rectangle{63, 0, 0, 0}));
    EXPECT_EQ(lines[0].groups[2].place, (Rectangle{68, 0, 28, 50}));
    EXPECT_EQ(lines[1].place, (Rectangle{0, 56, 0, 0}));
    EXPECT_EQ(lines[2].place, (Rectangle{0, 59, 28, 50}));
    EXPECT_EQ(size, (Size{96, 112}));
}

TEST_F(KeyLayout, TheFirstKeyTakesWhatStretchingCannotShare) {
    settings.stretchLines = true;
    settings.minimumWidth = 3 * 28 + 20 + 10;
    AddLine({{kBlank, Letter("a")}, {Letter("b"), Letter("c")}});
    AddLine({{kBlank}});
    LayOut();
    EXPECT_EQ(lines[0].groups[0].keys[0].place, (Rectangle{0, 0, 20, 20})) << "empty keys keep their size";
    EXPECT_EQ(lines[0].groups[0].keys[1].place, (Rectangle{20, 0, 32, 50}));
    EXPECT_EQ(lines[0].groups[1].keys[1].place, (Rectangle{31, 0, 31, 50}));
    EXPECT_EQ(lines[1].place.width, 20) << "nothing in it can grow";
    EXPECT_EQ(size.width, 114);

    const Rectangle once = lines[0].groups[0].keys[1].place;
    LayOut();
    EXPECT_EQ(lines[0].groups[0].keys[1].place, once) << "laid out again";
    AddLine({{Letter("aaaaaaaaaaaaaaaaaa")}});
    LayOut();
    EXPECT_EQ(lines[0].place.width, 18 * 8 + 20) << "a wide line stretches the others too";
}

TEST_F(KeyLayout, KeysAreAsTallAsTheirLineOrAsTheTallestIfHeightsAreEqual) {
    AddLine({{MakeKey(KeyType::Image, "p.bmp"), Letter("a")}});
    AddLine({{Letter("b"), kBlank}});
    LayOut();
    EXPECT_EQ(lines[0].groups[0].keys[1].place.height, 90);
    EXPECT_EQ(size.height, 90 + 50);
    settings.equalLineHeights = true;
    LayOut();
    EXPECT_EQ(lines[1].groups[0].keys[0].place.height, 90);
    EXPECT_EQ(lines[1].groups[0].keys[1].place.height, 20);
    EXPECT_EQ(size.height, 180);
}

TEST_F(KeyLayout, HugeNumbersInFilesDoNotOverflow) {
    settings.keyHeight = settings.imageHeight = settings.keyGap = settings.lineGap = INT_MAX;
    settings.sentencePictograms = settings.groupGap = INT_MAX;
    pictures.sizes["p.bmp"] = {INT_MAX, 1};
    for (std::size_t i = 0; i < kMaximumLines; ++i) {
        AddLine({std::vector(kMaximumKeys, MakeKey(KeyType::ImageSentencePrediction)),
                 std::vector(kMaximumKeys, MakeKey(KeyType::Image, "p.bmp:p.bmp"))});
        lines.back().groups[0].keys[0].letters = INT_MIN;
    }
    LayOut();
    EXPECT_GT(size.width, 0);
    EXPECT_GT(size.height, 0);
    settings.keyHeight = INT_MIN;
    LayOut();
}

} // namespace
} // namespace ondrilo
