#include "platform/FileStore.h"
#include "tools/Commands.h"
#include "tools/LogCsv.h"
#include "tools/LogReplay.h"
#include "tools/OpenBoardLog.h"

#include <algorithm>
#include <iostream>

namespace ondrilo {
namespace {

constexpr ToolOption kOptions[] = {
    {"--file", "LOG", "the event log"},
    {"--csv", "OUT", "write the events as a table into this file, in UTF-8"},
    {"--obl", "OUT", "write an Open Board Log into this file (open-board-log-0.1, JSON)"},
    {"--date", "YYYY-MM-DD", "the day on which a log begins whose name does not tell it"},
    {"--metrics", "", "print the metrics that end the log"},
    {"--replay", "", "count the metrics again from the events and compare"},
};

constexpr int kDifferences = 3;

class LogTool {
  public:
    explicit LogTool(const Arguments& arguments)
        : arguments(arguments), path(arguments.Required("--file")), stem(FromUtf8(path.stem().string())),
          name(ReadLogName(stem)) {
        const auto file = ReadFile(path);
        if (file.state != ReadState::Complete)
            throw std::runtime_error("cannot read " + path.string());
        auto read = ReadLog(file.bytes);
        if (!read)
            throw std::runtime_error(path.string() + " is no event log");
        log = std::move(*read);
    }

    int Run() {
        if (!log.hasEnd)
            std::cerr << "ondrilo-tool: the log was cut off: it has no metrics\n";
        if (const auto out = arguments.Value("--csv"))
            Write(*out, LogAsCsv(log));
        if (const auto out = arguments.Value("--obl"))
            Write(*out, LogAsOpenBoardLog(log, stem, name ? name->profile : "", FirstDay()));
        if (arguments.Has("--metrics"))
            for (const auto& [metric, value] : log.metrics)
                std::cout << arguments.ToTerminal(metric) << ' ' << arguments.ToTerminal(value) << '\n';
        if (arguments.Has("--replay"))
            return ShowReplay();
        if (!arguments.Has("--metrics") && !arguments.Has("--csv") && !arguments.Has("--obl"))
            ShowSummary();
        return 0;
    }

  private:
    static void Write(const std::string& out, const std::string& bytes) {
        if (const auto saved = ReplaceFile(out, bytes); !saved)
            throw std::runtime_error(ToUtf8(saved.problem));
    }

    [[nodiscard]] LogDay FirstDay() const {
        if (const auto date = arguments.Value("--date")) {
            if (const auto day = ReadLogDay(*date))
                return *day;
            throw UsageError("--date needs a day as 2026-11-14");
        }
        if (!name)
            throw UsageError("the log's name does not tell its day: --date is missing");
        return name->day;
    }

    int ShowReplay() const {
        bool differs = false;
        for (const auto& metric : Replay(log)) {
            const auto orUnknown = [](const Text& text) {
                return text.empty() ? Text("?") : text;
            };
            std::cout << arguments.ToTerminal(metric.name) << '\t'
                      << arguments.ToTerminal(orUnknown(metric.recomputed)) << '\t'
                      << arguments.ToTerminal(orUnknown(metric.logged)) << '\t' << Mark(metric) << '\n';
            differs |= metric.verdict == ReplayedMetric::Verdict::Differs;
        }
        return differs ? kDifferences : 0;
    }

    static std::string Mark(const ReplayedMetric& metric) {
        switch (metric.verdict) {
        case ReplayedMetric::Verdict::Equal:
            return "=";
        case ReplayedMetric::Verdict::AtLeast:
            return "<=";
        case ReplayedMetric::Verdict::Differs:
            return metric.difference;
        case ReplayedMetric::Verdict::Unknown:
        case ReplayedMetric::Verdict::NoEnd:
            break;
        }
        return "?";
    }

    void ShowSummary() const {
        const auto undecided =
            std::ranges::count_if(log.records, [](const auto& record) { return !record.undecided.empty(); });
        std::cout << "events: " << static_cast<std::ptrdiff_t>(log.records.size()) - undecided
                  << "\nundecided lines: " << undecided << "\nmetrics: " << log.metrics.size()
                  << "\nfinal texts: " << log.finalTexts.size() << '\n';
    }

    const Arguments& arguments;
    std::filesystem::path path;
    Text stem;
    std::optional<LogName> name;
    LogFile log;
};

int ShowLog(const Arguments& arguments) {
    if (!arguments.Operands().empty())
        throw UsageError("which log: --file LOG");
    return LogTool(arguments).Run();
}

} // namespace

const Command kLogCommand = {
    "log", "turns an event log into a table or an Open Board Log, and checks its metrics",
    "Quotes inside the texts of a log are not escaped: a line that could be read in two ways goes whole "
    "into\n"
    "the last column of the table, and as a note into the Open Board Log. Nothing is made anonymous.\n"
    "\n"
    "A log has times but no days: the first comes from the file's name (or --date), and each time of day\n"
    "that lies more than an hour before the one above it begins the next.\n"
    "\n"
    "--replay prints, separated by tabs, the name of each metric, what the events give, what the log says\n"
    "and how they compare: \"=\"; \"<=\" where the events can show only a part and show no more than was\n"
    "counted; the difference, logged without recomputed; \"?\" for what the events do not tell. The exit "
    "code\n"
    "is 3 if there is a difference.",
    kOptions, ShowLog};

} // namespace ondrilo
