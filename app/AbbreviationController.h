#pragma once

#include "app/EventWriter.h"
#include "app/PredictionCycle.h"
#include "app/PreviewController.h"
#include "app/SessionState.h"
#include "app/SpeechController.h"
#include "targets/CKeyboard.h"

namespace ondrilo {

/// Replaces an abbreviation left of the insertion point by its full text, heard and shown first if the
/// profile wants so.
class AbbreviationController {
  public:
    AbbreviationController(const CUserProfileSet& profiles, const Targets& targets, PredictionCycle& cycle,
                           SpeechController& speech, PreviewController& preview, CKeyboard& keyboardSimulator,
                           EventWriter& events, SessionState& state, const SessionServices& services);

    /// The expansion key went down, or `key`, which stands for it on the screen.
    void Press(const ActionOrigin& origin, std::optional<COnScreenKeyIdentifier> key = {});
    /// The full text of the word being written; empty if it is no abbreviation.
    [[nodiscard]] Text GetExpansion() const;

  private:
    void ExpandAbbreviation();
    /// Where a press came from.
    struct Source {
        ActionOrigin origin;
        std::optional<COnScreenKeyIdentifier> key;
    };
    void Log(const Source& source, TextView type, TextView expansion);
    [[nodiscard]] const CUserProfileProperties& Options() const { return profiles.Active().properties; }

    const CUserProfileSet& profiles;
    const Targets& targets;
    PredictionCycle& cycle;
    SpeechController& speech;
    PreviewController& preview;
    CKeyboard& keyboardSimulator;
    EventWriter& events;
    SessionState& state;
    SessionServices services;
};

} // namespace ondrilo
