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

using Arguments = std::vector<Text>;
using Values = std::vector<Text>;

inline Text Flag(bool value) {
    return value ? "1" : "0";
}

inline Text Number(std::int64_t value) {
    return std::to_string(value);
}

/// 17 digits, so that nothing of a double is lost.
Text Real(double value);

/// The leading integer of an argument; 0 where there is none.
inline int ToInteger(const Text& argument) {
    int value = 0;
    (void)std::from_chars(argument.data(), argument.data() + argument.size(), value);
    return value;
}

inline double ToReal(const Text& argument) {
    double value = 0;
    (void)std::from_chars(argument.data(), argument.data() + argument.size(), value);
    return value;
}

/// One case of one area: a state and the operations on it. Operations without a handler are skipped.
class Area {
  public:
    using Handler = std::function<Values(const Arguments&)>;

    virtual ~Area() = default;
    /// The values of one operation, or nothing if the area does not know it.
    [[nodiscard]] std::optional<Values> Answer(const Text& operation, const Arguments& arguments) const;

  protected:
    void On(const Text& operation, Handler handler) { handlers[operation] = std::move(handler); }
    /// The operations on the content of a file in `folder`.
    void OnFile(const std::filesystem::path& folder);
    /// No values for a save that went well.
    static Values Problem(const SaveResult& result);

  private:
    std::map<Text, Handler> handlers;
};

/// `folder` holds a copy of the case's data; operations write there.
using AreaMaker = std::function<std::unique_ptr<Area>(const std::filesystem::path& folder)>;

template <class Kind>
AreaMaker MakerOf() {
    return [](const std::filesystem::path& folder) {
        return std::make_unique<Kind>(folder);
    };
}

} // namespace ondrilo::conformance
