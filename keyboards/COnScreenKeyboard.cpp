#include "keyboards/COnScreenKeyboard.h"

#include <algorithm>

namespace ondrilo {
namespace {

/// What an address past the end reads as.
const COnScreenKey kNoKey = [] {
    COnScreenKey key;
    key.data.active = 0;
    return key;
}();

template <typename Items>
auto* At(Items& items, int index) {
    const auto position = static_cast<std::size_t>(index);
    return index >= 0 && position < items.size() ? &items[position] : nullptr;
}

/// The key at an address, or null; `Lines` may be const.
template <typename Lines>
auto* KeyAt(Lines& lines, COnScreenKeyIdentifier identifier) {
    auto* line = At(lines, identifier.line);
    auto* group = line ? At(line->groups, identifier.group) : nullptr;
    return group ? At(group->keys, identifier.key) : nullptr;
}

/// Calls `visit(identifier, key)` for each key in line, group, key order.
template <typename Lines, typename Visit>
void ForEachKey(Lines& lines, Visit visit) {
    COnScreenKeyIdentifier identifier;
    for (identifier.line = 0; auto& line : lines) {
        for (identifier.group = 0; auto& group : line.groups) {
            for (identifier.key = 0; auto& key : group.keys) {
                visit(identifier, key);
                ++identifier.key;
            }
            ++identifier.group;
        }
        ++identifier.line;
    }
}

Color OrDefault(Color color, Color standard) {
    return color == kDefaultColor ? standard : color;
}

/// The default counts as no colour of the key's own, so that the key follows the profile.
Color WithoutDefault(Color color, Color standard) {
    return color == standard ? kDefaultColor : color;
}

} // namespace

KeyboardLoadFailure::KeyboardLoadFailure(int lineNumber)
    : std::invalid_argument("no place for line " + std::to_string(lineNumber) + " of the keyboard file"),
      lineNumber(lineNumber) {
}

struct COnScreenKeyboard::Observation : Registration {
    Observation(std::shared_ptr<Observers> observers, KeyboardObserver& observer)
        : observers(std::move(observers)), observer(&observer) {
        this->observers->push_back(this->observer);
    }
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;
    ~Observation() override { std::erase(*observers, observer); }

    std::shared_ptr<Observers> observers;
    KeyboardObserver* observer;
};

RegistrationHandle COnScreenKeyboard::Observe(KeyboardObserver& observer) {
    return std::make_unique<Observation>(observers, observer);
}

template <typename Notice>
void COnScreenKeyboard::Tell(Notice notice) const {
    const Observers present = *observers;
    for (auto* observer : present)
        notice(*observer);
}

void COnScreenKeyboard::Open(const std::filesystem::path& newPath, const KeyboardSettings& profileSettings) {
    const auto file = newPath.empty() ? FileBytes{} : ReadFile(newPath);
    const auto content = ParseKeyboard(file.bytes);

    open = true;
    editing = false;
    path = file.CouldOpen() ? newPath : std::filesystem::path{};
    position = {0, 200};
    flatKeys = ParseFlatKeys(file.bytes);
    Fill(content, profileSettings);
    Tell([](auto& observer) { observer.KeysReplaced(); });
    if (content.failedLine != 0)
        throw KeyboardLoadFailure(content.failedLine);
}

void COnScreenKeyboard::Close() {
    open = false;
    editing = false;
    path.clear();
    flatKeys.clear();
    Fill({}, {});
    Tell([](auto& observer) { observer.KeysReplaced(); });
}

void COnScreenKeyboard::Fill(const KeyboardContent& content, const KeyboardSettings& profileSettings) {
    ownKeyHeight = content.keyHeight;
    ownImageHeight = content.imageHeight;
    description = content.description;
    TakeSettings(profileSettings);
    size = {};
    modified = false;
    halfSelected.reset();
    lines.clear();
    for (const auto& lineData : content.lines) {
        auto& line = lines.emplace_back();
        line.name = lineData.name;
        for (const auto& groupData : lineData.groups) {
            auto& group = line.groups.emplace_back();
            group.name = groupData.name;
            for (const auto& key : groupData.keys)
                group.keys.push_back(MakeKey(key));
        }
    }
}

COnScreenKey COnScreenKeyboard::MakeKey(const COnScreenKeyData& data) const {
    COnScreenKey key;
    key.data = data;
    key.data.backgroundColor = OrDefault(data.backgroundColor, settings.backgroundColor);
    key.data.textColor = OrDefault(data.textColor, settings.textColor);
    key.letters = static_cast<int>(data.label.size());
    return key;
}

SaveResult COnScreenKeyboard::Save() {
    if (path.empty())
        return {};
    ForEachKey(lines, [](auto, COnScreenKey& key) {
        if (key.Type() == KeyType::Image && !key.data.imageText.empty())
            key.data.label += ":" + EncodeKeyboardText(key.data.imageText);
    });
    auto result = ReplaceFile(path, FormatKeyboard(Content()));
    if (result)
        ClearModified();
    return result;
}

SaveResult COnScreenKeyboard::SaveAs(const std::filesystem::path& newPath) {
    path = newPath;
    return Save();
}

KeyboardContent COnScreenKeyboard::Content() const {
    KeyboardContent content;
    content.keyHeight = ownKeyHeight;
    content.imageHeight = ownImageHeight;
    content.description = description;
    for (const auto& line : lines) {
        auto& lineData = content.lines.emplace_back();
        lineData.name = line.name;
        for (const auto& group : line.groups) {
            auto& groupData = lineData.groups.emplace_back();
            groupData.name = group.name;
            for (const auto& key : group.keys) {
                auto& data = groupData.keys.emplace_back(key.data);
                data.backgroundColor = WithoutDefault(data.backgroundColor, settings.backgroundColor);
                data.textColor = WithoutDefault(data.textColor, settings.textColor);
            }
        }
    }
    return content;
}

void COnScreenKeyboard::TakeSettings(const KeyboardSettings& profileSettings) {
    settings = profileSettings;
    profileKeyHeight = settings.keyHeight;
    profileImageHeight = settings.imageHeight;
    TakeOwnHeights(ownKeyHeight, ownImageHeight);
}

void COnScreenKeyboard::TakeOwnHeights(int keyHeight, int imageHeight) {
    ownKeyHeight = keyHeight;
    ownImageHeight = imageHeight;
    settings.keyHeight = keyHeight > 0 ? keyHeight : profileKeyHeight;
    settings.imageHeight = imageHeight > 0 ? imageHeight : profileImageHeight;
}

void COnScreenKeyboard::ApplySettings(const KeyboardSettings& profileSettings) {
    const Color oldBackground = settings.backgroundColor;
    const Color oldText = settings.textColor;
    TakeSettings(profileSettings);
    ForEachKey(lines, [&](auto, COnScreenKey& key) {
        auto& data = key.data;
        data.backgroundColor =
            OrDefault(WithoutDefault(data.backgroundColor, oldBackground), settings.backgroundColor);
        data.textColor = OrDefault(WithoutDefault(data.textColor, oldText), settings.textColor);
    });
    TellAllKeysChanged();
}

SaveResult COnScreenKeyboard::SetOwnHeights(int keyHeight, int imageHeight) {
    TakeOwnHeights(keyHeight, imageHeight);
    return Save();
}

bool COnScreenKeyboard::IsModified() const {
    bool any = modified;
    for (const auto& line : lines) {
        any = any || line.modified;
        for (const auto& group : line.groups)
            any = any || group.modified;
    }
    ForEachKey(lines, [&any](auto, const COnScreenKey& key) { any = any || key.modified; });
    return any;
}

void COnScreenKeyboard::ClearModified() {
    modified = false;
    for (auto& line : lines) {
        line.modified = false;
        for (auto& group : line.groups)
            group.modified = false;
    }
    ForEachKey(lines, [](auto, COnScreenKey& key) { key.modified = false; });
}

const COnScreenKey& COnScreenKeyboard::Key(COnScreenKeyIdentifier identifier) const {
    const auto* key = KeyAt(lines, identifier);
    return key ? *key : kNoKey;
}

template <typename Change>
void COnScreenKeyboard::ChangeKey(COnScreenKeyIdentifier identifier, Change change) {
    auto* key = KeyAt(lines, identifier);
    if (!key)
        return;
    change(*key);
    Tell([identifier](auto& observer) { observer.KeyChanged(identifier); });
}

void COnScreenKeyboard::TellAllKeysChanged() const {
    for (const auto& key : AllKeys())
        Tell([&key](auto& observer) { observer.KeyChanged(key); });
}

void COnScreenKeyboard::SetLabel(COnScreenKeyIdentifier identifier, TextView label) {
    ChangeKey(identifier, [label](auto& key) { key.data.label = label; });
}

void COnScreenKeyboard::SetImageText(COnScreenKeyIdentifier identifier, TextView imageText) {
    ChangeKey(identifier, [imageText](auto& key) { key.data.imageText = imageText; });
}

void COnScreenKeyboard::SetDescription(COnScreenKeyIdentifier identifier, TextView text) {
    ChangeKey(identifier, [text](auto& key) { key.data.description = text; });
}

void COnScreenKeyboard::SetOutput(COnScreenKeyIdentifier identifier, TextView output) {
    ChangeKey(identifier, [output](auto& key) { key.data.output = output; });
}

void COnScreenKeyboard::SetActive(COnScreenKeyIdentifier identifier, int active) {
    ChangeKey(identifier, [active](auto& key) { key.data.active = active; });
}

void COnScreenKeyboard::SetBackgroundColor(COnScreenKeyIdentifier identifier, Color color) {
    ChangeKey(identifier, [this, color](auto& key) {
        key.data.backgroundColor = OrDefault(color, settings.backgroundColor);
    });
}

void COnScreenKeyboard::SetTextColor(COnScreenKeyIdentifier identifier, Color color) {
    ChangeKey(identifier,
              [this, color](auto& key) { key.data.textColor = OrDefault(color, settings.textColor); });
}

void COnScreenKeyboard::SetLetters(COnScreenKeyIdentifier identifier, int letters) {
    ChangeKey(identifier, [letters](auto& key) { key.letters = letters; });
}

void COnScreenKeyboard::SetHovered(COnScreenKeyIdentifier identifier, bool hovered) {
    ChangeKey(identifier, [hovered](auto& key) { key.hovered = hovered; });
}

void COnScreenKeyboard::SetHighlighted(COnScreenKeyIdentifier identifier, bool highlighted) {
    ChangeKey(identifier, [highlighted](auto& key) { key.highlighted = highlighted; });
}

void COnScreenKeyboard::SetFlashed(COnScreenKeyIdentifier identifier, bool flashed) {
    ChangeKey(identifier, [flashed](auto& key) { key.flashed = flashed; });
}

void COnScreenKeyboard::SetDwell(COnScreenKeyIdentifier identifier, double dwell) {
    ChangeKey(identifier, [dwell](auto& key) { key.dwell = dwell; });
}

void COnScreenKeyboard::SetHalfSelected(std::optional<COnScreenKeyIdentifier> identifier) {
    halfSelected = identifier;
    if (identifier)
        Tell([identifier](auto& observer) { observer.KeyChanged(*identifier); });
}

void COnScreenKeyboard::SetPressDot(COnScreenKeyIdentifier identifier, bool showing) {
    ChangeKey(identifier, [showing](auto& key) { key.pressDotShowing = showing; });
}

KeyIdentifiers COnScreenKeyboard::AllKeys() const {
    KeyIdentifiers found;
    ForEachKey(lines, [&found](auto identifier, const COnScreenKey&) { found.push_back(identifier); });
    return found;
}

KeyIdentifiers COnScreenKeyboard::KeysOfType(KeyType type) const {
    KeyIdentifiers found;
    ForEachKey(lines, [&found, type](auto identifier, const COnScreenKey& key) {
        if (key.Type() == type)
            found.push_back(identifier);
    });
    return found;
}

KeyIdentifiers COnScreenKeyboard::KeysByOutput(TextView output) const {
    KeyIdentifiers found;
    ForEachKey(lines, [&found, output](auto identifier, const COnScreenKey& key) {
        if (key.data.output == output)
            found.push_back(identifier);
    });
    return found;
}

void COnScreenKeyboard::SetHighlighted(const KeyIdentifiers& keys, bool highlighted) {
    for (const auto& key : keys)
        SetHighlighted(key, highlighted);
}

void COnScreenKeyboard::LightByOutput(TextView output, bool on) {
    for (const auto& identifier : KeysByOutput(output))
        ChangeKey(identifier, [on](auto& key) { key.on = on; });
}

void COnScreenKeyboard::SetLastPageMark(const KeyIdentifiers& keys, bool mark) {
    for (const auto& identifier : keys)
        ChangeKey(identifier, [mark](auto& key) { key.lastPageMark = mark; });
}

void COnScreenKeyboard::SetEditing(bool on) {
    editing = on;
    TellAllKeysChanged();
}

void COnScreenKeyboard::LayOut(const TextMeasure& text, const PictureMeasure& pictures) {
    LayOut(MeasureKeys(settings.font, text, pictures));
}

void COnScreenKeyboard::LayOut(const KeyMeasures& measures) {
    size = LayOutKeys(lines, settings, measures);
    Tell([](auto& observer) { observer.LayoutChanged(); });
}

Rectangle COnScreenKeyboard::PlaceOf(COnScreenKeyIdentifier identifier) const {
    const auto* key = KeyAt(lines, identifier);
    if (!key)
        return {};
    const auto& line = lines[static_cast<std::size_t>(identifier.line)];
    const auto& group = line.groups[static_cast<std::size_t>(identifier.group)];
    Rectangle place = key->place;
    place.x += line.place.x + group.place.x;
    place.y += line.place.y + group.place.y;
    return place;
}

bool COnScreenKeyboard::IsSingleColumn() const {
    return std::all_of(lines.begin(), lines.end(), [](const COnScreenKeyLine& line) {
        return line.groups.size() <= 1 && (line.groups.empty() || line.groups.front().keys.size() <= 1);
    });
}

} // namespace ondrilo
