#include "tests/conformance/OptionsArea.h"

namespace ondrilo::conformance {
namespace {

const SystemOption* Find(const Text& key) {
    for (const auto& option : kSystemOptions)
        if (option.key == key)
            return &option;
    return nullptr;
}

} // namespace

OptionsArea::OptionsArea(const std::filesystem::path& folder) {
    OnFile(folder);
    On("options_defaults", [](const Arguments&) { return Values{CSystemOptions().Format()}; });
    On("options_load", [this, folder](const Arguments&) {
        options = {};
        options.Load(folder / "configsis");
        return Values{};
    });
    On("options_value", [this](const Arguments& a) { return ValueOf(a.at(0)); });
    On("options_set", [this](const Arguments& a) {
        Set(a.at(0), a.at(1));
        return Values{};
    });
    On("options_set_priorities", [this](const Arguments& a) {
        options.SetPriorities(a);
        return Values{};
    });
    On("options_save", [this](const Arguments&) { return Problem(options.Save()); });
}

Values OptionsArea::ValueOf(const Text& key) {
    const SystemOption* option = Find(key);
    if (!option)
        return {};
    if (option->kind == SystemOptionKind::Integer)
        return {Number(options.Get(static_cast<IntegerSystemOption>(option->index)))};
    if (option->kind == SystemOptionKind::List)
        return options.GetPriorities();
    return {options.Get(static_cast<TextSystemOption>(option->index))};
}

void OptionsArea::Set(const Text& key, const Text& value) {
    const SystemOption* option = Find(key);
    if (!option)
        return;
    if (option->kind == SystemOptionKind::Integer)
        options.Set(static_cast<IntegerSystemOption>(option->index), ToInteger(value));
    else
        options.Set(static_cast<TextSystemOption>(option->index), value);
}

} // namespace ondrilo::conformance
