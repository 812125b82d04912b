#pragma once

#include "platform/FileStore.h"
#include "text/Text.h"

#include <charconv>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ondrilo::conformance {

using Values = std::vector<Text>;

/// The leading number of an argument; 0 where there is none.
template <class Kind = int>
Kind ToNumber(TextView argument) {
    Kind value = 0;
    (void)std::from_chars(argument.data(), argument.data() + argument.size(), value);
    return value;
}

struct Arguments : std::vector<Text> {
    [[nodiscard]] int Integer(std::size_t which) const { return ToNumber(at(which)); }
    [[nodiscard]] std::size_t Index(std::size_t which) const { return ToNumber<std::size_t>(at(which)); }
    /// The file of that name in `folder`.
    [[nodiscard]] std::filesystem::path In(const std::filesystem::path& folder, std::size_t which = 0) const {
        return folder / ToUtf8(at(which));
    }
};

inline Text Flag(bool value) {
    return value ? "1" : "0";
}

inline Text Number(std::int64_t value) {
    return std::to_string(value);
}

/// 17 digits, so that nothing of a double is lost.
Text Real(double value);

inline void Append(Values& values, const Values& more) {
    values.insert(values.end(), more.begin(), more.end());
}

/// What a handler gives back, as the values of an answer; none for a save that went well.
inline Values ToValues(Values values) {
    return values;
}
inline Values ToValues(Text value) {
    return {std::move(value)};
}
inline Values ToValues(bool value) {
    return {Flag(value)};
}
inline Values ToValues(int value) {
    return {Number(value)};
}
inline Values ToValues(std::size_t value) {
    return {std::to_string(value)};
}
inline Values ToValues(const SaveResult& result) {
    return result ? Values{} : Values{result.problem};
}
template <class... Numbers>
Values NumbersOf(Numbers... numbers) {
    return {Number(static_cast<std::int64_t>(numbers))...};
}

/// One case of one area: a state and the operations on it. Operations without a handler are skipped.
class Area {
  public:
    virtual ~Area() = default;
    /// The values of one operation, or nothing if the area does not know it.
    [[nodiscard]] std::optional<Values> Answer(const Text& operation, const Arguments& arguments) const;

  protected:
    template <class Handler>
    void On(const Text& operation, Handler handler) {
        handlers[operation] = [handler](const Arguments& arguments) {
            if constexpr (std::is_void_v<decltype(handler(arguments))>)
                return handler(arguments), Values{};
            else
                return ToValues(handler(arguments));
        };
    }
    /// The operations on the content of a file in `folder`.
    void OnFile(const std::filesystem::path& folder);

  private:
    std::map<Text, std::function<Values(const Arguments&)>> handlers;
};

/// Starts a case of an area. `folder` holds a copy of the case's data; operations write there.
using AreaMaker = std::unique_ptr<Area> (*)(const std::filesystem::path& folder);

template <class Kind>
std::unique_ptr<Area> Make(const std::filesystem::path& folder) {
    return std::make_unique<Kind>(folder);
}

extern const AreaMaker kKeyboardArea, kKeysArea, kLayoutArea, kLearningArea, kOptionsArea, kProfileArea,
    kScanningArea, kSelectionArea, kSpeechArea, kTextArea, kWordSimulatorArea;

} // namespace ondrilo::conformance
