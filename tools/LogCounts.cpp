#include "tools/LogCounts.h"

#include "text/Splitter.h"
#include "tools/LogMoments.h"
#include "tools/LogSelection.h"

#include <algorithm>
#include <array>

namespace ondrilo {
namespace {

using Kind = Completion::Kind;

struct Counted {
    TextView name;
    Metric metric;
};
/// Of these the column EVENT decides; behind it stand words of the person's, or a title.
constexpr std::array<Counted, 2> kEvents{{{"NEW_WORD", Metric::Word}, {"NEW_SENTENCE", Metric::Sentence}}};
constexpr std::array<Counted, 3> kTypes{
    {{"CHAR", Metric::Character}, {"KEY", Metric::KeyPress}, {"AUTO_KEY", Metric::SystemKey}}};
constexpr std::array<Counted, 15> kBeginnings{
    {{"ON_SCREEN_KEYBOARD_LOAD_", Metric::KeyboardByMenu},
     {"ON_SCREEN_KEYBOARD_CALL", Metric::KeyboardByKey},
     {"CONTEXT_ADAPTATION_CHANGE_PROFILE_", Metric::ContextAdaptation},
     {"WORD_HINT_", Metric::WordHint},
     {"SENTENCE_HINT_", Metric::SentenceHint},
     {"IMAGE_HINT_", Metric::PictogramHint},
     {"MULTIPLE_IMAGE_HINT_", Metric::PictogramSentenceHint},
     {"ABBREVIATION_SELECTION", Metric::Abbreviation},
     {"COMMAND_EXECUTION_NEXT_PREDICTIONS", Metric::NextPredictions},
     // Each press counts, that which is only heard too.
     {"IMAGE_KEY_SELECTION", Metric::SelectedPictogram},
     {"SYNTHESIZE_IMAGE_KEY_BEFORE_SELECTION", Metric::SelectedPictogram},
     {"IMAGE_SENTENCE_KEY_SELECTION", Metric::SelectedPictogramSentence},
     {"SYNTHESIZE_IMAGE_SENTENCE_KEY_BEFORE_SELECTION", Metric::SelectedPictogramSentence},
     {"PREDICTED_IMAGE_SELECTION", Metric::PredictedPictogram},
     {"PREDICTED_IMAGE_SENTENCE_SELECTION", Metric::PredictedPictogramSentence}}};

struct Spoken {
    TextView beginning;
    Metric metric;
    bool hasSentences;
};
constexpr std::array<Spoken, 4> kSpoken{{{"SYNTHESIZE_WORD_", Metric::SpokenWord, false},
                                         {"SYNTHESIZE_IMAGE_", Metric::SpokenPictogram, false},
                                         {"SYNTHESIZE_SENTENCE_", Metric::SpokenSentence, true},
                                         {"SYNTHESIZE_ALL_", Metric::SpokenText, true}}};

bool IsOfKey(const LogRecord& record) {
    return std::ranges::count(record.element, '.') == 2;
}

bool IsStep(const LogRecord& record) {
    return record.type.starts_with("START_SCANNING_") || record.type.starts_with("SCANNING_ADVANCE_");
}

} // namespace

class LogCounts::Counter {
  public:
    Counter(const LogFile& log, LogCounts& counts) : log(log), counts(counts) {
        for (const auto& record : log.records)
            Add(record);
        counts.hasRawInput = (rawKeys > 0 || rawClicks > 0) && !hasChangedOptions;
        if (counts.hasRawInput)
            metrics.Count(Metric::Click, rawClicks - mousePresses);
    }

    /// Without what no event tells.
    [[nodiscard]] std::vector<LogMetric> Metrics() const {
        const bool hasEditor = std::ranges::find(log.metrics, "Numero_Teclas_Texto_Teclado_Qwerty",
                                                 &LogMetric::name) != log.metrics.end();
        const MetricsFacts facts{SecondsOf(log.records), 0, log.finalTexts, hasEditor,
                                 switchPresses + std::max(scanningStarts, switchReleases)};
        std::vector<LogMetric> all;
        for (const Text& line : metrics.Lines(facts)) {
            const auto blank = line.find(' ');
            all.push_back({line.substr(0, blank), line.substr(blank + 1)});
            if (all.back().name == "Numero_Total_Teclas" && counts.hasRawInput)
                all.back().value = std::to_string(rawKeys);
        }
        return all;
    }

  private:
    void Add(const LogRecord& record) {
        if (!record.undecided.empty()) {
            counts.hasUndecided = true;
            return;
        }
        if (const auto found = std::ranges::find(kEvents, record.event, &Counted::name);
            found != kEvents.end()) {
            metrics.Count(found->metric);
            return;
        }
        if (record.event == "WORD_PROCESSOR_CHANGE")
            return;
        AddType(record.type);
        AddSpeech(record);
        AddSelection(record.type);
        AddScreenKey(record);
        AddSwitch(record);
        previous = &record;
    }

    void AddType(TextView type) {
        for (const auto& [name, metric] : kTypes)
            if (type == name)
                metrics.Count(metric);
        for (const auto& [name, metric] : kBeginnings)
            if (type.starts_with(name))
                metrics.Count(metric);
        if (type == "RAW_KEY_DOWN")
            ++rawKeys;
        else if (type.starts_with("RAW_") && type.ends_with("_MOUSE_BUTTON_DOWN"))
            ++rawClicks;
        hasChangedOptions |= type == "USER_PROFILE_OPTIONS_DIALOG_CLOSED";
        counts.hasPictograms |= type.starts_with("PREDICTED_IMAGE_") ||
                                type.starts_with("IMAGE_KEY_SELECTION") ||
                                type.starts_with("IMAGE_SENTENCE_KEY_SELECTION");
    }

    void AddSpeech(const LogRecord& record) {
        constexpr TextView command = "COMMAND_EXECUTION_";
        TextView type = record.type;
        if (type.starts_with(command))
            type.remove_prefix(command.size());
        else if (IsOfKey(record)) // heard before or after a selection
            return;
        for (const auto& [beginning, metric, hasSentences] : kSpoken) {
            if (!type.starts_with(beginning))
                continue;
            const Text text = Replace(type.substr(beginning.size()), "_", " ");
            metrics.Count(metric);
            metrics.Count(Metric::WordInSpeech, static_cast<int>(Split(text).size()));
            if (hasSentences)
                metrics.Count(Metric::SentenceInSpeech, static_cast<int>(Split(text, kTerminators).size()));
        }
    }

    void AddSelection(TextView type) {
        const auto selection = ReadLogSelection(type);
        if (!selection || !selection->predicted)
            return;
        counts.hasFurtherPage |= selection->page > 0 || !selection->position;
        const int position = selection->position.value_or(0);
        if (selection->operation == "PREDICTED_WORD_SELECTION")
            metrics.Completed({Kind::Word, Completion::Source::TextList, position, 0});
        else if (selection->operation == "PREDICTED_WORD_SEQUENCE_SELECTION")
            metrics.Completed({Kind::WordSequence, Completion::Source::TextList, position, 0});
        else if (selection->operation == "PREDICTED_SENTENCE_SELECTION")
            metrics.Completed({Kind::Sentence, Completion::Source::TextList, position, 0});
        else if (selection->operation == "PREDICTED_IMAGE_SELECTION")
            metrics.Count(Metric::PredictedPictogramPosition, position);
        else
            metrics.Count(Metric::PredictedPictogramSentencePosition, position);
    }

    /// One press may leave two events: what is heard and what is seen, or a selection and what is heard then.
    void AddScreenKey(const LogRecord& record) {
        const TextView type = record.type;
        const bool isHeard = type.starts_with("SYNTHESIZE_");
        const bool isAfter = isHeard && type.find("_AFTER_") != TextView::npos;
        const bool isSeenToo = type.starts_with("SHOW_") && previous &&
                               previous->type.starts_with("SYNTHESIZE_") &&
                               previous->element == record.element;
        if (!IsOfKey(record) || record.event.starts_with("KEY_DOWN_") || isAfter || isSeenToo ||
            type.starts_with("COMMAND_EXECUTION_SYNTHESIZE_"))
            return;
        metrics.Count(Metric::ScreenKey);
        if (record.event != "LEFT_MOUSE_DOWN_KEY")
            return;
        metrics.Count(Metric::Click);
        ++mousePresses;
    }

    /// A press may select a line, the only group in it and the only key in that.
    void AddSwitch(const LogRecord& record) {
        if (IsStep(record)) {
            hasMoved = true;
            scanningStarts += record.type == "START_SCANNING_LINES" ? 1 : 0;
            return;
        }
        if (record.element.empty() || !record.event.starts_with("SWITCH"))
            return;
        if (hasMoved || record.type == "LINE_SELECTION")
            ++(record.event == "SWITCH1_UP" ? switchReleases : switchPresses);
        hasMoved = false;
    }

    const LogFile& log;
    LogCounts& counts;
    CMetrics counted;
    MetricsSink& metrics = counted;
    const LogRecord* previous = nullptr;
    int rawKeys = 0;
    int rawClicks = 0;
    int mousePresses = 0;
    int switchPresses = 0;
    int switchReleases = 0; ///< selections by letting go; the press before may be the start of the scanning
    int scanningStarts = 0;
    bool hasMoved = false;
    bool hasChangedOptions = false;
};

LogCounts::LogCounts(const LogFile& log) {
    const Counter counter(log, *this);
    metrics = counter.Metrics();
}

} // namespace ondrilo
