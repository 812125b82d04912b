#include "platform/x11/SpareKeys.h"

#include "platform/x11/VirtualKeys.h"
#include "targets/CKeyboard.h"
#include "text/CaseFolding.h"

#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <thread>
#include <utility>

namespace ondrilo {
namespace {

constexpr std::chrono::milliseconds kSettleTime{25};

constexpr TextView kPortugueseCharacters = "áàâãéêíóôõúçü«ª€"_w;
/// Signs that share a keycode, the second with Shift.
constexpr TextView kSignPairs = "«»ºª“”‘’–—"_w;

char FirstSignOf(char c, char& second) {
    const auto place = kSignPairs.find(c);
    if (place == TextView::npos) {
        second = c;
        return c;
    }
    const auto first = place & ~std::size_t{1};
    second = kSignPairs[first + 1];
    return kSignPairs[first];
}

Keysym SymbolOf(char c) {
    return xkb_utf32_to_keysym(CodePointOf(c));
}

} // namespace

SpareKeys::SpareKeys(const X11Connection& connection)
    : connection(connection), record(connection.Atom("_ONDRILO_SPARE_KEYS")) {
}

void SpareKeys::Attach() {
    const auto before = std::exchange(spares, ReadLent());
    for (auto& spare : spares)
        for (const auto& old : before)
            if (old.keycode == spare.keycode && old.lent == spare.lent)
                spare = old;
}

bool SpareKeys::LendNext(const std::function<bool(char32_t)>& canWrite) {
    for (const char c : kPortugueseCharacters) {
        const char upper = MakeUpper(c);
        if (canWrite(CodePointOf(c)) && canWrite(CodePointOf(upper)))
            continue;
        auto* spare = Find(PairOf(c)) ? nullptr : LeastUsed();
        if (!spare || spare->lent != Pair{})
            continue;
        Lend(*spare, PairOf(c));
        return true;
    }
    return false;
}

std::optional<LayoutKey> SpareKeys::KeyOf(char c) {
    constexpr TextView kAccents = "`´^~"_w;
    const bool isOneKey = TypedCharacters({&c, 1}).size() == 1 && kAccents.find(c) == TextView::npos;
    if (static_cast<unsigned char>(c) < ' ' || !isOneKey)
        return std::nullopt;
    return LayoutKey{kUnknownKey, IsPlain(c) ? kNoShift : kShift};
}

std::optional<KeyStroke> SpareKeys::StrokeOf(char c) {
    const Pair pair = PairOf(c);
    auto* spare = Find(pair);
    if (!spare) {
        spare = LeastUsed();
        if (!spare)
            return std::nullopt;
        // Whoever still has a press of it to understand would take the new symbol for the old one.
        std::this_thread::sleep_until(spare->lastUse + kLateReaders);
        Lend(*spare, pair);
    }
    spare->lastUse = std::chrono::steady_clock::now();
    return KeyStroke{spare->keycode, IsPlain(c) ? 0 : KeyboardMap::kShiftBit};
}

bool SpareKeys::Settle(Keycode keycode) const {
    const auto spare = std::ranges::find(spares, keycode, &Spare::keycode);
    if (spare == spares.end() || std::chrono::steady_clock::now() >= spare->since + kSettleTime)
        return false;
    connection.Synchronize();
    std::this_thread::sleep_until(spare->since + kSettleTime);
    return true;
}

bool SpareKeys::IsLent(Keycode keycode) const {
    const auto spare = std::ranges::find(spares, keycode, &Spare::keycode);
    return spare != spares.end() && spare->lent != Pair{};
}

void SpareKeys::Detach() {
    for (auto& spare : spares)
        if (spare.lent != Pair{})
            Lend(spare, {});
    spares.clear();
    xcb_delete_property(connection.Get(), connection.Root(), record);
    connection.Synchronize();
}

bool SpareKeys::IsPlain(char c) {
    return SymbolOf(c) == PairOf(c).plain;
}

SpareKeys::Pair SpareKeys::PairOf(char c) {
    const char lower = MakeLower(c);
    const char upper = MakeUpper(c);
    if (lower != upper)
        return {SymbolOf(lower), SymbolOf(upper)};
    char second = c;
    const char first = FirstSignOf(c, second);
    return {SymbolOf(first), first == second ? XKB_KEY_NoSymbol : SymbolOf(second)};
}

/// The keycodes without symbols, and those whose symbols are what our record says of them.
std::vector<SpareKeys::Spare> SpareKeys::ReadLent() const {
    const auto* setup = xcb_get_setup(connection.Get());
    const auto first = static_cast<Keycode>(setup->min_keycode + 1); // the very first stands for "no key"
    const auto count = static_cast<Keycode>(setup->max_keycode - first + 1);
    constexpr std::uint32_t kLongest = 3 * 256;
    const auto mappingCookie = xcb_get_keyboard_mapping(connection.Get(), first, count);
    const auto recordCookie =
        xcb_get_property(connection.Get(), 0, connection.Root(), record, XCB_ATOM_CARDINAL, 0, kLongest);
    const auto mapping = Owned(xcb_get_keyboard_mapping_reply(connection.Get(), mappingCookie, nullptr));
    const auto recorded = Owned(xcb_get_property_reply(connection.Get(), recordCookie, nullptr));
    if (!mapping || mapping->keysyms_per_keycode < 2)
        return {};

    std::map<Keycode, Pair> ours;
    if (recorded && recorded->format == 32) {
        const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(recorded.get()));
        const auto length = static_cast<std::size_t>(xcb_get_property_value_length(recorded.get())) / 4;
        for (std::size_t i = 0; i + 2 < length; i += 3)
            ours[static_cast<Keycode>(values[i])] = {values[i + 1], values[i + 2]};
    }

    std::vector<Spare> found;
    const auto withModifiers = KeycodesWithModifiers();
    const auto width = static_cast<std::size_t>(mapping->keysyms_per_keycode);
    const auto* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    for (std::size_t i = 0; i < count; ++i) {
        const auto keycode = static_cast<Keycode>(first + i);
        const auto* own = symbols + i * width;
        const Pair pair{own[0], own[1]};
        const bool isEmpty = std::all_of(own, own + width, [](Keysym s) { return s == XKB_KEY_NoSymbol; });
        const bool isOurs = ours.contains(keycode) && ours.at(keycode) == pair;
        if ((isEmpty || isOurs) && !withModifiers[keycode])
            found.push_back({keycode, pair, {}, {}});
    }
    return found;
}

Keycodes SpareKeys::KeycodesWithModifiers() const {
    Keycodes found;
    const auto cookie = xcb_get_modifier_mapping(connection.Get());
    const auto reply = Owned(xcb_get_modifier_mapping_reply(connection.Get(), cookie, nullptr));
    if (!reply)
        return found;
    const auto* keycodes = xcb_get_modifier_mapping_keycodes(reply.get());
    for (int i = 0; i < xcb_get_modifier_mapping_keycodes_length(reply.get()); ++i)
        found.set(keycodes[i]);
    return found;
}

SpareKeys::Spare* SpareKeys::Find(const Pair& pair) {
    const auto found = std::ranges::find(spares, pair, &Spare::lent);
    return found == spares.end() ? nullptr : &*found;
}

/// An empty one if there is one.
SpareKeys::Spare* SpareKeys::LeastUsed() {
    const auto age = [](const Spare& spare) {
        return std::pair(spare.lent != Pair{}, spare.lastUse);
    };
    const auto found = std::ranges::min_element(spares, {}, age);
    return found == spares.end() ? nullptr : &*found;
}

void SpareKeys::Lend(Spare& spare, const Pair& pair) {
    spare.lent = pair;
    WriteRecord(); // first, so that a kill in between leaves nothing unrecorded
    const Keysym symbols[] = {pair.plain, pair.shifted};
    xcb_change_keyboard_mapping(connection.Get(), 1, spare.keycode, 2, symbols);
    connection.Flush();
    spare.since = std::chrono::steady_clock::now();
}

void SpareKeys::WriteRecord() const {
    std::vector<std::uint32_t> values;
    for (const auto& spare : spares)
        if (spare.lent != Pair{})
            values.insert(values.end(), {spare.keycode, spare.lent.plain, spare.lent.shifted});
    xcb_change_property(connection.Get(), XCB_PROP_MODE_REPLACE, connection.Root(), record, XCB_ATOM_CARDINAL,
                        32, static_cast<std::uint32_t>(values.size()), values.data());
}

} // namespace ondrilo
