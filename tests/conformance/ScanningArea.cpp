#include "keyboards/CScanning.h"
#include "tests/conformance/Area.h"

namespace ondrilo::conformance {
namespace {

KeyboardSettings SettingsFor(const Arguments& a) {
    CUserProfileProperties profile;
    profile.Set(option::METODO_VARRIMENTO, a.at(0));
    profile.Set(option::VELOCIDADE_VARRIMENTO, a.Integer(1));
    profile.Set(option::LATENCIA_INTERRUPTORES_VARRIMENTO, a.Integer(2));
    profile.Set(option::NUMERO_MAXIMO_CICLOS_VARRIMENTO, a.Integer(3));
    return MakeKeyboardSettings(profile, {});
}

/// Scanning tick by tick, on a keyboard that the queries put together.
class ScanningArea : public Area {
  public:
    explicit ScanningArea(const std::filesystem::path& folder) {
        AddBuilding(folder / "k.tec");
        On("switch_down", [this](const auto& a) { scanning.SwitchDown(a.Integer(0)); });
        On("switch_up", [this](const auto& a) { scanning.SwitchUp(a.Integer(0)); });
        On("edit_mode", [this](const auto& a) { keyboard.SetEditing(a.at(0) == "1"); });
        On("ticks", [this](const auto& a) { return Ticks(a.Integer(0)); });
        On("scan_state", [this](const auto&) {
            const auto& now = scanning.Now();
            return NumbersOf(now.scanLine, now.scanGroup, now.scanKey, now.cycles, now.tickCounter,
                             now.switch1Count, now.switch2Count);
        });
        On("scan_lit", [this](const auto&) {
            Values lit;
            for (const auto& key : keyboard.AllKeys())
                if (keyboard.Key(key).highlighted)
                    lit.push_back(Number(key.Packed()));
            return lit;
        });
        On("scan_cue", [this](const auto&) { return scanning.CueText(); });
    }

  private:
    void AddBuilding(const std::filesystem::path& file) {
        On("scan_line", [this](const auto& a) { content.lines.push_back({a.at(0), {}}); });
        On("scan_group", [this](const auto& a) { content.lines.back().groups.push_back({a.at(0), {}}); });
        On("scan_key", [this](const auto& a) {
            COnScreenKeyData key;
            key.type = "TECLA_NORMAL";
            key.label = key.output = "x";
            key.active = a.Integer(0);
            key.description = a.at(1);
            content.lines.back().groups.back().keys.push_back(key);
        });
        On("scan_start", [this, file](const auto& a) {
            auto saved = ReplaceFile(file, FormatKeyboard(content));
            keyboard.Open(file, SettingsFor(a));
            return saved;
        });
    }
    [[nodiscard]] Values Ticks(int count) {
        Values values;
        for (int tick = 1; tick <= count; ++tick) {
            scanning.Tick();
            queue.Drain([&values, tick](const MessageEvent& event) {
                Append(values, NumbersOf(tick, event.message, event.first));
            });
        }
        return values;
    }

    KeyboardContent content;
    COnScreenKeyboard keyboard;
    MessageQueue queue;
    CScanning scanning{keyboard, queue};
};

} // namespace

const AreaMaker kScanningArea = Make<ScanningArea>;

} // namespace ondrilo::conformance
