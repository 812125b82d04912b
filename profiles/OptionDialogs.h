#pragma once

#include "platform/DataFolder.h"
#include "profiles/CAccessOptions.h"
#include "profiles/CSystemOptions.h"
#include "profiles/CUserProfileProperties.h"

#include <vector>

namespace ondrilo {

/// All options of a person that "Opções do Perfil de Utilizador" edits.
struct PersonalOptions {
    CUserProfileProperties& properties;
    CAccessOptions& access;
};

/// What the pages of a profile's options offer to choose from.
class ProfileOptionSources {
  public:
    virtual ~ProfileOptionSources() = default;
    /// Keys that may be given a special role, by rising code.
    [[nodiscard]] virtual std::vector<Text> KeyNames() const = 0;
    /// On-screen keyboards, without ".tec".
    [[nodiscard]] virtual std::vector<Text> KeyboardNames() const = 0;
    /// The service whose voices can be chosen and heard.
    [[nodiscard]] virtual SpeechEngine& Speech() const = 0;
    /// Where the exceptions of voices are kept.
    [[nodiscard]] virtual const DataFolder& Folder() const = 0;
};

/// What "Opções Gerais" offers to choose from, and the dialogs that it opens.
class SystemOptionSources {
  public:
    virtual ~SystemOptionSources() = default;
    [[nodiscard]] virtual std::vector<Text> ProfileNames() const = 0;
    [[nodiscard]] virtual std::vector<Text> GpsPorts() const = 0;
    [[nodiscard]] virtual std::vector<Text> BluetoothMechanisms() const = 0;
    /// A profile for the list of priorities; empty on Cancel.
    [[nodiscard]] virtual Text ChooseProfile() = 0;
    /// Asks for the password of the lock and tells of a wrong one; true if the lock may be turned.
    [[nodiscard]] virtual bool PassesLock() = 0;
};

/// The dialogs in which options are edited. They work on copies: on OK, which gives true, all values are
/// taken over; on Cancel none.
class OptionDialogs {
  public:
    virtual ~OptionDialogs() = default;
    /// "Opções do Perfil de Utilizador".
    [[nodiscard]] virtual bool EditProfileOptions(const PersonalOptions& options,
                                                  const ProfileOptionSources& sources) = 0;
    /// "Opções Gerais".
    [[nodiscard]] virtual bool EditSystemOptions(CSystemOptions& options, SystemOptionSources& sources) = 0;
};

} // namespace ondrilo
