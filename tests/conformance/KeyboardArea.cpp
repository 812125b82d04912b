#include "keyboards/COnScreenKeyboard.h"
#include "keyboards/KeyLayout.h"
#include "tests/conformance/Area.h"
#include "tests/support/FakeMeasures.h"

namespace ondrilo::conformance {
namespace {

Values FieldsOf(const COnScreenKeyData& key) {
    Values fields{key.type, key.label, key.imageText, key.description, key.output};
    Append(fields, NumbersOf(key.active, key.backgroundColor, key.textColor));
    return fields;
}

Values AddressesOf(const KeyIdentifiers& keys) {
    Values values;
    for (const auto& key : keys)
        Append(values, NumbersOf(key.line, key.group, key.key));
    return values;
}

Values BoxOf(const Rectangle& place) {
    return NumbersOf(place.x, place.y, place.width, place.height);
}

/// Keyboard files: what is read, asked and written back.
class KeyboardArea : public Area {
  public:
    explicit KeyboardArea(const std::filesystem::path& folder) {
        OnFile(folder);
        On("keyboard_defaults", [this](const auto& a) {
            settings.backgroundColor = a.Integer(0);
            settings.textColor = a.Integer(1);
        });
        On("keyboard_load", [this, folder](const auto& a) {
            keyboard.Open(a.In(folder), settings);
            return keyboard.Lines().size();
        });
        On("keyboard_load_fails", [this, folder](const auto& a) {
            try {
                keyboard.Open(a.In(folder), settings);
            } catch (const KeyboardLoadFailure&) {
                return NumbersOf(keyboard.Lines().size(), keyboard.AllKeys().size());
            }
            return Values{"no failure"};
        });
        On("keyboard_save", [this](const auto&) { return keyboard.Save(); });
        On("keyboard_path", [](const auto& a) { return a.at(0) + KeyboardFileName(a.at(1)); });
        On("keyboard_name", [](const auto& a) { return KeyboardName(a.at(0)); });
        On("key_text", [](const auto& a) { return FieldsOf(COnScreenKeyData::FromHint(a.at(0))); });
        AddQueries();
    }

  private:
    void AddQueries() {
        On("keyboard_options", [this](const auto&) {
            return Values{Number(keyboard.OwnKeyHeight()), Number(keyboard.OwnImageHeight()),
                          keyboard.Description()};
        });
        On("line", [this](const auto& a) {
            const auto& line = keyboard.Lines().at(a.Index(0));
            return Values{line.name, std::to_string(line.groups.size())};
        });
        On("group", [this](const auto& a) {
            const auto& group = keyboard.Lines().at(a.Index(0)).groups.at(a.Index(1));
            return Values{group.name, std::to_string(group.keys.size())};
        });
        On("key_fields", [this](const auto& a) {
            return FieldsOf(keyboard.Key({a.Integer(0), a.Integer(1), a.Integer(2)}).data);
        });
        On("flat_key", [this](const auto& a) { return FieldsOf(keyboard.FlatKeys().at(a.Index(0))); });
        On("keys_of_type",
           [this](const auto& a) { return AddressesOf(keyboard.KeysOfType(KeyTypeOf(a.at(0)))); });
        On("keys_by_output", [this](const auto& a) { return AddressesOf(keyboard.KeysByOutput(a.at(0))); });
    }

    KeyboardSettings settings;
    COnScreenKeyboard keyboard;
};

class ByteWidths : public TextMeasure {
  public:
    [[nodiscard]] int Width(const Font&, TextView text) const override {
        int width = 0;
        for (const char c : text)
            width += 4 + static_cast<unsigned char>(c) % 7;
        return width;
    }
    [[nodiscard]] int AverageCharacterWidth(const Font&) const override { return charWidth; }
    [[nodiscard]] int LineHeight(const Font&) const override { return textHeight; }

    int charWidth = 0;
    int textHeight = 0;
};

/// Sizes and places of keys, with measures of its own for texts and pictures.
class LayoutArea : public Area {
  public:
    explicit LayoutArea(const std::filesystem::path& folder) {
        On("picture_size", [this](const auto& a) { pictures.sizes[a.at(0)] = {a.Integer(1), a.Integer(2)}; });
        On("set", [this](const auto& a) { Set(a.at(0), a.Integer(1)); });
        On("layout", [this, folder](const auto& a) { return LayOut(a.In(folder)); });
        On("line_box", [this](const auto& a) { return BoxOf(lines.at(a.Index(0)).place); });
        On("group_box",
           [this](const auto& a) { return BoxOf(lines.at(a.Index(0)).groups.at(a.Index(1)).place); });
        On("key_box", [this](const auto& a) {
            return BoxOf(lines.at(a.Index(0)).groups.at(a.Index(1)).keys.at(a.Index(2)).place);
        });
    }

  private:
    void Set(const Text& setting, int value) {
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
    [[nodiscard]] Values LayOut(const std::filesystem::path& file) {
        COnScreenKeyboard keyboard;
        keyboard.Open(file, settings);
        for (const auto& key : keyboard.KeysOfType(KeyType::WordPrediction))
            keyboard.SetLetters(key, wordLetters);
        for (const auto& key : keyboard.KeysOfType(KeyType::SentencePrediction))
            keyboard.SetLetters(key, sentenceLetters);
        lines = keyboard.Lines();
        const Size size =
            LayOutKeys(lines, settings, {settings.font, text.charWidth, text.textHeight, text, pictures});
        return NumbersOf(size.width, size.height);
    }

    KeyboardSettings settings;
    int wordLetters = 0;
    int sentenceLetters = 0;
    ByteWidths text;
    FakePictureMeasure pictures;
    std::vector<COnScreenKeyLine> lines;
};

} // namespace

const AreaMaker kKeyboardArea = Make<KeyboardArea>;
const AreaMaker kLayoutArea = Make<LayoutArea>;

} // namespace ondrilo::conformance
