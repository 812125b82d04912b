#include "tests/conformance/LayoutArea.h"

#include "keyboards/COnScreenKeyboard.h"
#include "keyboards/KeyLayout.h"

namespace ondrilo::conformance {
namespace {

Values BoxOf(const Rectangle& place) {
    return {Number(place.x), Number(place.y), Number(place.width), Number(place.height)};
}

std::size_t Index(const Arguments& arguments, std::size_t which) {
    return static_cast<std::size_t>(ToInteger(arguments.at(which)));
}

} // namespace

LayoutArea::LayoutArea(const std::filesystem::path& folder) {
    On("picture_size", [this](const Arguments& a) {
        pictures.sizes[a.at(0)] = {ToInteger(a.at(1)), ToInteger(a.at(2))};
        return Values{};
    });
    On("set", [this](const Arguments& a) {
        Set(a.at(0), ToInteger(a.at(1)));
        return Values{};
    });
    On("layout", [this, folder](const Arguments& a) { return LayOut(folder / ToUtf8(a.at(0))); });
    On("line_box", [this](const Arguments& a) { return BoxOf(lines.at(Index(a, 0)).place); });
    On("group_box",
       [this](const Arguments& a) { return BoxOf(lines.at(Index(a, 0)).groups.at(Index(a, 1)).place); });
    On("key_box", [this](const Arguments& a) {
        return BoxOf(lines.at(Index(a, 0)).groups.at(Index(a, 1)).keys.at(Index(a, 2)).place);
    });
}

int LayoutArea::ByteWidths::Width(const Font&, TextView text) const {
    int width = 0;
    for (const char c : text)
        width += 4 + static_cast<unsigned char>(c) % 7;
    return width;
}

std::optional<Size> LayoutArea::GivenPictures::SizeOf(TextView pictogram) const {
    const auto size = sizes.find(pictogram);
    if (size == sizes.end())
        return std::nullopt;
    return size->second;
}

void LayoutArea::Set(const Text& setting, int value) {
    const std::map<Text, int*> numbers{
        {"keyHeight", &settings.keyHeight},
        {"imageHeight", &settings.imageHeight},
        {"sentenceKeyHeight", &settings.sentenceKeyHeight},
        {"sentencePictograms", &settings.sentencePictograms},
        {"lineGap", &settings.lineGap},
        {"groupGap", &settings.groupGap},
        {"keyGap", &settings.keyGap},
        {"wordLetters", &wordLetters},
        {"sentenceLetters", &sentenceLetters},
        {"charWidth", &text.charWidth},
        {"textHeight", &text.textHeight},
    };
    if (setting == "stretchLines")
        settings.stretchLines = value != 0;
    else if (setting == "equalLineHeights")
        settings.equalLineHeights = value != 0;
    else
        *numbers.at(setting) = value;
}

Values LayoutArea::LayOut(const std::filesystem::path& file) {
    COnScreenKeyboard keyboard;
    keyboard.Open(file, settings);
    for (const auto& key : keyboard.KeysOfType(KeyType::WordPrediction))
        keyboard.SetLetters(key, wordLetters);
    for (const auto& key : keyboard.KeysOfType(KeyType::SentencePrediction))
        keyboard.SetLetters(key, sentenceLetters);
    lines = keyboard.Lines();
    const Size size =
        LayOutKeys(lines, settings, {settings.font, text.charWidth, text.textHeight, text, pictures});
    return {Number(size.width), Number(size.height)};
}

} // namespace ondrilo::conformance
