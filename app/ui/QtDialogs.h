#pragma once

#include "dialogs/BaseDialog.h"

namespace ondrilo {

/// The dialogs that the logic asks for, as top-most windows that give the focus back.
class QtDialogs : public Dialogs {
  public:
    explicit QtDialogs(const DialogHost& host) : host(host) {}
    [[nodiscard]] std::optional<Text> ChooseProfile(const std::vector<Text>& names) override;
    [[nodiscard]] std::optional<Text>
    AskProfileName(const std::function<Text(TextView name)>& objection) override;
    [[nodiscard]] std::optional<Text> AskPassword() override;
    [[nodiscard]] std::optional<std::filesystem::path> ChooseTextFile() override;
    [[nodiscard]] std::optional<std::filesystem::path> ChooseFolder(TextView title) override;
    [[nodiscard]] bool EditEntries(EntryList& entries) override;
    void SimulateWords(Simulator& simulator) override;
    void ShowMetrics(const std::vector<Text>& lines) override;
    void ShowAbout() override;

  private:
    DialogHost host;
};

} // namespace ondrilo
