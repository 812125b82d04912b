#include "app/SessionKindNotice.h"

#include "platform/FileStore.h"

namespace ondrilo {
namespace {

constexpr TextView kWhatWorks =
    "A sessão do computador é Wayland.\n\n"
    "Funcionam aqui o editor do Ondrilo, os teclados de ecrã, a predição e a fala.\n\n"
    "Escrever noutros programas precisa de uma sessão X11, que se escolhe ao entrar no computador. "
    "Em Wayland só é possível escrever nos programas que ainda usam o X (por XWayland)."_w;
constexpr TextView kInShort = "Sessão Wayland: para escrever noutros programas, inicie uma sessão X11."_w;

} // namespace

SessionKind SessionKind::FromEnvironment(const std::function<std::string(const std::string&)>& variable) {
    return {.isWayland = variable("XDG_SESSION_TYPE") == "wayland" || !variable("WAYLAND_DISPLAY").empty(),
            .hasX = !variable("DISPLAY").empty()};
}

void TellSessionKind(SessionKind kind, const DataFolder& folder, MessageBoxes& boxes, FrameWindow& frame) {
    if (!kind.isWayland)
        return;
    frame.SetStatusMessage(kInShort);
    const auto remembered = folder.Path("aviso-wayland");
    if (IdentityOf(remembered) != FileIdentity{})
        return;
    boxes.Show(kWhatWorks);
    if (const auto saved = ReplaceFile(remembered, "AVISO_WAYLAND 1\n"); !saved)
        frame.SetStatusMessage(saved.problem);
}

} // namespace ondrilo
