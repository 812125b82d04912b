#include "tests/conformance/ScanningArea.h"

namespace ondrilo::conformance {
namespace {

KeyboardSettings SettingsFor(const Arguments& a) {
    CUserProfileProperties profile;
    profile.Set(option::METODO_VARRIMENTO, a.at(0));
    profile.Set(option::VELOCIDADE_VARRIMENTO, ToInteger(a.at(1)));
    profile.Set(option::LATENCIA_INTERRUPTORES_VARRIMENTO, ToInteger(a.at(2)));
    profile.Set(option::NUMERO_MAXIMO_CICLOS_VARRIMENTO, ToInteger(a.at(3)));
    return MakeKeyboardSettings(profile, {});
}

} // namespace

ScanningArea::ScanningArea(const std::filesystem::path& folder) {
    AddBuilding(folder / "k.tec");
    AddEvents();
    AddQueries();
}

void ScanningArea::AddBuilding(const std::filesystem::path& file) {
    On("scan_line", [this](const Arguments& a) {
        content.lines.push_back({a.at(0), {}});
        return Values{};
    });
    On("scan_group", [this](const Arguments& a) {
        content.lines.back().groups.push_back({a.at(0), {}});
        return Values{};
    });
    On("scan_key", [this](const Arguments& a) {
        COnScreenKeyData key;
        key.type = "TECLA_NORMAL";
        key.label = key.output = "x";
        key.active = ToInteger(a.at(0));
        key.description = a.at(1);
        content.lines.back().groups.back().keys.push_back(key);
        return Values{};
    });
    On("scan_start", [this, file](const Arguments& a) {
        const auto saved = ReplaceFile(file, FormatKeyboard(content));
        keyboard.Open(file, SettingsFor(a));
        return Problem(saved);
    });
}

void ScanningArea::AddEvents() {
    On("switch_down", [this](const Arguments& a) {
        scanning.SwitchDown(ToInteger(a.at(0)));
        return Values{};
    });
    On("switch_up", [this](const Arguments& a) {
        scanning.SwitchUp(ToInteger(a.at(0)));
        return Values{};
    });
    On("edit_mode", [this](const Arguments& a) {
        keyboard.SetEditing(a.at(0) == "1");
        return Values{};
    });
    On("ticks", [this](const Arguments& a) { return Ticks(ToInteger(a.at(0))); });
}

void ScanningArea::AddQueries() {
    On("scan_state", [this](const Arguments&) {
        const auto& now = scanning.Now();
        Values values;
        for (const int number : {now.scanLine, now.scanGroup, now.scanKey, now.cycles, now.tickCounter,
                                 now.switch1Count, now.switch2Count})
            values.push_back(Number(number));
        return values;
    });
    On("scan_lit", [this](const Arguments&) {
        Values lit;
        for (const auto& key : keyboard.AllKeys())
            if (keyboard.Key(key).highlighted)
                lit.push_back(Number(key.Packed()));
        return lit;
    });
    On("scan_cue", [this](const Arguments&) { return Values{scanning.CueText()}; });
}

Values ScanningArea::Ticks(int count) {
    Values values;
    for (int tick = 1; tick <= count; ++tick) {
        scanning.Tick();
        queue.Drain([&values, tick](const MessageEvent& event) {
            for (const std::int64_t number :
                 {std::int64_t{tick}, static_cast<std::int64_t>(event.message), std::int64_t{event.first}})
                values.push_back(Number(number));
        });
    }
    return values;
}

} // namespace ondrilo::conformance
