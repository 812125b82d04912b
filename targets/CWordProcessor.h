#pragma once

#include "platform/Desktop.h"
#include "platform/Geometry.h"
#include "text/Text.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace ondrilo {

/// The place where text goes: it reports the text around the insertion point, writes and deletes, and posts
/// what the person does there to the message queue.
///
/// Words stand between separators, sentences end with their terminator and begin, blank included, after the
/// one before. "Left" is the part of the unit left of the insertion point, "Right" the rest. A query without
/// an answer gives an empty text. Line breaks are told as "\r\n". Pictures are told by two labels: the plain
/// text that they stand for, and the tag, which is "[...]" for a pictogram; the queries called Labelled tell
/// the tags, all others the plain text.
class CWordProcessor {
  public:
    CWordProcessor() = default;
    CWordProcessor(const CWordProcessor&) = delete;
    CWordProcessor& operator=(const CWordProcessor&) = delete;
    virtual ~CWordProcessor() = default;

    /// Attaches the target; false if it cannot be had.
    [[nodiscard]] virtual bool Create() = 0;
    virtual void Destroy() = 0;

    [[nodiscard]] virtual Text GetCurrentWordLeft() const = 0;
    [[nodiscard]] virtual Text GetCurrentWordRight() const = 0;
    [[nodiscard]] virtual Text GetCurrentWord() const = 0;
    /// The word before the current one, across sentences.
    [[nodiscard]] virtual Text GetPreviousWord() const = 0;
    [[nodiscard]] virtual Text GetSecondPreviousWord() const = 0;

    [[nodiscard]] virtual Text GetWrittenSentence() const = 0;
    [[nodiscard]] virtual Text GetCurrentSentenceLeft() const = 0;
    [[nodiscard]] virtual Text GetCurrentSentenceRight() const = 0;
    [[nodiscard]] virtual Text GetCurrentSentence() const = 0;
    /// The sentence before the current one, with its terminator; after "?!" it is "!" alone.
    [[nodiscard]] virtual Text GetPreviousSentence() const = 0;
    [[nodiscard]] virtual Text GetSecondPreviousSentence() const = 0;

    /// What `complete` adds to `typed`, in lower case.
    [[nodiscard]] virtual Text GetRemainder(TextView complete, TextView typed) const = 0;

    /// Completes or replaces the current word, and adds a blank.
    virtual void WriteWord(TextView word) = 0;
    virtual void DeleteCurrentWordLeft() = 0;
    /// Completes or replaces the current sentence, and adds a blank.
    virtual void WriteSentence(TextView sentence) = 0;
    virtual void DeleteCurrentSentenceLeft() = 0;

    /// Keys with the virtual codes `first` to `last` are reported, but write nothing.
    virtual void BlockKeys(int first, int last) = 0;
    virtual void UnblockKeys(int first, int last) = 0;
    /// Mouse buttons are reported, but do nothing in the text.
    virtual void DisableMouse() = 0;
    virtual void EnableMouse() = 0;

    [[nodiscard]] virtual WindowId GetTargetWindow() const = 0;
    /// On the screen; (0, 0) while unknown.
    [[nodiscard]] virtual Point GetCaretPosition() const = 0;
    [[nodiscard]] virtual bool IsPointerOverTarget() const = 0;
    /// Moves the pointer to the first point of the target outside `rectangle` (on the screen), line by line
    /// from the top left; if there is none it stays.
    virtual void MovePointerOutOf(Rectangle rectangle) = 0;

    /// How a predicted word or sentence would read in full: what is written, then the rest as Caps Lock would
    /// write it.
    [[nodiscard]] virtual Text GetWordDisplayText(TextView word) const = 0;
    /// The text as the keys have to type it under the present state of Caps Lock.
    [[nodiscard]] virtual Text AdaptWordCase(TextView word) const = 0;
    [[nodiscard]] virtual Text GetSentenceDisplayText(TextView sentence) const = 0;
    [[nodiscard]] virtual Text AdaptSentenceCase(TextView sentence) const = 0;

    /// Logical pixels; the place is inside the session's window. A target in another program ignores them.
    virtual void SetWidth(int pixels) = 0;
    virtual void SetHeight(int pixels) = 0;
    [[nodiscard]] virtual int GetWidth() const = 0;
    [[nodiscard]] virtual int GetHeight() const = 0;
    virtual void SetFontSize(int points) = 0;
    virtual void SetFontName(TextView name) = 0;
    virtual void Move(int x, int y) = 0;

    /// Puts a picture at the end of the text and the insertion point after it. Gives its position for
    /// SetImageLabels, or nothing if the file is no picture or the target takes none.
    virtual std::optional<int> InsertImage(const std::filesystem::path& path) = 0;
    virtual void SetImageLabels(int position, TextView label, TextView tag) = 0;
    /// True if the character left or right of the insertion point is no separator.
    [[nodiscard]] virtual bool IsInsideWord() const = 0;
    /// True if a picture stands at the insertion point or just before it.
    [[nodiscard]] virtual bool IsAtImage() const = 0;
    /// IsAtImage, or only separators stand between the nearest picture on the left and the insertion point.
    [[nodiscard]] virtual bool IsAfterImage() const = 0;
    [[nodiscard]] virtual Text GetImageLabelAtCursor() const = 0;
    [[nodiscard]] virtual Text GetLastImageLabel() const = 0;
    /// Labels of the pictures from the start of the sentence to the insertion point.
    [[nodiscard]] virtual std::vector<Text> GetSentenceImageLabels() const = 0;
    virtual void ClearAll() = 0;

    /// The tagged sentences. A tag that a sentence begins in the middle of loses its closing bracket; one
    /// that a previous sentence ends in the middle of is closed.
    [[nodiscard]] virtual Text GetLabelledSentenceLeft() const = 0;
    [[nodiscard]] virtual Text GetLabelledSentenceRight() const = 0;
    [[nodiscard]] virtual Text GetLabelledSentence() const = 0;
    [[nodiscard]] virtual Text GetLabelledSentenceWritten() const = 0;
    [[nodiscard]] virtual Text GetLabelledPreviousSentence() const = 0;
    [[nodiscard]] virtual Text GetLabelledSecondPreviousSentence() const = 0;
    /// The word or pictogram token before the current one in the tagged text.
    [[nodiscard]] virtual Text GetLabelledPreviousWord() const = 0;
    [[nodiscard]] virtual Text GetLabelledSecondPreviousWord() const = 0;
    [[nodiscard]] virtual Text GetTextWithLabels() const = 0;
    [[nodiscard]] virtual Text GetTextWithTags() const = 0;

    virtual void DeleteCurrentWord() = 0;
    virtual void DeleteCurrentSentence() = 0;

    /// The desktop says that what is written here is secret: nothing of it may be kept.
    [[nodiscard]] virtual bool IsPassword() const { return false; }
};

} // namespace ondrilo
