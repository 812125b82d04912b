#include "tests/conformance/KeyboardArea.h"

namespace ondrilo::conformance {
namespace {

Values FieldsOf(const COnScreenKeyData& key) {
    return {key.type,
            key.label,
            key.imageText,
            key.description,
            key.output,
            Number(key.active),
            Number(key.backgroundColor),
            Number(key.textColor)};
}

Values AddressesOf(const KeyIdentifiers& keys) {
    Values values;
    for (const auto& key : keys)
        for (const int level : {key.line, key.group, key.key})
            values.push_back(Number(level));
    return values;
}

std::size_t Index(const Arguments& arguments, std::size_t which) {
    return static_cast<std::size_t>(ToInteger(arguments.at(which)));
}

} // namespace

KeyboardArea::KeyboardArea(const std::filesystem::path& folder) {
    OnFile(folder);
    On("keyboard_defaults", [this](const Arguments& a) {
        settings.backgroundColor = ToInteger(a.at(0));
        settings.textColor = ToInteger(a.at(1));
        return Values{};
    });
    On("keyboard_load", [this, folder](const Arguments& a) {
        keyboard.Open(folder / ToUtf8(a.at(0)), settings);
        return Values{Number(static_cast<int>(keyboard.Lines().size()))};
    });
    On("keyboard_load_fails", [this, folder](const Arguments& a) {
        try {
            keyboard.Open(folder / ToUtf8(a.at(0)), settings);
        } catch (const KeyboardLoadFailure&) {
            return Values{Number(static_cast<int>(keyboard.Lines().size())),
                          Number(static_cast<int>(keyboard.AllKeys().size()))};
        }
        return Values{"no failure"};
    });
    On("keyboard_save", [this](const Arguments&) { return Problem(keyboard.Save()); });
    On("keyboard_path", [](const Arguments& a) { return Values{a.at(0) + KeyboardFileName(a.at(1))}; });
    On("keyboard_name", [](const Arguments& a) { return Values{KeyboardName(a.at(0))}; });
    On("key_text", [](const Arguments& a) { return FieldsOf(COnScreenKeyData::FromHint(a.at(0))); });
    AddQueries();
}

void KeyboardArea::AddQueries() {
    On("keyboard_options", [this](const Arguments&) {
        return Values{Number(keyboard.OwnKeyHeight()), Number(keyboard.OwnImageHeight()),
                      keyboard.Description()};
    });
    On("line", [this](const Arguments& a) {
        const auto& line = keyboard.Lines().at(Index(a, 0));
        return Values{line.name, Number(static_cast<int>(line.groups.size()))};
    });
    On("group", [this](const Arguments& a) {
        const auto& group = keyboard.Lines().at(Index(a, 0)).groups.at(Index(a, 1));
        return Values{group.name, Number(static_cast<int>(group.keys.size()))};
    });
    On("key_fields", [this](const Arguments& a) {
        return FieldsOf(keyboard.Key({ToInteger(a.at(0)), ToInteger(a.at(1)), ToInteger(a.at(2))}).data);
    });
    On("flat_key", [this](const Arguments& a) { return FieldsOf(keyboard.FlatKeys().at(Index(a, 0))); });
    On("keys_of_type",
       [this](const Arguments& a) { return AddressesOf(keyboard.KeysOfType(KeyTypeOf(a.at(0)))); });
    On("keys_by_output", [this](const Arguments& a) { return AddressesOf(keyboard.KeysByOutput(a.at(0))); });
}

} // namespace ondrilo::conformance
