#include "fuzz/Fuzz.h"
#include "prediction/CSentencePredictor.h"
#include "prediction/CWordPredictor.h"
#include "profiles/CUserProfileProperties.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using namespace ondrilo;

constexpr const char* kFiles[] = {"geral.pal", "geral.par", "geral.cg", "geral.pcg", "geral.frs", "geral.paf",
                                  "ana.pal",   "ana.par",   "ana.frs",  "ana.paf",   "texto.txt"};

/// The files stand one after the other in the input, with a form feed between them.
void WriteFiles(const TemporaryFolder& folder, TextView input) {
    for (const char* name : kFiles) {
        const auto end = std::min(input.find('\f'), input.size());
        folder.Write(name, input.substr(0, end));
        input.remove_prefix(std::min(end + 1, input.size()));
    }
}

void Learn(CDictionary& dictionary, const std::filesystem::path& path) {
    dictionary.LearnWordsFromFile(path);
    dictionary.LearnWordPairsFromFile(path);
    dictionary.LearnSentencesFromFile(path);
    dictionary.LearnSentencePairsFromFile(path);
}

void Predict(const CDictionary& dictionary, TextView previous, TextView prefix) {
    static const CUserProfileProperties profile;
    static CWordPredictor words;
    static CSentencePredictor sentences;
    CDictionaryWordScoreSet best;
    words.PredictForms(dictionary, profile, previous, {Text(prefix), "[" + Text(prefix)});
    words.BestWords(100, best);
    Require(best.size() <= 100, "a prediction keeps its limit");
    sentences.PredictForms(dictionary, profile, previous, {Text(prefix)});
    sentences.BestSentences(100, best);
}

void Ask(const CDictionary& dictionary) {
    Text previous = "___";
    for (int position = dictionary.FirstWord(); position != -1;) {
        const CDictionaryWord word = dictionary.NextWord(position);
        Require(static_cast<bool>(word), "every position holds a word");
        const Text text(word.Characters());
        (void)dictionary.FindWord(text);
        (void)word.MaxUserNextFrequency();
        CDictionaryNextWordSet successors;
        dictionary.NextWordSet(text, successors);
        if (dictionary.WordCount() < 50)
            Predict(dictionary, previous, text.substr(0, 1));
        previous = text;
    }
    CDictionarySentence found[20];
    for (int position = dictionary.FirstSentence(); position != -1;)
        dictionary.SentencesWithPrefix(dictionary.NextSentence(position).Characters().substr(0, 2), found);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    WriteFiles(folder, TextOf(data, size));
    CDictionary dictionary;
    try {
        (void)dictionary.LoadProfileDictionaries(DataFolder(folder.Path()), "ana", true);
    } catch (const std::invalid_argument&) {
        return 0; // more than 500 classes
    }
    Learn(dictionary, folder.Path() / "texto.txt");
    dictionary.RemoveRarestUserWords();
    Ask(dictionary);
    return 0;
}
