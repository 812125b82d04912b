#pragma once

#include "platform/Geometry.h"
#include "platform/Measure.h"
#include "profiles/CAccessOptions.h"
#include "profiles/CUserProfileProperties.h"

namespace ondrilo {

enum class ScanningMethod { Nenhum, Regular, Inverso, PassoAPasso };

/// How the keys are reached by switches. Times in ms: what is no multiple of 100 is never due.
struct ScanningSettings {
    ScanningMethod method = ScanningMethod::Nenhum;
    int speed = 0;         ///< between two steps of the highlight
    int switchLatency = 0; ///< for which a switch must stay as it is to count
    int maxCycles = 0;     ///< rounds at one level before scanning gives up

    bool operator==(const ScanningSettings&) const = default;
};

/// What a profile says about the look and behaviour of keyboards. Lengths in logical pixels.
struct KeyboardSettings {
    Font font;

    Color backgroundColor = 0; ///< of keys without a colour of their own
    Color textColor = 0;
    Color predictionBackground = 0; ///< of the four prediction types, always
    int fillType = 0;               ///< 0 plain, anything else a gradient
    int gradientAngle = 0;          ///< degrees
    Color gradientColor = 0;

    int minimumWidth = 250;     ///< least width to which lines are stretched
    int keyMargin = 10;         ///< around text in a key
    int imageMargin = 10;       ///< around pictograms in a key
    int keyHeight = 50;         ///< of text keys, and the unit of built-in widths
    int imageHeight = 50;       ///< of pictograms
    int sentenceKeyHeight = 0;  ///< of sentence prediction keys; 0 means computed
    int sentencePictograms = 6; ///< pictograms that a pictogram sentence key holds
    int lineGap = 0;
    int groupGap = 0;
    int keyGap = 0;
    bool stretchLines = false;     ///< all lines equally wide
    bool equalLineHeights = false; ///< all lines equally tall

    int hoverSpeechLimit = 0; ///< how often a key under the pointer is spoken
    bool keySound = false;
    int dwellTime = 0; ///< ms for which the pointer rests on a key to press it; 0: it never does

    ScanningSettings scanning;

    bool operator==(const KeyboardSettings&) const = default;
};

[[nodiscard]] KeyboardSettings MakeKeyboardSettings(const CUserProfileProperties& profile,
                                                    const CAccessOptions& access);

} // namespace ondrilo
