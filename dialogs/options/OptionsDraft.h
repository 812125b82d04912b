#pragma once

#include "profiles/OptionDialogs.h"

#include <QObject>

namespace ondrilo {

/// What the person has chosen so far. The options themselves stay as they are until StoreTo.
class OptionsDraft : public QObject {
    Q_OBJECT

  public:
    explicit OptionsDraft(const PersonalOptions& options)
        : properties(options.properties), access(options.access) {}

    [[nodiscard]] const CUserProfileProperties& Properties() const { return properties; }
    [[nodiscard]] const CAccessOptions& Access() const { return access; }
    template <typename Option, typename Value>
    void Set(Option option, const Value& value) {
        properties.Set(option, value);
        Q_EMIT Changed();
    }
    void Set(AccessOption option, std::optional<int> value) {
        access.Set(option, value);
        Q_EMIT Changed();
    }
    void SetCueVoice(TextView voice) {
        access.SetCueVoice(voice);
        Q_EMIT Changed();
    }
    void StoreTo(const PersonalOptions& options) const {
        options.properties = properties;
        options.access.CopyFrom(access);
    }

  Q_SIGNALS:
    void Changed();

  private:
    CUserProfileProperties properties;
    CAccessOptions access;
};

} // namespace ondrilo
