#include "app/TextPredictionKeys.h"

#include "text/CaseFolding.h"

namespace ondrilo {
namespace {

bool Remains(const PredictionKeyList& list, const Tokens& texts, int position) {
    return list.next < static_cast<int>(texts.size()) && position < list.inUse;
}

const COnScreenKeyIdentifier& KeyAt(const PredictionKeyList& list, int position) {
    return list.keys[static_cast<std::size_t>(position)];
}

Text EntryAt(const PredictionKeyList& list, const Tokens& texts, int position) {
    if (position >= list.inUse)
        return {};
    const auto index = static_cast<std::size_t>(list.IndexOf(position));
    return index < texts.size() ? texts[index] : Text();
}

} // namespace

TextPredictionKeys::TextPredictionKeys(COnScreenKeyboard& keyboard, PredictionKeyLists& lists,
                                       const Predictions& predictions, const SpecialKeys& specialKeys,
                                       const CUserProfileSet& profiles)
    : keyboard(keyboard), lists(lists), predictions(predictions), specialKeys(specialKeys),
      profiles(profiles) {
}

void TextPredictionKeys::ShowTextPredictions() {
    if (keyboard.IsEditing())
        return;
    ClearWordKeys();
    ClearSentenceKeys();
    keyboard.SetLastPageMark(lists.words.keys, false);
    keyboard.SetLastPageMark(lists.sentences.keys, false);
    lists.words.RestartPaging();
    lists.sentences.RestartPaging();
    DistributeTextPredictions();
}

void TextPredictionKeys::ShowNextTextPredictions() {
    if (keyboard.IsEditing())
        return;
    ClearWordKeys();
    ClearSentenceKeys();
    lists.words.TurnPage(keyboard, predictions.predictedWords.size());
    lists.sentences.TurnPage(keyboard, predictions.predictedSentences.size());
    DistributeTextPredictions();
    lists.words.MarkLastPage(keyboard, predictions.predictedWords.size());
    lists.sentences.MarkLastPage(keyboard, predictions.predictedSentences.size());
}

void TextPredictionKeys::DistributeTextPredictions() {
    const auto& words = predictions.predictedWords;
    const auto& sentences = predictions.predictedSentences;
    const auto limit = static_cast<std::size_t>(specialKeys.HotKeyLimit());
    hotKeyMap.clear();
    int wordPosition = 0;
    int sentencePosition = 0;
    while (hotKeyMap.size() < limit && Remains(lists.words, words, wordPosition) &&
           Remains(lists.sentences, sentences, sentencePosition)) {
        if (KeyAt(lists.words, wordPosition) < KeyAt(lists.sentences, sentencePosition))
            Place(lists.words, words, wordPosition);
        else
            Place(lists.sentences, sentences, sentencePosition);
    }
    while (Remains(lists.words, words, wordPosition))
        Place(lists.words, words, wordPosition);
    while (Remains(lists.sentences, sentences, sentencePosition))
        Place(lists.sentences, sentences, sentencePosition);
}

void TextPredictionKeys::Place(PredictionKeyList& list, const Tokens& texts, int& position) {
    const auto key = KeyAt(list, position++);
    const auto& entry = texts[static_cast<std::size_t>(list.next++)];
    const bool capitals = profiles.Active().properties.IsOn(option::PALAVRAS_PREDITAS_EM_MAIUSCULAS);
    const Text text = capitals ? MakeUpper(entry) : entry;
    keyboard.SetDescription(key, text);
    keyboard.SetOutput(key, text);
    const auto hotKey = static_cast<int>(hotKeyMap.size());
    if (hotKey >= specialKeys.HotKeyLimit()) {
        keyboard.SetLabel(key, text);
        return;
    }
    keyboard.SetLabel(key, specialKeys.HotKeyName(hotKey) + ": " + text);
    hotKeyMap.push_back(key);
}

void TextPredictionKeys::ClearWordKeys() {
    Clear(lists.words);
}

void TextPredictionKeys::ClearSentenceKeys() {
    Clear(lists.sentences);
}

void TextPredictionKeys::Clear(const PredictionKeyList& list) {
    for (const auto& key : list.keys) {
        keyboard.SetLabel(key, "");
        keyboard.SetDescription(key, "");
        keyboard.SetOutput(key, "");
    }
}

std::optional<COnScreenKeyIdentifier> TextPredictionKeys::KeyOfHotKey(int index) const {
    if (index < 0 || index >= static_cast<int>(hotKeyMap.size()))
        return std::nullopt;
    return hotKeyMap[static_cast<std::size_t>(index)];
}

Text TextPredictionKeys::WordAt(int position) const {
    return EntryAt(lists.words, predictions.predictedWords, position);
}

Text TextPredictionKeys::SentenceAt(int position) const {
    return EntryAt(lists.sentences, predictions.predictedSentences, position);
}

} // namespace ondrilo
