#include "logging/CLog.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr TextView kStart = "TIME Time when the event occurred\n"
                            "OUTPUT Text output caused by the event\n"
                            "EVENT The event\n"
                            "TYPE Type of the element or operation connected to the event\n"
                            "ELEMENT Screen element where the event occurred\n"
                            "CENTER Screen coordinates of the element center where the event occurred\n"
                            "PAGE Communication board where the event occurred\n"
                            "CONTEXT Message content before de event\n"
                            "$$$ End Header\n"
                            "\n"
                            "09:08:07.006 \"\" SYSTEM_INFO START_LOGGING - - - \"-\"\n";

struct FakeLogViewer : LogViewer {
    [[nodiscard]] bool Show() override { return isVisible = true; }
    [[nodiscard]] bool IsVisible() const override { return isVisible; }
    void AddLine(TextView line) override { lines.emplace_back(line); }
    void Close() override { isVisible = false; }

    bool isVisible = false;
    std::vector<Text> lines;
};

class LogTest : public testing::Test {
  protected:
    LogTest() { clock.local = {2026, 2, 1, 9, 8, 7, 6, 1}; }
    [[nodiscard]] Text Written(const std::string& profile = "ana") const {
        return folder.Read(profile + kMoment);
    }
    void Write(const Text& type) { log.Write({"", "KEY_DOWN_A", type, "", "", "Casa", ""}); }

    static constexpr auto kMoment = " Sun Feb  1 09-08-07 2026.log";
    TemporaryFolder folder;
    DataFolder data{folder.Path()};
    FakeClock clock;
    FakeMessageBoxes boxes;
    FakeLogViewer viewer;
    CLog log{data, clock, boxes, viewer};
};

TEST_F(LogTest, OtherProgramsReadEachByteInItsPlace) {
    log.Start("ana");
    log.Write({"casa \"azul\"", "LEFT_MOUSE_DOWN_KEY", "TEXT_KEY_SELECTION_bom dia", "0.1.2", "310.42",
               "A minha casa", "100 %s\"n\" "});
    clock.local.millisecond = 120;
    log.Write({" ", Text("CHAR_ESPAÇO"_w), "CHAR", "", "", "", ""});
    log.End({"Tempo_Total_Escrita 12", "Numero_Frases_Finais 0"}, {"bom dia", ""});
    EXPECT_EQ(Written(), Text(kStart).append(
                             "09:08:07.006 \"casa \"azul\"\" LEFT_MOUSE_DOWN_KEY TEXT_KEY_SELECTION_bom_dia "
                             "0.1.2 310.42 A_minha_casa \"100 %s\"n\" \"\n"
                             "09:08:07.120 \" \" CHAR_ESPAÇO CHAR  -  -  - \"\"\n"
                             "$$$ End Body\n\n"
                             "Tempo_Total_Escrita 12\nNumero_Frases_Finais 0\n"
                             "Linha_Texto_Final bom dia\nLinha_Texto_Final \n"_w));
}

TEST_F(LogTest, EachEventSurvivesACrashAndTheNextLogOfThatSecondTakesItsPlace) {
    log.Start("ana");
    Write("KEY");
    EXPECT_TRUE(Written().ends_with(" KEY  -  - Casa \"\"\n"));
    log.Start("ana");
    EXPECT_EQ(Written(), kStart);
    log.Start("rui");
    EXPECT_EQ(Written("rui"), kStart);
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(LogTest, WithoutAFileThePersonIsToldOnceAndGoesOn) {
    std::filesystem::create_directory(folder.Path() / (std::string("ana") + kMoment));
    log.Start("ana");
    EXPECT_TRUE(log.IsOpen());
    log.ShowViewer();
    Write("KEY");
    log.End({"Tempo_Total_Escrita 0"}, {});
    EXPECT_FALSE(log.IsOpen());
    EXPECT_THAT(boxes.shown, ElementsAre("Erro na abertura do ficheiro de logging!"));
    EXPECT_THAT(viewer.lines, IsEmpty());
}

TEST_F(LogTest, AFullDiskCostsOnlyTheLinesThatFindNoPlace) {
    log.Start("ana");
    {
        const FullDisk disk(kStart.size() + 50);
        Write("FITS");
        Write("DOES_NOT_FIT_ANY_MORE");
        Write("NEITHER");
    }
    Write("ROOM_AGAIN");
    EXPECT_EQ(Written(), Text(kStart) + "09:08:07.006 \"\" KEY_DOWN_A FITS  -  - Casa \"\"\n"
                                        "09:08:07.006 \"\" KEY_DOWN_A ROOM_AGAIN  -  - Casa \"\"\n");
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(LogTest, TheViewerHasTheLinesOfWhileItWasOpenAndGoesWithTheLog) {
    log.ShowViewer();
    log.Start("ana");
    Write("BEFORE");
    log.ShowViewer();
    log.ShowViewer();
    Write("SEEN");
    viewer.isVisible = false;
    Write("CLOSED");
    log.ShowViewer();
    log.End({}, {});
    EXPECT_FALSE(viewer.isVisible);
    EXPECT_THAT(viewer.lines, ElementsAre("09:08:07.006 \"\" KEY_DOWN_A SEEN  -  - Casa \"\""));
    EXPECT_THAT(boxes.shown,
                ElementsAre("O sistema de registo de acções no sistema não se encontra activo."_w,
                            "O visualizador de eventos já se encontra aberto!"_w));
}

} // namespace
} // namespace ondrilo
