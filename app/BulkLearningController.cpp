#include "app/BulkLearningController.h"

#include "platform/FileStore.h"

namespace ondrilo {
namespace {

constexpr std::size_t kClipboardLimit = 10'000;

} // namespace

std::optional<std::filesystem::path> CopyClipboardToFile(const Environment& environment) {
    const auto text = environment.clipboard.GetText();
    const auto refuse = [&](TextView reason) {
        environment.frame.SetStatusMessage(reason);
        return std::nullopt;
    };
    if (text.empty())
        return refuse("A área de transferência não tem texto."_w);
    if (text.size() >= kClipboardLimit)
        return refuse("O texto da área de transferência é demasiado longo."_w);
    const auto path = environment.dataFolder.Path("ClipboardFile.tmp");
    if (const auto saved = ReplaceFile(path, text); !saved)
        return refuse(saved.problem);
    return path;
}

BulkLearningController::BulkLearningController(const Environment& environment, CUserProfileSet& profiles)
    : environment(environment), profiles(profiles) {
}

void BulkLearningController::LearnFromFile() {
    if (const auto text = environment.dialogs.ChooseTextFile())
        Learn(*text);
}

void BulkLearningController::LearnFromClipboard() {
    if (const auto text = CopyClipboardToFile(environment))
        Learn(*text);
}

void BulkLearningController::Learn(const std::filesystem::path& text) {
    environment.frame.SetBusy(true);
    auto& dictionary = profiles.Active().dictionary;
    dictionary.LearnWordsFromFile(text);
    dictionary.LearnWordPairsFromFile(text);
    dictionary.LearnSentencesFromFile(text);
    dictionary.LearnSentencePairsFromFile(text);
    // Told as done, it must outlive a crash.
    const auto saved = dictionary.SaveUserFiles();
    environment.frame.SetBusy(false);
    if (!saved)
        environment.frame.SetStatusMessage(saved.problem);
    environment.boxes.Show("As palavras e frases do utilizador foram incorporadas no dicionário."_w);
}

} // namespace ondrilo
