#include "tests/app/RunningSystem.h"

#include <random>

namespace ondrilo {
namespace {

constexpr int kSwitch = vk::Num0 + 5;

/// Somebody, or something, that presses whatever there is: keys by mouse and by hot key, a switch, keys of
/// the keyboard, links, commands, while the focus wanders and profiles change.
class StressTest : public RunningSystem {
  protected:
    StressTest() {
        const Text more = "TECLA TECLA_IMAGEM G\\gato.bmp gato G\\gato.bmp\n"
                          "TECLA TECLA_NORMAL P P /opt/p.exe\nTECLA TECLA_NORMAL I I i 0\n"
                          "TECLA TECLA_NORMAL A A [Alterar-Perfil-Utilizador;;;ana]\n"
                          "TECLA TECLA_NORMAL G G [Alterar-Perfil-Utilizador;;;generico]\n"
                          "TECLA TECLA_NORMAL V V [Apagar-Palavra]\nTECLA TECLA_NORMAL W W [Apagar-Frase]\n"
                          "TECLA TECLA_NORMAL F F [Sintetizar-Fala-Frase]\n"
                          "TECLA TECLA_NORMAL T T [Sintetizar-Fala-Area-Trabalho]\n"
                          "TECLA TECLA_NORMAL E E [Enviar-Mensagem-Editor_Externo]\n";
        folder.Write("Casa.tec", Text(kKeyboard) + more);
        folder.Write("outro.tec", Text(kKeyboard) +
                                      "TECLA TECLA_NORMAL C C Casa.tec\nLINHA vazia\n"
                                      "LINHA fim\nGRUPO vazio\nGRUPO fim\n" +
                                      more);
        folder.Write("ana.cfg", Text(kOptions) + "METODO_VARRIMENTO Inverso\nOUVIR_ANTES_COMPLETAR 1\n"
                                                 "VER_ANTES_COMPLETAR 1\nPISTA_SINTETIZADA_VARRIMENTO 1\n");
    }

    int Any(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    template <typename T>
    const T& OneOf(const std::vector<T>& items) {
        return items[static_cast<std::size_t>(Any(static_cast<int>(items.size())))];
    }

    void PressAnyKey() {
        const auto all = view->Keyboard().AllKeys();
        const auto key = OneOf(all);
        const auto output = Key(key).data.output;
        const auto before = Written();
        const bool writesAtOnce = output.size() == 1 && Key(key).Type() == KeyType::Normal &&
                                  Key(key).IsActive() && view->TextTargets().IsInternal() &&
                                  !Options().IsOn(option::OUVIR_ANTES_COMPLETAR);
        const int button = std::max(0, Any(12) - 9);
        Click(key, button);
        if (writesAtOnce && button == 0) {
            EXPECT_EQ(Written().size(), before.size() + 1) << "a selection was lost";
        }
    }
    void PressKeyOfTheKeyboard() {
        static const std::vector<int> codes{
            'A',       'O',     vk::F1,    vk::F1 + 1,    vk::F1 + 10,  vk::F1 + 11, vk::Left, vk::Right,
            vk::Space, vk::Tab, vk::Enter, vk::Backspace, vk::CapsLock, vk::Control, vk::Shift};
        Press(OneOf(codes));
    }
    void MoveTheSwitch() {
        switchDown = !switchDown;
        switchDown ? keys.KeyDown(kSwitch) : keys.KeyUp(kSwitch);
        Drain();
    }
    void SendAnything() {
        static const std::vector<Message> messages{
            Message::UM_KEY_HOVER,    Message::UM_SCAN_KEY_SELECTED,  Message::UM_KEY_PRESS,
            Message::UM_SCAN_ADVANCE, Message::UM_SCAN_LINE_SELECTED, Message::UM_LAYOUT};
        queue.Post(OneOf(messages), Any(6) * 65536 + Any(3) * 256 + Any(40));
        Drain();
    }
    void MoveTheFocus() { desktop.MoveFocus(static_cast<WindowId>(OneOf(std::vector<int>{0, 1, 1, 1, 7}))); }
    void DoAnything() {
        switch (Any(12)) {
        case 0:
            return PressKeyOfTheKeyboard();
        case 1:
            return MoveTheSwitch();
        case 2:
            return SendAnything();
        case 3:
            return Any(10) == 0 ? MoveTheFocus() : frame.listener->OnDraw();
        case 4:
        case 5:
            return Tick(1 + Any(8));
        default:
            return PressAnyKey();
        }
    }
    void ChangeProfile(TextView name) {
        Click("[Alterar-Perfil-Utilizador " + Text(name) + "]");
        EXPECT_EQ(Options().profileName, name);
        EXPECT_FALSE(keys.held.contains(vk::Shift)) << "Shift outlived its session";
    }

    std::minstd_rand random{20311};
    bool switchDown = false;
};

TEST_F(StressTest, NothingThatCanBePressedLosesASelectionOrLeavesAKeyDown) {
    StartWriting("METODO_VARRIMENTO Regular\nVELOCIDADE_VARRIMENTO 200\n");
    for (int round = 0; round < 100; ++round) {
        for (int i = 0; i < 100; ++i) {
            DoAnything();
            auto held = keys.held;
            held.erase(vk::Shift); // may wait for its letter
            held.erase(kSwitch);
            ASSERT_TRUE(held.empty()) << "key " << *held.begin() << " stayed down";
        }
        ChangeProfile(round % 2 == 0 ? "ana" : "generico");
    }
    if (switchDown)
        MoveTheSwitch();
}

} // namespace
} // namespace ondrilo
