#pragma once

#include "platform/Dialogs.h"

#include <functional>

namespace ondrilo {

/// Answers every dialog with what the test has set.
class FakeDialogs : public Dialogs {
  public:
    [[nodiscard]] std::optional<Text> ChooseProfile(const std::vector<Text>& names) override {
        offeredProfiles = names;
        return chosenProfile;
    }
    [[nodiscard]] std::optional<Text>
    AskProfileName(const std::function<Text(TextView name)>& objection) override {
        objections.push_back(objection(newProfile.value_or("")));
        return objections.back().empty() ? newProfile : std::nullopt;
    }
    [[nodiscard]] std::optional<Text> AskPassword() override { return password; }
    [[nodiscard]] std::optional<std::filesystem::path> ChooseFolder(TextView) override {
        return chosenFolder;
    }
    [[nodiscard]] bool EditEntries(EntryList& entries) override { return inEntries && inEntries(entries); }
    [[nodiscard]] std::optional<std::filesystem::path> ChooseTextFile() override { return chosenFile; }
    void SimulateWords(Simulator& simulator) override {
        if (inSimulator)
            inSimulator(simulator);
    }
    void ShowMetrics(const std::vector<Text>& lines) override { shownMetrics = lines; }
    void ShowAbout() override {}

    std::optional<Text> chosenProfile;
    std::vector<Text> offeredProfiles;
    std::optional<Text> newProfile;
    std::vector<Text> objections; ///< to the names that were asked for, "" for none
    std::optional<Text> password;
    std::optional<std::filesystem::path> chosenFile;
    std::optional<std::filesystem::path> chosenFolder;
    std::function<bool(EntryList&)> inEntries;   ///< what the person does in the window; true: OK
    std::function<void(Simulator&)> inSimulator; ///< what the person does in the window
    std::vector<Text> shownMetrics;
};

} // namespace ondrilo
