#pragma once

#include "app/FrameWindow.h"
#include "app/SessionWindows.h"
#include "platform/AccessibleText.h"
#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/DataFolder.h"
#include "platform/Desktop.h"
#include "platform/Dialogs.h"
#include "platform/Keyboard.h"
#include "platform/Measure.h"
#include "platform/MessageQueue.h"
#include "platform/Programs.h"
#include "platform/Sound.h"
#include "platform/SpeechEngine.h"
#include "platform/TargetHook.h"
#include "profiles/OptionDialogs.h"

namespace ondrilo {

/// Everything outside the logic that a running system needs. All of it outlives the system.
struct Environment {
    DataFolder dataFolder;
    MessageQueue& queue;
    Clock& clock;
    TimerService& timers;
    Desktop& desktop;
    KeyOutput& keys;
    TargetHook& targetHook;
    AccessibleText& accessibleText;
    MessageBoxes& boxes;
    Dialogs& dialogs;
    OptionDialogs& optionDialogs;
    Clipboard& clipboard;
    SoundPlayer& sounds;
    SpeechEngine& speechEngine;
    ProgramStarter& programs;
    TextMeasure& textMeasure;
    PictureMeasure& pictureMeasure;
    FrameWindow& frame;
    SessionWindows& windows;
};

} // namespace ondrilo
