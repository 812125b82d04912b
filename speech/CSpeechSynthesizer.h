#pragma once

#include "platform/DataFolder.h"
#include "platform/FileStore.h"
#include "speech/SpeechExceptions.h"
#include "speech/SpeechService.h"

namespace ondrilo {

/// One voice of a speech service with its exceptions: texts that it says badly and that are spoken in another
/// spelling. An exception holds for the whole of what is spoken, never for a word inside it. The exceptions
/// of a voice are a file in the data folder, "<voice>_text_exceptions.txt".
class CSpeechSynthesizer : public SpeechService {
  public:
    /// `engine` outlives this.
    CSpeechSynthesizer(SpeechEngine& engine, DataFolder folder) : engine(engine), folder(std::move(folder)) {}

    /// Voices may become known later: every name but the empty one is taken, and reads its exceptions at
    /// once.
    bool SelectVoice(TextView name, const SpeechManner& manner) override;
    bool Speak(TextView text) override;
    void Release() override;

    /// In the order in which they are listed.
    [[nodiscard]] SpeechExceptions::List GetExceptions() const { return exceptions.All(); }
    /// Both write the file at once. What they are given counts from now on even if that fails.
    SaveResult SetException(TextView text, TextView replacement);
    SaveResult RemoveException(TextView text);

  private:
    void LoadExceptions();
    [[nodiscard]] std::filesystem::path ExceptionsFile() const;
    SaveResult SaveExceptions() const;

    SpeechEngine& engine;
    DataFolder folder;
    Text voice; ///< empty while none is selected
    SpeechManner manner;
    SpeechExceptions exceptions;
};

} // namespace ondrilo
