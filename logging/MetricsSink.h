#pragma once

#include "text/Text.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ondrilo {

/// Events that are counted one by one while a log is open.
enum class Metric {
    KeyPress,   ///< a key of the person's
    SystemKey,  ///< a key that the system itself simulated
    ScreenKey,  ///< an on-screen key, by mouse or scanning
    Click,      ///< a mouse button, in the target or on a key
    Correction, ///< Backspace or Delete
    Character,
    Word,
    Sentence,
    Prediction,
    NextPredictions,
    KeyboardByMenu,
    KeyboardByKey,
    ContextAdaptation,   ///< a change of profile
    CooperativeDelivery, ///< suggestions of the partner's, read as one
    WordHint,            ///< a suggestion of the partner's, as the three that follow
    SentenceHint,
    PictogramHint,
    PictogramSentenceHint,
    Abbreviation,
    SelectedPictogram,
    SelectedPictogramSentence,
    WrittenPictogram,
    WrittenPictogramSentence,
    PredictedPictogram,
    PredictedPictogramPosition,
    PredictedPictogramSentence,
    PredictedPictogramSentencePosition,
    SpokenWord,
    SpokenSentence,
    SpokenPictogram,
    SpokenText,   ///< the whole message
    WordInSpeech, ///< a word of anything spoken
    SentenceInSpeech,
};
inline constexpr std::size_t kMetricCount = static_cast<std::size_t>(Metric::SentenceInSpeech) + 1;

/// A prediction that was written into the text.
struct Completion {
    enum class Kind { Word, WordSequence, Sentence };
    enum class Source { TextList, Pictograms, PictogramSentences };
    static constexpr std::size_t kKinds = 3;
    static constexpr std::size_t kSources = 3;
    Kind kind = Kind::Word;
    Source source = Source::TextList;
    int position = 0;     ///< in the whole list, from 0
    int prefixLength = 0; ///< characters that were written already
    bool operator==(const Completion&) const = default;
};

/// What the metrics are told when they are read.
struct MetricsFacts {
    std::int64_t totalSeconds = 0;
    std::int64_t effectiveSeconds = 0;
    /// What was written, with the tags of pictograms: the texts that were cleared, then that of the editor.
    std::vector<Text> finalTexts;
    /// Without one there is nothing to compare with an ordinary keyboard.
    bool hasEditor = false;
    int switchActivations = 0;
};

/// The metrics of a session. This form counts nothing.
class MetricsSink {
  public:
    virtual ~MetricsSink() = default;
    virtual void Reset() {}
    virtual void Count(Metric, int /*amount*/ = 1) {}
    virtual void Completed(const Completion&) {}
    /// One line a metric, for the end of the log and for the person.
    [[nodiscard]] virtual std::vector<Text> Lines(const MetricsFacts&) const { return {}; }
};

} // namespace ondrilo
