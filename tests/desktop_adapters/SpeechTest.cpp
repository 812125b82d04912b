#include "Support.h"
#include "platform/qt/SpeechDispatcher.h"
#include "platform/qt/SsipProtocol.h"
#include "tests/support/PrivateSpeechService.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <gtest/gtest.h>

#include <algorithm>

namespace ondrilo {
namespace {

constexpr TextView kPortuguese = "Portuguese (Portugal) - recorder";
constexpr TextView kEnglish = "English (Great Britain) - recorder";
/// How the service says a text of which nothing is wished.
const std::string kPlainly = "Portuguese (Portugal)|10|0|90|";

/// A service that speaks into files, and the program's own side.
struct SpeechTest : testing::Test {
    void StartBoth() {
        service.Start();
        ASSERT_TRUE(Eventually([&] { return !speech.Voices().empty(); }));
    }
    void Say(TextView text) { speech.Say(text, kPortuguese, {}); }
    [[nodiscard]] bool Begins(const std::string& text) {
        return Eventually([&] { return service.HasSaid(kPlainly + text); });
    }
    [[nodiscard]] bool Ends(const std::string& text) {
        return Eventually([&] { return service.HasSaid("end|" + text); });
    }

    PrivateSpeechService service;
    SpeechDispatcher speech{{service.Socket(), false}};
};

TEST(Ssip, PutsLinesTogetherThatArriveInPiecesAndKnowsWhatIsNone) {
    SsipReader reader;
    reader.Append("249-P\xC3");
    EXPECT_FALSE(reader.Next());
    reader.Append("\xA3o\tpt\r\n249 OK\r\n20");
    const auto row = reader.Next();
    EXPECT_EQ(row->text, "P\xC3\xA3o\tpt");
    EXPECT_FALSE(row->last);
    EXPECT_TRUE(reader.Next()->last);
    EXPECT_FALSE(reader.Next());
    reader.Append("\r\nHTTP/1.1\r\n");
    EXPECT_EQ(reader.Next()->code, 0);
    EXPECT_EQ(reader.Next()->code, 0);
}

TEST(Ssip, OffersEachVoiceOnceUnderANameThatWindows1252Has) {
    SpeechVoices voices;
    for (const auto* row : {"Gal\xC3\xAAgo\tgl\tnone", "M\xC4\x81ori\tmi\tnone", "Maori\tmi\tnone",
                            "Maori+Alex\tmi\tAlex", "\xE4\xB8\xAD\tzh\tnone", "", "\tpt"})
        voices.Add("robot", row);
    EXPECT_EQ(voices.Descriptions(), (std::vector<Text>{Text("Gal\xEAgo - robot"), "Maori - robot"}));
    EXPECT_EQ(voices.Find("Maori - robot")->name, "M\xC4\x81ori");
}

TEST_F(SpeechTest, SaysTextsAsTheyAreInTheVoiceAndMannerAskedFor) {
    service.Start();
    Say("a lista ainda vem a caminho");
    speech.Say("Ol\xE1, n\xE3o \xE9 'bom'? <b> & 5 \x80\r\n.", kPortuguese,
               {.rate = 100, .pitch = -30, .volume = 55});
    ASSERT_TRUE(Ends("Olá, não é 'bom'? <b> & 5 €  ."));
    EXPECT_EQ(service.Said().find("Portuguese (Portugal)|100|-30|55|Olá"), 0);
    EXPECT_GT(service.Folder().Read("said.wav").size(), 1000);
    speech.Say("hello", kEnglish, {});
    ASSERT_TRUE(Eventually([&] { return service.HasSaid("English (Great Britain)|10|0|90|hello"); }));
    Say(".fim.");
    EXPECT_TRUE(Begins(".fim."));
    speech.Say("ningu\xE9m", "Portuguese (Brazil) - recorder", {});
    PassTime(100);
    EXPECT_EQ(service.Said().find("ninguém"), std::string::npos);
}

TEST_F(SpeechTest, CutsOffWhatIsBeingSaidAlsoWhenLettersComeInABurst) {
    StartBoth();
    Say("uma frase comprida");
    ASSERT_TRUE(Begins("uma frase comprida"));
    for (const int pause : {0, 1, 3, 7, 20, 40})
        for (const char letter : {'a', 'b', 'c', 'd', 'e'}) {
            Say({&letter, 1});
            PassTime(pause);
        }
    Say("fim");
    ASSERT_TRUE(Begins("fim"));
    Say(" "); // only gets the voice ready
    ASSERT_TRUE(Ends("fim"));
    const auto said = service.Said();
    EXPECT_EQ(said.find("end|"), said.find("end|fim"));
    Say("calado");
    ASSERT_TRUE(Begins("calado"));
    speech.Stop();
    PassTime(1000);
    EXPECT_FALSE(service.HasSaid("end|calado"));
}

TEST_F(SpeechTest, GoesOnWithTheNewestTextWhenTheServiceDiesInMidSentence) {
    StartBoth();
    Say("esta frase perde-se");
    ASSERT_TRUE(Begins("esta frase perde-se"));
    service.Kill();
    Say("esta fica para tr\xE1s");
    PassTime(50);
    Say("esta ouve-se");
    service.Start();
    ASSERT_TRUE(Ends("esta ouve-se"));
    EXPECT_EQ(service.Said().find("fica"), std::string::npos);
    EXPECT_EQ(service.Said().rfind(kPlainly + "esta frase"), 0); // once, in the beginning
}

TEST_F(SpeechTest, LeavesAHangingServiceAloneAndSaysTheNewestTextOnceWhenItGoesOn) {
    StartBoth();
    service.Hang();
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 100; ++i)
        Say("antigo");
    EXPECT_LT(time.elapsed(), 100);
    PassTime(2500); // longer than a reply may take
    Say("novo");
    service.GoOn();
    ASSERT_TRUE(Ends("novo"));
    EXPECT_EQ(service.Said(), kPlainly + "novo\nend|novo\n");
}

TEST(SpeechService, IsLeftInPeaceIfItHangsUpOnEverybody) {
    const TemporaryFolder folder;
    const auto path = folder.Path() / "socket";
    QLocalServer service;
    ASSERT_TRUE(service.listen(QString::fromStdString(path.string())));
    int calls = 0;
    QObject::connect(&service, &QLocalServer::newConnection, [&] {
        auto* caller = service.nextPendingConnection();
        caller->write(QByteArray("200 OK\r\n").repeated(10)); // to all that it is told and asked first
        caller->disconnectFromServer();
        ++calls;
    });
    const SpeechDispatcher speech({path.string(), false});
    PassTime(1000);
    EXPECT_GE(calls, 2);
    EXPECT_LE(calls, 5);
}

TEST_F(SpeechTest, NeverSaysWhatIsStaleWhenAServiceComesLate) {
    Say("antigo");
    PassTime(5500);
    service.Start();
    ASSERT_TRUE(Eventually([&] { return !speech.Voices().empty(); }));
    Say("novo");
    ASSERT_TRUE(Ends("novo"));
    EXPECT_EQ(service.Said().find("antigo"), std::string::npos);
}

TEST(SpeechStart, StartsThePersonsOwnServiceIfNobodyListensAndListsThousandsOfVoices) {
    const PrivateSpeechService service(true);
    const auto path = qgetenv("PATH");
    std::filesystem::permissions(
        service.Folder().Write("speech-dispatcher",
                               "#!/bin/sh\n[ \"$*\" = --spawn ] && exec " + service.Command()),
        std::filesystem::perms::owner_all);
    qputenv("PATH", QByteArray::fromStdString(service.Folder().Path().string()) + ":" + path);
    const SpeechDispatcher speech({service.Socket(), true});
    ASSERT_TRUE(Eventually([&] { return !speech.Voices().empty(); }));
    qputenv("PATH", path);
    const auto voices = speech.Voices();
    EXPECT_GT(voices.size(), 100);
    EXPECT_EQ(voices[1], kEnglish);
    EXPECT_EQ(std::count(voices.begin(), voices.end(), "Portuguese (Portugal) - espeak-ng"), 1);
}

} // namespace
} // namespace ondrilo
