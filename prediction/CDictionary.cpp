#include "prediction/CDictionary.h"

#include <stdexcept>

namespace ondrilo {
namespace {

constexpr SideRules kWordRules{{999, 511, false},
                               CDictionary::kLongestUserWord + 1,
                               "Erro na abertura do ficheiro de palavras geral"_w,
                               "Erro na abertura do ficheiro dos pares de palavras geral"_w,
                               "Erro na abertura do ficheiro de palavras do utilizador"_w,
                               "Erro na abertura do ficheiro de pares de palavras do utilizador."_w};

constexpr SideRules kSentenceRules{{1499, 1007, true},
                                   CDictionary::kLongestUserSentence + 1,
                                   "Erro na abertura do ficheiro de frases"_w,
                                   "Erro na abertura do ficheiro dos pares de frases geral"_w,
                                   "Erro na abertura do ficheiro de frases do utilizador"_w,
                                   "Erro na abertura do ficheiro de pares de frases do utilizador."_w};

/// A side this close to its capacity gives up its rarest entries when it is loaded.
constexpr int kLeastFreeSlots = 3;

bool IsNearlyFull(const Vocabulary& entries) {
    return Vocabulary::kCapacity - entries.Count() < kLeastFreeSlots;
}

std::size_t Take(const Vocabulary& entries, Vocabulary::Run run, std::span<DictionaryEntry> out) {
    for (std::size_t position = run.first; position < run.last; ++position)
        out[position - run.first] = DictionaryEntry(entries, entries.At(position));
    return run.Size();
}

} // namespace

CDictionary::CDictionary(std::shared_ptr<GeneralStore> general)
    : general(std::move(general)), words(kWordRules, *this->general),
      sentences(kSentenceRules, *this->general) {
}

std::vector<Text> CDictionary::LoadProfileDictionaries(const DataFolder& folder, TextView name, bool adapt) {
    const auto user = [&](TextView extension) {
        return folder.Path(Text(name) + Text(extension));
    };
    std::vector<Text> messages;
    // Pairs join only entries that are there, so each pair file follows its entries, the user's last.
    messages.push_back(LoadGeneralWords(folder.Path("geral.pal")));
    messages.push_back(LoadGeneralWordPairs(folder.Path("geral.par")));
    LoadClasses(folder);
    messages.push_back(LoadUserWords(user(".pal")));
    messages.push_back(LoadUserWordPairs(user(".par")));
    if (adapt && IsNearlyFull(Words()))
        RemoveRarestUserWords();
    abbreviations.Load(user(".abr"));
    messages.push_back(LoadGeneralSentences(folder.Path("geral.frs")));
    messages.push_back(LoadGeneralSentencePairs(folder.Path("geral.paf")));
    messages.push_back(LoadUserSentences(user(".frs")));
    messages.push_back(LoadUserSentencePairs(user(".paf")));
    if (adapt && IsNearlyFull(Sentences()))
        RemoveRarestUserSentences();
    std::erase(messages, Text());
    return messages;
}

void CDictionary::LoadClasses(const DataFolder& folder) {
    try {
        wordClasses.Load(folder.Path("geral.cg"));
    } catch (const std::invalid_argument&) {
        // The classes that fitted serve; the person's own files are still to be read.
    }
    wordClassPairs.Load(folder.Path("geral.pcg"));
}

SaveResult CDictionary::SaveUserFiles() {
    SaveResult first;
    for (SaveResult saved :
         {SaveUserWordPairs(), SaveUserWords(), SaveUserSentencePairs(), SaveUserSentences()})
        if (first && !saved)
            first = std::move(saved);
    return first;
}

void CDictionary::Clear() {
    words.Clear();
    sentences.Clear();
}

std::size_t CDictionary::WordsWithPrefix(TextView prefix, std::span<CDictionaryWord> out) const {
    Vocabulary::Run run = Words().WithPrefix(words.StoredForm(prefix));
    run.last = std::min(run.last, run.first + out.size());
    return Take(Words(), run, out);
}

std::size_t CDictionary::SentencesWithPrefix(TextView prefix, std::span<CDictionarySentence> out) const {
    Vocabulary::Run run = Sentences().WithPrefix(sentences.StoredForm(prefix));
    run.last = std::min(run.last, std::max(run.first, out.size()));
    return Take(Sentences(), run, out);
}

CDictionary::Position CDictionary::Find(const DictionarySide& side, TextView text) {
    const auto [entry, position] = side.Find(text);
    return {DictionaryEntry(side.Entries(), entry), static_cast<int>(position)};
}

std::size_t CDictionary::NextSet(const DictionarySide& side, TextView text,
                                 std::vector<DictionaryNextEntry>& out) {
    out.clear();
    const EntryId first = side.Find(text).entry;
    if (first == kNoEntry)
        return 0;
    const Vocabulary& entries = side.Entries();
    const Successors successors = entries.SuccessorsOf(first).First(Vocabulary::kMaximumSuccessors);
    for (std::size_t i = 0; i < successors.Size(); ++i) {
        const auto [next, frequency, userFrequency] = successors[i];
        out.push_back({DictionaryEntry(entries, next), frequency, userFrequency});
    }
    return out.size();
}

DictionaryEntry CDictionary::Next(const DictionarySide& side, int& position) {
    const Vocabulary& entries = side.Entries();
    const DictionaryEntry entry(entries, entries.At(static_cast<std::size_t>(position)));
    if (static_cast<std::size_t>(++position) == entries.Count())
        position = -1;
    return entry;
}

} // namespace ondrilo
