#include "text/LineReader.h"
#include "text/Splitter.h"
#include "tools/Commands.h"
#include "tools/VocabularyBuilder.h"

#include <iostream>

namespace ondrilo {
namespace {

constexpr ToolOption kOptions[] = {
    {"--out", "DIR", "the folder for geral.pal, .par, .cg, .pcg, .frs and .paf"},
    {"--prose", "PREFIX", "texts whose file name begins so teach words and pairs, no sentences"},
};

int MakeVocabulary(const Arguments& arguments) {
    const std::filesystem::path folder = arguments.Required("--out");
    const auto prose = arguments.Value("--prose");
    if (arguments.Operands().empty())
        throw UsageError("no text was given");

    VocabularyBuilder builder;
    for (const std::filesystem::path text : arguments.Operands()) {
        const auto file = ReadFile(text);
        if (file.state != ReadState::Complete) {
            std::cerr << "ondrilo-tool: cannot read " << text.string() << "\n";
            return 1;
        }
        const bool isProse = prose && text.filename().string().starts_with(*prose);
        LineReader lines(file.bytes, kAllTokens);
        while (const auto line = lines.Next())
            builder.AddLine(arguments.FromTerminal(*line), !isProse);
    }

    std::filesystem::create_directories(folder);
    if (const auto saved = builder.Write(folder); !saved) {
        std::cerr << "ondrilo-tool: " << ToUtf8(saved.problem) << "\n";
        return 1;
    }
    std::cout << builder.Report() << "\n";
    return 0;
}

} // namespace

const Command kVocabularyCommand = {
    "vocabulary", "counts texts into the general dictionary files",
    "Operands are plain texts, one utterance a line. The same texts always give the same files.", kOptions,
    MakeVocabulary};

} // namespace ondrilo
