#include "logging/CLog.h"

#include "logging/TimeText.h"
#include "text/Splitter.h"

#include <array>
#include <cstdio>

namespace ondrilo {
namespace {

// Other programs read these lines and the marks below: they stand as they are, "de" included.
constexpr std::array<TextView, 10> kHeader{"TIME Time when the event occurred",
                                           "OUTPUT Text output caused by the event",
                                           "EVENT The event",
                                           "TYPE Type of the element or operation connected to the event",
                                           "ELEMENT Screen element where the event occurred",
                                           "CENTER Screen coordinates of the element center where the event "
                                           "occurred",
                                           "PAGE Communication board where the event occurred",
                                           "CONTEXT Message content before de event",
                                           "$$$ End Header",
                                           ""};

Text TimeOfDay(const LocalTime& time) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%02d:%02d:%02d.%03d", time.hour, time.minute, time.second,
                  time.millisecond);
    return text.data();
}

void AppendQuoted(Text& line, TextView content) {
    line.append(" \"").append(content).append("\"");
}

/// The hyphen of an empty column has a blank of its own: two stand before it.
void AppendColumn(Text& line, TextView content) {
    line += ' ';
    if (content.empty())
        line += " -";
    for (const char c : content)
        line += IsWhiteSpace(c) ? '_' : c; // a window's title may hold a line end
}

} // namespace

CLog::CLog(const DataFolder& folder, const Clock& clock, MessageBoxes& boxes, LogViewer& viewer)
    : folder(folder), clock(clock), boxes(boxes), viewer(viewer) {
}

void CLog::Start(TextView profile) {
    Close();
    open = true;
    const auto name = Text(profile) + " " + TimeForFileName(clock.Local()) + ".log";
    if (!file.Open(folder.Path(name), 0)) {
        boxes.Show("Erro na abertura do ficheiro de logging!");
        return;
    }
    for (const TextView line : kHeader)
        WriteLine(line);
    Write({"", "SYSTEM_INFO", "START_LOGGING", "-", "-", "-", "-"});
}

void CLog::Write(const LogEvent& event) {
    if (!file.IsOpen())
        return;
    Text line = TimeOfDay(clock.Local());
    AppendQuoted(line, event.output);
    for (const Text* column : {&event.event, &event.type, &event.element, &event.center, &event.page})
        AppendColumn(line, *column);
    AppendQuoted(line, event.context);
    if (viewer.IsVisible())
        viewer.AddLine(line);
    WriteLine(line);
}

void CLog::End(const std::vector<Text>& metrics, const std::vector<Text>& finalTexts) {
    if (file.IsOpen()) {
        WriteLine("$$$ End Body");
        WriteLine("");
        for (const Text& metric : metrics)
            WriteLine(metric);
        for (const Text& text : finalTexts)
            WriteLine("Linha_Texto_Final " + text);
    }
    Close();
}

void CLog::ShowViewer() {
    if (!open)
        boxes.Show("O sistema de registo de acções no sistema não se encontra activo."_w);
    else if (viewer.IsVisible())
        boxes.Show("O visualizador de eventos já se encontra aberto!"_w);
    else if (!viewer.Show())
        boxes.Show("Erro no arranque do visualizador de eventos!");
}

void CLog::WriteLine(TextView line) {
    // One piece, so that a line that finds no place leaves nothing behind. That it found none is no reason
    // to interrupt the person.
    (void)file.Append(Text(line) + "\n");
}

void CLog::Close() {
    if (open)
        viewer.Close();
    file.Close();
    open = false;
}

} // namespace ondrilo
