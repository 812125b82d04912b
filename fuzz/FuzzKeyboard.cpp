#include "fuzz/Fuzz.h"
#include "keyboards/COnScreenKeyboard.h"
#include "keyboards/KeyOutputs.h"
#include "tests/support/TemporaryFolder.h"
#include "text/LineReader.h"

namespace {

using namespace ondrilo;

class FixedMeasures : public TextMeasure, public PictureMeasure {
  public:
    [[nodiscard]] int Width(const Font&, TextView text) const override {
        return 7 * static_cast<int>(text.size());
    }
    [[nodiscard]] int AverageCharacterWidth(const Font&) const override { return 8; }
    [[nodiscard]] int LineHeight(const Font&) const override { return 16; }
    [[nodiscard]] std::optional<Size> SizeOf(TextView pictogram) const override {
        if (pictogram.size() % 3 == 0)
            return std::nullopt;
        return Size{static_cast<int>(pictogram.size()), 40};
    }
};

void ReadAndLayOut(const std::filesystem::path& path) {
    COnScreenKeyboard keyboard;
    try {
        keyboard.Open(path, {});
    } catch (const KeyboardLoadFailure&) {
        // What stands before the failing line was taken.
    }
    const FixedMeasures measures;
    keyboard.LayOut(measures, measures);
    for (const auto& key : keyboard.AllKeys())
        (void)keyboard.PlaceOf(key);
    (void)keyboard.KeysByOutput("Shift");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    const TextView bytes = TextOf(data, size);
    ReadAndLayOut(folder.Write("a.tec", bytes));

    const KeyboardContent content = ParseKeyboard(bytes);
    (void)ParseKeyboard(FormatKeyboard(content));
    for (const COnScreenKeyData& key : ParseFlatKeys(bytes))
        (void)COnScreenKeyData::FromHint(key.ToHint());
    (void)KeyboardName(bytes);
    return 0;
}
