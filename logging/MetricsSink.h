#pragma once

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
    KeyboardByKey,
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

/// A prediction that was written into the text.
struct Completion {
    enum class Kind { Word, WordSequence, Sentence };
    enum class Source { TextList, Pictograms, PictogramSentences };
    Kind kind = Kind::Word;
    Source source = Source::TextList;
    int position = 0;     ///< in the whole list, from 0
    int prefixLength = 0; ///< characters that were written already
    bool operator==(const Completion&) const = default;
};

/// The metrics of a session. This form counts nothing.
class MetricsSink {
  public:
    virtual ~MetricsSink() = default;
    virtual void Reset() {}
    virtual void Count(Metric, int /*amount*/ = 1) {}
    virtual void Completed(const Completion&) {}
};

} // namespace ondrilo
