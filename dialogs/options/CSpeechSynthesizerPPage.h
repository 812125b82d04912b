#pragma once

#include "dialogs/options/OptionsPage.h"
#include "dialogs/options/VoiceChooser.h"

namespace ondrilo {

/// The voices, and what they say when.
class CSpeechSynthesizerPPage : public OptionsPage {
    Q_OBJECT

  public:
    explicit CSpeechSynthesizerPPage(const OptionsPageContext& context);

  private:
    void AddVoice();
    void AddCueVoice();
    void Hear();
    void HearCue();
    void EditExceptions();
    /// Tells if the profile has none.
    [[nodiscard]] bool HasVoice();

    VoiceChooser* voice;
    VoiceChooser* cueVoice;
};

} // namespace ondrilo
