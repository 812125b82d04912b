#include "speech/CSpeechSynthesizer.h"

#include <algorithm>

namespace ondrilo {
namespace {

constexpr TextView kWarmUp = " ";

/// Not only what this file system refuses: the folder may be copied to another.
Text AsFileName(TextView name) {
    constexpr TextView unfit = "/\\:*?\"<>|";
    Text fit(name);
    std::ranges::replace_if(
        fit, [&](char c) { return static_cast<unsigned char>(c) < ' ' || unfit.find(c) != TextView::npos; },
        '_');
    return fit;
}

} // namespace

bool CSpeechSynthesizer::SelectVoice(TextView name, const SpeechManner& newManner) {
    voice = name;
    manner = newManner;
    LoadExceptions();
    // A first text would wait for the voice to be loaded.
    return Speak(kWarmUp);
}

bool CSpeechSynthesizer::Speak(TextView text) {
    if (voice.empty())
        return false;
    engine.Say(exceptions.Find(text).value_or(text), voice, manner);
    return true;
}

void CSpeechSynthesizer::Release() {
    if (voice.empty())
        return;
    voice.clear();
    engine.Stop();
}

SaveResult CSpeechSynthesizer::SetException(TextView text, TextView replacement) {
    exceptions.Set(text, replacement);
    return SaveExceptions();
}

SaveResult CSpeechSynthesizer::RemoveException(TextView text) {
    exceptions.Remove(text);
    return SaveExceptions();
}

void CSpeechSynthesizer::LoadExceptions() {
    exceptions = {};
    if (voice.empty())
        return;
    const auto file = ReadFile(ExceptionsFile());
    exceptions.Parse(file.bytes);
    // Whoever looks for the file finds it. Where it cannot be made, the first exception will tell.
    if (file.state == ReadState::Missing)
        (void)SaveExceptions();
}

std::filesystem::path CSpeechSynthesizer::ExceptionsFile() const {
    return folder.Path(AsFileName(voice) + "_text_exceptions.txt");
}

SaveResult CSpeechSynthesizer::SaveExceptions() const {
    return ReplaceFile(ExceptionsFile(), exceptions.Format());
}

} // namespace ondrilo
