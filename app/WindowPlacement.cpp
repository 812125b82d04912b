#include "app/WindowPlacement.h"

#include <algorithm>

namespace ondrilo {
namespace {

/// No desktop reaches further, in pixels.
constexpr int kFarthest = 32'767;

/// A picture anywhere on the machine, or one named relative to the data folder.
std::filesystem::path PictureFile(const DataFolder& folder, const Text& name) {
    std::filesystem::path path = ToUtf8(name);
    return path.is_absolute() ? path : folder.Find(name);
}

class UpdateHold {
  public:
    explicit UpdateHold(FrameWindow& frame) : frame(frame) { frame.HoldUpdates(true); }
    UpdateHold(const UpdateHold&) = delete;
    UpdateHold& operator=(const UpdateHold&) = delete;
    ~UpdateHold() { frame.HoldUpdates(false); }

  private:
    FrameWindow& frame;
};

} // namespace

WindowPlacement::WindowPlacement(const Environment& environment, const CUserProfileSet& profiles,
                                 const CSystemOptions& systemOptions, COnScreenKeyboard& keyboard,
                                 const Targets& targets, const SessionServices& services)
    : frame(environment.frame), desktop(environment.desktop), textMeasure(environment.textMeasure),
      pictureMeasure(environment.pictureMeasure), profiles(profiles), systemOptions(systemOptions),
      keyboard(keyboard), targets(targets), services(services) {
}

void WindowPlacement::LayOut() {
    if (!keyboard.IsOpen())
        return;
    const UpdateHold hold(frame);
    keyboard.LayOut(textMeasure, pictureMeasure);
    switch (frame.State()) {
    case WindowState::Maximized:
        FillMaximizedWindow();
        break;
    case WindowState::Normal:
        FitWindow();
        break;
    case WindowState::Minimized:
        break;
    }
}

void WindowPlacement::FillMaximizedWindow() {
    const auto client = frame.ClientSize();
    const auto size = keyboard.GetSize();
    const int editorHeight = EditorHeight();
    const bool centred = Options().IsOn(option::CENTRA_ELEMENTOS_JANELA);
    const int top = centred ? (client.height - size.height - editorHeight) / 2 : 0;
    const int editorWidth =
        Options().IsOn(option::AJUSTA_COMPRIMENTO_EDITOR_MENSAGENS) ? size.width : client.width;
    PlaceEditor(editorWidth, {(client.width - editorWidth) / 2, top});
    PlaceKeyboard({(client.width - size.width) / 2, top + editorHeight});
}

void WindowPlacement::FitWindow() {
    constexpr int kWidthWithoutKeys = 600; // pixels: a window with nothing to follow must stay in sight
    auto size = keyboard.GetSize();
    if (size.width == 0)
        size.width = kWidthWithoutKeys;
    const int editorHeight = EditorHeight();
    PlaceEditor(size.width, {0, 0});
    PlaceKeyboard({0, editorHeight});
    frame.FitClient({size.width, editorHeight + size.height});
    if (!Options().IsOn(option::CENTRAR_JANELA))
        return;
    const auto whole = frame.Frame();
    const auto screen = desktop.ScreenArea({whole.x, whole.y});
    frame.MoveTo(
        {screen.x + (screen.width - whole.width) / 2, screen.y + (screen.height - whole.height) / 2});
}

void WindowPlacement::PlaceEditor(int width, Point corner) {
    auto* editor = targets.Internal();
    if (!editor)
        return;
    editor->SetWidth(width);
    editor->SetHeight(EditorHeight());
    editor->Move(corner.x, corner.y);
}

void WindowPlacement::PlaceKeyboard(Point corner) {
    keyboard.MoveTo(corner);
    if (keyboardWindow)
        keyboardWindow->MoveTo(corner);
}

int WindowPlacement::Coordinate(IntegerOption option) const {
    return std::clamp(Options().Get(option), -kFarthest, kFarthest);
}

int WindowPlacement::EditorHeight() const {
    return targets.Internal() ? std::clamp(Options().Get(option::ALTURA_EDITOR_MENSAGENS), 0, kFarthest) : 0;
}

void WindowPlacement::RefreshTitle() {
    Text title = "Ondrilo V3.0: ";
    title += Options().profileName + " (" + Options().activeKeyboardName + ")";
    title += Options().IsOn(option::REGISTAR_EVENTOS) ? " (Logging Ligado)" : " (Logging Desligado)";
    title += TitleMark();
    frame.SetTitle(title);
}

TextView WindowPlacement::TitleMark() const {
    if (keyboard.IsEditing())
        return "|EDIÇÃO DE TECLADO|"_w;
    if (services.cooperation.IsUp())
        return services.cooperation.Role() == CooperativeRole::Server ? " (SERVIDOR)" : " (CLIENTE)";
    if (systemOptions.IsOn(system_option::ADAPTACAO_CONTEXTO) &&
        Options().IsOn(option::ADAPTACAO_LOCAL_FISICO) && !services.gps.IsActive())
        return " (GPS Inactivo)";
    return "";
}

void WindowPlacement::SetUpWindow() {
    RefreshTitle();
    frame.SetTopMost(true);
    if (Options().IsOn(option::INICIAR_JANELA_MAXIMIZADA)) {
        frame.Show(WindowState::Maximized);
    } else if (Options().IsOn(option::INICIAR_JANELA_MINIMIZADA)) {
        frame.Show(WindowState::Minimized);
    } else {
        frame.Show(WindowState::Normal);
        frame.MoveTo(
            {Coordinate(option::POSICAO_INICIAL_JANELA_X), Coordinate(option::POSICAO_INICIAL_JANELA_Y)});
    }
    ShowBackground();
}

void WindowPlacement::ShowBackground() {
    WindowBackground background;
    if (const auto& picture = Options().Get(option::IMAGEM_FUNDO); !picture.empty())
        background.picture = PictureFile(profiles.Folder(), picture);
    background.fill = Options().Get(option::TIPO_PREENCHIMENTO_JANELA);
    background.first = Options().Get(option::COR_FUNDO_JANELA);
    background.second = Options().Get(option::COR_FUNDO_JANELA2);
    background.angle = Options().Get(option::ANGULO_DEGRADE_JANELA);
    frame.SetBackground(background);
}

void WindowPlacement::ClearBackground() {
    frame.SetBackground(std::nullopt);
}

} // namespace ondrilo
