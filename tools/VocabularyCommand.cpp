#include "text/LineReader.h"
#include "text/Splitter.h"
#include "tools/Commands.h"
#include "tools/VocabularyBuilder.h"

#include <iostream>

namespace ondrilo {
namespace {

constexpr ToolOption kOptions[] = {
    {"--out", "DIR", "the folder for geral.pal, .par, .cg, .pcg, .frs and .paf"},
    {"--lexicon", "FILE", "words that count at least once: one a line, its class after a tab"},
    {"--weight", "N", "what each word and pair of a text counts; otherwise 10"},
    {"--longest-sentence", "N", "leaves out sentences of more characters"},
    {"--phrases", "PREFIX",
     "texts whose file name begins so hold sentences to be picked whole: weighted too"},
    {"--prose", "PREFIX", "texts whose file name begins so teach words and pairs, no sentences"},
    {"--prose-weight", "N", "their weight; otherwise that of the others"},
};

int Weight(const Arguments& arguments, std::string_view option, int standard) {
    const int weight = arguments.Number(option, standard);
    if (weight < 1)
        throw UsageError(std::string(option) + " needs a number from 1");
    return weight;
}

Text BytesOf(const std::filesystem::path& path) {
    auto file = ReadFile(path);
    if (file.state != ReadState::Complete)
        throw std::runtime_error("cannot read " + path.string());
    return std::move(file.bytes);
}

void ReadLexicon(VocabularyBuilder& builder, const Arguments& arguments, const std::filesystem::path& path) {
    const auto bytes = BytesOf(path);
    LineReader lines(bytes, kAllTokens);
    while (const auto raw = lines.Next()) {
        const auto line = arguments.FromTerminal(*raw);
        const auto tab = std::min(line.find('\t'), line.size());
        const auto classes = Split(TextView(line).substr(tab), kWhiteSpace);
        builder.AddLexiconWord(Trim(TextView(line).substr(0, tab)), classes.empty() ? Text() : classes[0]);
    }
}

/// Which text counts how much.
class Sources {
  public:
    explicit Sources(const Arguments& arguments)
        : phrasesPrefix(arguments.Value("--phrases")), prosePrefix(arguments.Value("--prose")) {
        constexpr int standardWeight = 10;
        everyday.weight = Weight(arguments, "--weight", standardWeight);
        if (arguments.Has("--longest-sentence"))
            everyday.longestSentence = static_cast<std::size_t>(arguments.Number("--longest-sentence", 0));
        phrases = everyday;
        phrases.sentenceWeight = everyday.weight;
        prose.weight = Weight(arguments, "--prose-weight", everyday.weight);
        prose.longestSentence = 0;
    }

    [[nodiscard]] const TextSource& Of(const std::filesystem::path& text) const {
        const auto name = text.filename().string();
        if (prosePrefix && name.starts_with(*prosePrefix))
            return prose;
        return phrasesPrefix && name.starts_with(*phrasesPrefix) ? phrases : everyday;
    }

  private:
    std::optional<std::string> phrasesPrefix, prosePrefix;
    TextSource everyday, phrases, prose;
};

int MakeVocabulary(const Arguments& arguments) {
    const std::filesystem::path folder = arguments.Required("--out");
    const Sources sources(arguments);
    if (arguments.Operands().empty())
        throw UsageError("no text was given");

    VocabularyBuilder builder;
    if (const auto lexicon = arguments.Value("--lexicon"))
        ReadLexicon(builder, arguments, *lexicon);
    for (const std::filesystem::path text : arguments.Operands()) {
        const auto bytes = BytesOf(text);
        LineReader lines(bytes, kAllTokens);
        while (const auto line = lines.Next())
            builder.AddLine(arguments.FromTerminal(*line), sources.Of(text));
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
    "Operands are plain texts, one utterance a line. The same texts always give the same files. Classes are\n"
    "those of the lexicon; how often each occurs, and which follows which, is counted in the texts.",
    kOptions, MakeVocabulary};

} // namespace ondrilo
