#include "app/TargetController.h"

#include "targets/CGenericWordProcessor.h"

#include <utility>

namespace ondrilo {
namespace {

/// Whether a title is that of the word processor with a target of its own: the word stands at its very end
/// and nowhere before.
bool IsMicrosoftWord(TextView title) {
    constexpr TextView kName = "Word";
    const auto found = title.find(kName);
    return found != TextView::npos && found + kName.size() == title.size();
}

} // namespace

TargetController::TargetController(const Environment& environment, const CUserProfileSet& profiles,
                                   Targets& targets, SpecialKeys& specialKeys, PreviewController& preview,
                                   PredictionCycle& cycle, KeySender& sender, CKeyboard& keyboardSimulator,
                                   Countdowns& countdowns, EventWriter& events)
    : desktop(environment.desktop), targetHook(environment.targetHook),
      accessibleText(environment.accessibleText), queue(environment.queue), frame(environment.frame),
      windows(environment.windows), profiles(profiles), targets(targets), specialKeys(specialKeys),
      preview(preview), cycle(cycle), sender(sender), keyboardSimulator(keyboardSimulator),
      countdowns(countdowns), events(events) {
}

void TargetController::CreateInternalEditor() {
    const auto& profile = profiles.Active().properties;
    const bool wanted = profile.IsOn(option::PROCESSADOR_TEXTO_INTERNO);
    frame.SetAcceptsFocus(wanted);
    if (!wanted)
        return;
    auto editor = std::make_unique<CInternalWordProcessor>(windows.CreateEditorBox(), keyboardSimulator,
                                                           desktop, queue);
    if (!editor->Create())
        return;
    editor->SetWidth(frame.ClientSize().width);
    targets.SetInternal(std::move(editor));
    DressEditor();
}

void TargetController::DressEditor() {
    const auto& profile = profiles.Active().properties;
    auto& editor = *targets.Internal();
    editor.SetHeight(profile.Get(option::ALTURA_EDITOR_MENSAGENS));
    editor.SetFontName(profile.Get(option::TIPO_LETRA));
    editor.SetFontSize(profile.Get(option::TAMANHO_LETRAS_PALAVRAS_PREDITAS));
}

void TargetController::ApplyOptions() {
    const bool wanted = profiles.Active().properties.IsOn(option::PROCESSADOR_TEXTO_INTERNO);
    if (wanted && targets.Internal()) {
        DressEditor();
    } else if (wanted != (targets.Internal() != nullptr)) {
        targets.Release();
        CreateInternalEditor();
        countdowns.target.Restart();
    }
    specialKeys.MapSpecialKeys();
}

void TargetController::StartFollowing() {
    targets.Detach();
    lastForegroundWindow = 0;
    recentWindow = 0;
    lastProcess = 0;
    gaveFocusBack = false;
    specialKeys.MapSpecialKeys();
    focusHook = desktop.OnFocusChange([this] { OnFocusChange(); });
}

void TargetController::StopFollowing() {
    targets.Release();
    focusHook.reset();
}

void TargetController::OnFocusChange() {
    const auto foreground = desktop.ForegroundWindow();
    gaveFocusBack &= foreground == 0;
    if (IsStillThere(foreground)) {
        recentWindow = foreground;
        return;
    }
    // Window managers pass through no window at all on the way from one to another.
    if (foreground != 0 || RemainingWindow() == 0)
        targets.Detach();
    preview.HidePreview();
    countdowns.target.Restart();
}

/// Another window of the same program leaves the target what it is. The same number may be another window:
/// what a program leaves behind at its end, the next one gets.
bool TargetController::IsStillThere(WindowId foreground) const {
    const auto process = desktop.ProcessOf(foreground);
    return process == lastProcess && (process != 0 || foreground == lastForegroundWindow);
}

/// Of the program written in, the window that last had the focus, or else the one that was attached; 0 if
/// both are gone.
WindowId TargetController::RemainingWindow() const {
    for (const auto window : {recentWindow, lastForegroundWindow})
        if (window != 0 && IsStillThere(window))
            return window;
    return 0;
}

void TargetController::AttachForeground() {
    const auto foreground = desktop.ForegroundWindow();
    if (foreground == 0 && GiveFocusBack())
        return;
    if (targets.Current() && IsStillThere(foreground))
        return;
    lastForegroundWindow = foreground;
    recentWindow = foreground;
    lastProcess = desktop.ProcessOf(foreground);
    AttachTarget();
}

/// Nobody has the focus, as after a click on the bare desktop or at the end of a program, and what the person
/// writes next would be lost. The window that they wrote in gets it back, or else our editor.
bool TargetController::GiveFocusBack() {
    const auto window = RemainingWindow();
    const bool isElsewhere = lastProcess != 0 && window != 0 && !desktop.IsOurs(window);
    const bool hasEditor = targets.Internal() && frame.State() != WindowState::Minimized;
    if (std::exchange(gaveFocusBack, isElsewhere || hasEditor) || !gaveFocusBack)
        return false;
    if (isElsewhere)
        desktop.Activate(window);
    else
        frame.Activate();
    countdowns.target.Restart();
    return true;
}

void TargetController::OnExposed() {
    if (desktop.ForegroundWindow() == 0 && countdowns.target.IsStopped())
        countdowns.target.Restart();
}

void TargetController::AttachTarget() {
    // First: there is one watch at a time, and with the former target's the new one's would end.
    targets.Detach();
    if (desktop.IsOurs(lastForegroundWindow))
        AttachInternal();
    else if (lastForegroundWindow != 0)
        AttachExternal(lastForegroundWindow);
    // Nobody would tell of the letter that ends it, and the key itself writes nowhere now.
    if (!targets.Current())
        sender.ReleaseShift();
    specialKeys.MapSpecialKeys();
    cycle.RunPrediction();
}

void TargetController::AttachInternal() {
    targets.UseInternal();
    if (!targets.Internal())
        return;
    targets.Internal()->TextBox().TakeFocus();
    events.Event("WORD_PROCESSOR_CHANGE", "INTERNAL_WORD_PROCESSOR");
}

void TargetController::AttachExternal(WindowId window) {
    const auto title = desktop.TitleOf(window);
    const bool isWord = IsMicrosoftWord(title);
    events.Event("WORD_PROCESSOR_CHANGE", isWord ? TextView("MICROSOFT_WORD_PROCESSOR") : TextView(title));
    auto target = std::make_unique<CGenericWordProcessor>(
        window, keyboardSimulator,
        CGenericWordProcessor::Surroundings{targetHook, accessibleText, desktop, queue, [this] {
                                                countdowns.prediction.Restart();
                                            }});
    if (target->Create())
        targets.UseExternal(std::move(target));
}

} // namespace ondrilo
