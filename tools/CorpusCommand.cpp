#include "platform/FileStore.h"
#include "text/LineReader.h"
#include "tools/Commands.h"
#include "tools/CorpusCheck.h"

#include <algorithm>
#include <iomanip>
#include <iostream>

namespace ondrilo {
namespace {

constexpr ToolOption kOptions[] = {
    {"--least-variety", "N", "fails if a file has fewer different words in 1,000, in percent"},
    {"--most-lines", "N", "fails if of 1,000 lines more repeat an earlier one"},
    {"--most-runs", "N", "fails if of 1,000 runs of six words more repeat an earlier one"},
    {"--list", "", "names every repeated line and run"},
};

/// Characters that Windows-1252 lacks come in as question marks.
int ForeignCharacters(std::string_view bytes, TextView line) {
    return static_cast<int>(std::count(line.begin(), line.end(), '?') -
                            std::count(bytes.begin(), bytes.end(), '?'));
}

void Show(const std::vector<CorpusCheck::File>& files) {
    constexpr int nameWidth = 28, width = 11;
    std::cout << std::left << std::setw(nameWidth) << "text" << std::right;
    for (const auto* title : {"words", "different", "share %", "in 1,000 %", "lines/1,000", "runs/1,000"})
        std::cout << std::setw(width + 1) << title;
    std::cout << "\n" << std::fixed << std::setprecision(1);
    for (const auto& file : files) {
        constexpr double percent = 100;
        const double ratio = file.words == 0 ? 0 : percent * file.different / file.words;
        std::cout << std::left << std::setw(nameWidth) << file.name << std::right << std::setw(width + 1)
                  << file.words << std::setw(width + 1) << file.different;
        for (const double figure : {ratio, file.variety, file.lines.PerThousand(), file.runs.PerThousand()})
            std::cout << std::setw(width + 1) << figure;
        std::cout << "\n";
    }
}

/// Tells every bound that is passed.
bool WithinBounds(const Arguments& arguments, const std::vector<CorpusCheck::File>& files) {
    bool within = true;
    const auto fail = [&within](const std::string& what) {
        std::cerr << "ondrilo-tool: " << what << "\n";
        within = false;
    };
    for (const auto& file : files)
        if (file.variety < arguments.Number("--least-variety", 0))
            fail(file.name + ": too few different words");
    const auto& all = files.back();
    if (arguments.Has("--most-lines") && all.lines.PerThousand() > arguments.Number("--most-lines", 0))
        fail("too many repeated lines");
    if (arguments.Has("--most-runs") && all.runs.PerThousand() > arguments.Number("--most-runs", 0))
        fail("too many repeated runs of words");
    return within;
}

int CheckCorpus(const Arguments& arguments) {
    if (arguments.Operands().empty())
        throw UsageError("no text was given");
    CorpusCheck check;
    bool fits = true;
    for (const std::filesystem::path text : arguments.Operands()) {
        const auto file = ReadFile(text);
        if (file.state != ReadState::Complete)
            throw std::runtime_error("cannot read " + text.string());
        check.StartFile(text.filename().string());
        LineReader lines(file.bytes, kAllTokens);
        while (const auto bytes = lines.Next()) {
            const auto line = arguments.FromTerminal(*bytes);
            if (const int foreign = ForeignCharacters(*bytes, line); foreign > 0) {
                std::cerr << text.filename().string() << ":" << lines.LineNumber() << ": " << foreign
                          << " characters that Windows-1252 lacks\n";
                fits = false;
            }
            check.AddLine(line);
        }
    }
    const auto files = check.Finish();
    Show(files);
    const bool passed = WithinBounds(arguments, files) && fits;
    if (!passed || arguments.Has("--list"))
        for (const auto& line : check.Found())
            std::cout << line << "\n";
    return passed ? 0 : 1;
}

} // namespace

const Command kCorpusCommand = {
    "corpus", "tells how varied texts are, and where they repeat themselves",
    "Operands are plain texts, one utterance a line. A table has for each text its words, how many are\n"
    "different, the share of different words in all and in pieces of 1,000, and how many of 1,000 lines and\n"
    "of 1,000 runs of six words were there before. The exit code is 1 past a bound, and if a text has\n"
    "characters that Windows-1252 lacks.",
    kOptions, CheckCorpus};

} // namespace ondrilo
