#include "tests/conformance/VocabularyArea.h"

namespace ondrilo::conformance {
namespace {

Values TotalsOf(int count, const VocabularyTotals& totals) {
    return NumbersOf(count, totals.general, totals.generalPairs, totals.user, totals.userPairs);
}

Values PositionOf(const CDictionary::Position& found) {
    return NumbersOf(static_cast<bool>(found.found), found.position);
}

Values CountersOf(const DictionaryEntry& entry) {
    return NumbersOf(entry.Frequency(), entry.UserFrequency());
}

Values MaximumOf(const DictionaryEntry& entry) {
    return entry ? NumbersOf(entry.MaxNextFrequency(), entry.MaxUserNextFrequency()) : Values{};
}

Values TextsOf(const std::vector<DictionaryEntry>& entries, std::size_t count) {
    Values texts;
    for (std::size_t i = 0; i < count; ++i)
        texts.emplace_back(entries.at(i).Characters());
    return texts;
}

Values SuccessorsOf(const std::vector<DictionaryNextEntry>& successors) {
    Values values;
    for (const auto& next : successors)
        Append(values, {Text(next.entry.Characters()), Number(next.frequency), Number(next.userFrequency)});
    return values;
}

void AppendIfUsed(Values& values, const DictionaryEntry& entry) {
    if (entry.UserFrequency() != 0)
        Append(values, {Text(entry.Characters()), Number(entry.UserFrequency())});
}

} // namespace

VocabularyArea::VocabularyArea(const std::filesystem::path& folder) : folder(folder) {
    AddFiles();
    AddSearches();
    AddSuccessors();
    AddClasses();
    AddChanges();
    AddAbbreviations();
    AddPredictions();
    AddFilters();
}

void VocabularyArea::AddFiles() {
    OnFile(folder.Path());
    On("load", [this](const auto& a) {
        return Dictionary().LoadProfileDictionaries(folder, a.at(0), a.at(1) != "0");
    });
    On("reload", [this](const auto&) {
        Values messages = Dictionary().ReloadWords();
        Append(messages, Dictionary().ReloadSentences());
        return messages;
    });
    On("save", [this](const auto&) { return Dictionary().SaveUserFiles(); });
    On("totals", [this](const auto&) { return Totals(); });
}

Values VocabularyArea::Totals() {
    const CDictionary& dictionary = Dictionary();
    Values values = TotalsOf(dictionary.WordCount(), dictionary.WordTotals());
    Append(values, TotalsOf(dictionary.SentenceCount(), dictionary.SentenceTotals()));
    Append(values, NumbersOf(dictionary.wordClasses.Count(), dictionary.wordClasses.Total(),
                             dictionary.wordClassPairs.Count(), dictionary.wordClassPairs.Total()));
    return values;
}

void VocabularyArea::AddSearches() {
    On("find_word", [this](const auto& a) { return PositionOf(Dictionary().FindWord(a.at(0))); });
    On("find_sentence", [this](const auto& a) { return PositionOf(Dictionary().FindSentence(a.at(0))); });
    On("word", [this](const auto& a) {
        const CDictionaryWord word = Dictionary().GetWord(a.at(0));
        if (!word)
            return Values{};
        Values values = CountersOf(word);
        Append(values, {word.WordClass(), Number(word.NextCount())});
        return values;
    });
    On("sentence", [this](const auto& a) {
        const CDictionarySentence sentence = Dictionary().GetSentence(a.at(0));
        if (!sentence)
            return Values{};
        Values values = CountersOf(sentence);
        values.push_back(Number(sentence.NextCount()));
        return values;
    });
    On("words_with_prefix", [this](const auto& a) {
        std::vector<CDictionaryWord> found(a.Index(0));
        return TextsOf(found, Dictionary().WordsWithPrefix(a.at(1), found));
    });
    On("sentences_with_prefix", [this](const auto& a) {
        std::vector<CDictionarySentence> found(a.Index(0));
        return TextsOf(found, Dictionary().SentencesWithPrefix(a.at(1), found));
    });
}

void VocabularyArea::AddSuccessors() {
    On("max_next_word", [this](const auto& a) { return MaximumOf(Dictionary().GetWord(a.at(0))); });
    On("max_next_sentence", [this](const auto& a) { return MaximumOf(Dictionary().GetSentence(a.at(0))); });
    On("next_words", [this](const auto& a) {
        CDictionaryNextWordSet successors;
        Dictionary().NextWordSet(a.at(0), successors);
        return SuccessorsOf(successors);
    });
    On("next_sentences", [this](const auto& a) {
        CDictionaryNextSentenceSet successors;
        Dictionary().NextSentenceSet(a.at(0), successors);
        return SuccessorsOf(successors);
    });
}

void VocabularyArea::AddClasses() {
    On("class_frequency", [this](const auto& a) { return Dictionary().wordClasses.Frequency(a.at(0)); });
    On("class_pair_frequency",
       [this](const auto& a) { return Dictionary().wordClassPairs.Frequency(a.at(0), a.at(1)); });
}

void VocabularyArea::AddChanges() {
    On("add_word", [this](const auto& a) { Dictionary().AddUserWord(a.at(0), a.Integer(1)); });
    On("add_word_pair",
       [this](const auto& a) { Dictionary().AddUserWordPair(a.at(0), a.at(1), a.Integer(2)); });
    On("add_sentence", [this](const auto& a) { Dictionary().AddUserSentence(a.at(0), a.Integer(1)); });
    On("add_sentence_pair",
       [this](const auto& a) { Dictionary().AddUserSentencePair(a.at(0), a.at(1), a.Integer(2)); });
    On("set_word",
       [this](const auto& a) { return Dictionary().SetUserWordFrequency(a.at(0), a.Integer(1)); });
    On("set_sentence",
       [this](const auto& a) { return Dictionary().SetUserSentenceFrequency(a.at(0), a.Integer(1)); });
    On("remove_rarest_words", [this](const auto&) { Dictionary().RemoveRarestUserWords(); });
    On("user_words", [this](const auto&) {
        Values values;
        for (int position = Dictionary().FirstWord(); position != -1;)
            AppendIfUsed(values, Dictionary().NextWord(position));
        return values;
    });
    On("user_sentences", [this](const auto&) {
        Values values;
        for (int position = Dictionary().FirstSentence(); position != -1;)
            AppendIfUsed(values, Dictionary().NextSentence(position));
        return values;
    });
    On("learn_file", [this](const auto& a) {
        const auto path = folder.Path(a.at(0));
        Dictionary().LearnWordsFromFile(path);
        Dictionary().LearnWordPairsFromFile(path);
        Dictionary().LearnSentencesFromFile(path);
        Dictionary().LearnSentencePairsFromFile(path);
    });
}

void VocabularyArea::AddAbbreviations() {
    On("abbreviation",
       [this](const auto& a) { return Dictionary().abbreviations.Find(a.at(0)).value_or(""); });
    On("abbreviation_set", [this](const auto& a) { Dictionary().abbreviations.Set(a.at(0), a.at(1)); });
    On("abbreviation_remove", [this](const auto& a) { Dictionary().abbreviations.Remove(a.at(0)); });
    On("abbreviation_save", [this](const auto&) { return Dictionary().abbreviations.Save(); });
    On("abbreviation_reload", [this](const auto&) { Dictionary().abbreviations.Reload(); });
    On("abbreviations_sorted", [this](const auto&) {
        auto entries = Dictionary().abbreviations.Entries();
        std::sort(entries.begin(), entries.end());
        Values values;
        for (const auto& [abbreviation, expansion] : entries)
            Append(values, {abbreviation, expansion});
        return values;
    });
}

} // namespace ondrilo::conformance
