#pragma once

#include "text/Splitter.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace ondrilo {

/// How varied texts are: a corpus that repeats itself teaches a vocabulary less than its size says.
class CorpusCheck {
  public:
    /// How much of what could repeat does.
    struct Repeats {
        int count = 0, among = 0;
        [[nodiscard]] double PerThousand() const;
    };
    struct File {
        std::string name;
        int words = 0, different = 0;
        /// Different words in a piece of 1,000, in percent: the mean over the whole pieces, so that files of
        /// any length compare. A file below that is one piece.
        double variety = 0;
        Repeats lines = {}, runs = {};
    };

    void StartFile(std::string name);
    /// Of the file started last.
    void AddLine(TextView line);
    /// Ends the last file. All files together come last, under the name "all".
    [[nodiscard]] std::vector<File> Finish();
    /// "file:line: repeats file:line: text" for every repeated line and run, in the order of the texts.
    [[nodiscard]] const std::vector<std::string>& Found() const { return found; }

  private:
    using Seen = std::unordered_map<Text, std::string>;
    void CheckRepeat(Seen& seen, const Text& text, Repeats& repeats);
    [[nodiscard]] std::string Here() const;

    std::vector<File> files;
    std::vector<Tokens> wordsOfFiles;
    std::vector<std::string> found;
    /// Where a line or run stood first.
    Seen lines, runs;
    int lineNumber = 0;
};

} // namespace ondrilo
