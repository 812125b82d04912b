#include "prediction/VocabularyLists.h"
#include "tests/app/RunningSystem.h"
#include "tests/support/FullDisk.h"

namespace ondrilo {
namespace {

constexpr auto kLocked =
    "As alterações ao sistema estão bloqueadas! Este bloqueio pode ser retirado em Opções Gerais."_w;
constexpr auto kEditing = "Por favor termine a edição do teclado de ecrã antes de realizar esta operação."_w;

struct MenuTest : RunningSystem {

    /// Presses OK in the options after `change`.
    void ChangeOptions(const std::function<void(const PersonalOptions&)>& change) {
        optionDialogs.inProfileOptions = [change](const PersonalOptions& options,
                                                  const ProfileOptionSources&) {
            change(options);
            return true;
        };
        Choose(menu::ProfileOptions);
    }
};

TEST_F(MenuTest, ALockRefusesEveryChangeBeforeItAsksAnythingUntilThePasswordOpensIt) {
    folder.Write("configsis", "ALTERACOES_SISTEMA 0\n");
    StartWriting();
    dialogs.newProfile = "eva";
    optionDialogs.inProfileOptions = [](const auto&, const auto&) {
        return ADD_FAILURE(), true;
    };
    dialogs.inEntries = [](EntryList&) {
        return ADD_FAILURE(), true;
    };
    dialogs.chosenFile = folder.Write("carta.txt", clipboard.text = "sopa");
    const auto guarded = {menu::NewProfile,    menu::ProfileOptions,    menu::Words,
                          menu::Sentences,     menu::Abbreviations,     menu::RemoveLogs,
                          menu::LearnFromFile, menu::LearnFromClipboard};
    for (const int number : guarded)
        Choose(number);
    EXPECT_EQ(boxes.shown, std::vector<Text>(guarded.size(), Text(kLocked)));
    EXPECT_FALSE(Dictionary().GetWord("sopa"));
    bool isSimulating = false;
    dialogs.inSimulator = [&](Simulator&) {
        isSimulating = true;
    };
    Choose(menu::SimulateWords);
    EXPECT_TRUE(isSimulating) << "it changes nothing";

    dialogs.password = "$kalvimo7r$";
    Choose(menu::SystemOptions);
    EXPECT_EQ(boxes.shown.back(), "Senha incorrecta!");
    boxes.shown.clear();
    dialogs.password.reset();
    Choose(menu::SystemOptions);
    EXPECT_EQ(boxes.shown, Texts()) << "to give up is no mistake";
    dialogs.password = "$Kalvimo7R$";
    Choose(menu::SystemOptions);
    EXPECT_NE(folder.Read("configsis").find("ALTERACOES_SISTEMA 1\n"), Text::npos)
        << "open even if the dialog is cancelled";
}

TEST_F(MenuTest, NothingTakesAKeyboardAwayThatIsBeingEdited) {
    StartWriting();
    view->Keyboard().SetEditing(true);
    const auto replacing = {menu::NewProfile, menu::OpenProfile, menu::ProfileOptions,
                            menu::CopyProfileOptions};
    for (const int number : replacing)
        Choose(number);
    EXPECT_EQ(boxes.shown, std::vector<Text>(replacing.size(), Text(kEditing)));
    EXPECT_TRUE(journal.Has("menu 32913")) << "a refused command is recorded too";
    view->Keyboard().SetEditing(false);
}

TEST_F(MenuTest, WhileACommandRunsNoOtherAndNoKeyAndNoContextChangeTheProfile) {
    folder.Write("configsis", "ADAPTACAO_CONTEXTO 0\n");
    StartWriting("TEMPO_INACTIVIDADE_COMUNICACAO 1\n");
    services.context.next = "ana";
    Type("a");
    int opened = 0;
    optionDialogs.inSystemOptions = [&](CSystemOptions& options, SystemOptionSources&) {
        ++opened;
        options.Set(system_option::ADAPTACAO_CONTEXTO, 1);
        Choose(menu::SystemOptions);
        Click("o");
        Tick(100);
        return false;
    };
    Choose(menu::SystemOptions);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(Written(), "a");
    EXPECT_EQ(Options().profileName, "generico");
    Tick(60);
    EXPECT_EQ(Options().profileName, "ana") << "afterwards the context counts again";
}

TEST_F(MenuTest, AnotherPortOrMechanismRestartsItsSource) {
    StartWriting();
    optionDialogs.inSystemOptions = [](CSystemOptions& options, SystemOptionSources& sources) {
        EXPECT_EQ(sources.GpsPorts().size(), 20U);
        options.Set(system_option::PORTA_GPS, "com3");
        return true;
    };
    Choose(menu::SystemOptions);
    EXPECT_EQ(journal.Take(), Texts("menu 32912", "stop gps", "gps com3"));
}

TEST_F(MenuTest, ANewProfileIsMadeFromTheTemplateAndTakesOver) {
    folder.Write("base.cfg", "NOME_TECLADO outro\n");
    StartWriting();
    for (const TextView name : {"", "ana rita", "ana", "generico", "geral", "base", "a/b", "?ukasz", "a;b"}) {
        dialogs.newProfile = name;
        Choose(menu::NewProfile);
    }
    EXPECT_EQ(std::ranges::count(dialogs.objections, Text()), 0) << "one of them was taken";
    dialogs.newProfile = "eva";
    Choose(menu::NewProfile);
    EXPECT_EQ(frame.title, "Ondrilo V3.0: eva (outro) (Logging Desligado)");
}

TEST_F(MenuTest, ChangedOptionsShowAtOnceAndTheTextStays) {
    StartWriting();
    Type("o");
    Click("outro.tec");
    ChangeOptions([](const PersonalOptions& options) {
        options.properties.Set(option::TECLAS_COMPLETAR, 48);
        options.properties.Set(option::COR_LETRAS, 0x123456);
        options.properties.Set(option::REGISTAR_EVENTOS, 1);
        options.access.Set(access_option::TEMPO_PERMANENCIA, 900);
    });
    EXPECT_EQ(Options().activeKeyboardName, "outro") << "the keyboard did not change";
    EXPECT_EQ(view->Keyboard().Settings().textColor, 0x123456);
    EXPECT_EQ(view->Keyboard().Settings().dwellTime, 900);
    EXPECT_TRUE(services.log.open);
    EXPECT_NE(folder.Read("generico.cfg").find("TECLAS_COMPLETAR 48\n"), Text::npos);
    EXPECT_NE(folder.Read("generico.acs").find("TEMPO_PERMANENCIA 900\n"), Text::npos);
    Press(vk::F1);
    EXPECT_EQ(Written(), "o") << "F1 is a key like others now";

    for (const TextView name : {"outro", "Casa"})
        ChangeOptions([&](const auto& options) { options.properties.Set(option::NOME_TECLADO, name); });
    EXPECT_EQ(Options().activeKeyboardName, "Casa");
    EXPECT_EQ(Labels(0)[0], "0: olá"_w);
    Type("1");
    EXPECT_NE(Written(), "o1") << "the new hot keys are swallowed";

    ChangeOptions([](const auto& options) { options.properties.Set(option::PROCESSADOR_TEXTO_INTERNO, 0); });
    EXPECT_EQ(windows.editor, nullptr);
    EXPECT_FALSE(frame.acceptsFocus);
    ChangeOptions([](const auto& options) { options.properties.Set(option::PROCESSADOR_TEXTO_INTERNO, 1); });
    Tick(6);
    Type("x");
    EXPECT_EQ(Written(), "x");
}

TEST_F(MenuTest, AShorterSilenceCountsAtOnce) {
    folder.Write("configsis", "ADAPTACAO_CONTEXTO 1\n");
    StartWriting("TEMPO_INACTIVIDADE_COMUNICACAO 60\n");
    Tick(100);
    ChangeOptions(
        [](const auto& options) { options.properties.Set(option::TEMPO_INACTIVIDADE_COMUNICACAO, 1); });
    Tick(60);
    EXPECT_GT(services.context.asked, 0);
}

TEST_F(MenuTest, CopiedOptionsTakeEffectInThePersonsOwnProfile) {
    StartWriting("AGENTE_ACTIVO 1\n");
    dialogs.chosenProfile = "ana";
    Choose(menu::CopyProfileOptions);
    EXPECT_TRUE(journal.Has("agent goes")) << "the copied options know nothing of it";
    EXPECT_EQ(Options().profileName, "generico");
    EXPECT_NE(folder.Read("generico.cfg").find("TECLAS_COMPLETAR 48\n"), Text::npos);
    EXPECT_EQ(windows.notice.text, "A carregar perfil... Por favor aguarde.");
}

TEST_F(MenuTest, WordsAreKeptOnOkAndComeBackOnCancel) {
    StartWriting();
    const auto userFrequency = [this](TextView word) {
        const auto entry = Dictionary().GetWord(word);
        return entry ? entry.UserFrequency() : -1;
    };
    Type("zebra ");
    bool ok = false;
    dialogs.inEntries = [&](EntryList& words) {
        EXPECT_EQ(words.Entries().size(), 2U) << "what was learned a moment ago is listed";
        words.Remove("zebra");
        return ok;
    };
    Choose(menu::Words);
    EXPECT_EQ(userFrequency("zebra"), 1);
    {
        const FullDisk disk(0);
        Choose(menu::Words);
    }
    ok = true;
    Choose(menu::Words);
    EXPECT_EQ(userFrequency("zebra"), -1) << "not even as an entry without use";
    Type("lua ");
    const FullDisk disk(0);
    Choose(menu::Words);
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(userFrequency("lua"), 1) << "what the disk does not take stays in memory";
}

TEST_F(MenuTest, OnlyTheChosenProfilesLogsAreCopiedAndRemoved) {
    const TemporaryFolder target;
    for (const auto* log : {"ana 1.log", "ana 2.log", "anabela 1.log", "generico 1.log"})
        folder.Write(log, "registo");
    StartWriting("REGISTAR_EVENTOS 1\n");
    dialogs.chosenProfile = "ana";
    dialogs.chosenFolder = target.Path();
    Choose(menu::CopyLogs);
    EXPECT_EQ(DataFolder(target.Path()).Files(""), Texts("ana 1.log", "ana 2.log"));
    Choose(menu::RemoveLogs);
    EXPECT_EQ(DataFolder(folder.Path()).Files(".log"), Texts("anabela 1.log", "generico 1.log"));
    EXPECT_EQ(boxes.shown, Texts("Registos copiados com sucessos.", "Registos eliminados com sucessos."));
    EXPECT_TRUE(services.log.open);
    dialogs.chosenFolder = target.Path() / "none";
    dialogs.chosenProfile = "anabela";
    Choose(menu::CopyLogs);
    EXPECT_EQ(boxes.shown.back(), "Não foi possível copiar parte dos registos."_w);
}

} // namespace
} // namespace ondrilo
