#pragma once

#include "text/LineReader.h"

namespace ondrilo {

/// How the words, or the sentences, stand in their files, where blanks inside an entry are "|".
struct EntryFormat {
    /// Longest read of a line of an entry file, in bytes.
    std::size_t lineLimit;
    /// Longest entry in a pair file, in bytes.
    std::size_t tokenLimit;
    /// Sentences are stored normalised and have no class.
    bool sentences;

    /// `text` in the form in which it is stored.
    [[nodiscard]] Text StoredForm(TextView text) const;
};

/// A line of an entry file: text, text and number, or text, number and class. Blanks are blanks again.
struct EntryLine {
    Text text;
    std::optional<int> frequency;
    TextView className;
};

/// Reads an entry file; of nonsense is taken what parses.
class EntryReader {
  public:
    EntryReader(TextView bytes, const EntryFormat& format) : lines(bytes, format.lineLimit) {}
    /// The next line that holds an entry, or nothing at the end.
    std::optional<EntryLine> Next();

  private:
    LineReader lines;
};

} // namespace ondrilo
