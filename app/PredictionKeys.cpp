#include "app/PredictionKeys.h"

#include <algorithm>
#include <limits>

namespace ondrilo {
namespace {

constexpr int kHotKeyRoom = 3; // characters for a hot key's mark before the text

int WithHotKeyRoom(int letters) {
    return std::min(letters, std::numeric_limits<int>::max() - kHotKeyRoom) + kHotKeyRoom;
}

} // namespace

PredictionKeys::PredictionKeys(COnScreenKeyboard& keyboard, const Predictions& predictions,
                               const SpecialKeys& specialKeys, const CUserProfileSet& profiles)
    : text(keyboard, lists, predictions, specialKeys, profiles),
      images(keyboard, lists, predictions, profiles), keyboard(keyboard), profiles(profiles) {
}

void PredictionKeys::BindPredictionKeys() {
    const auto& profile = profiles.Active().properties;
    const int sentenceLimit = profile.Get(option::NUMERO_MAXIMO_FRASES_PREDITAS);
    lists.words.Bind(keyboard.KeysOfType(KeyType::WordPrediction),
                     profile.Get(option::NUMERO_MAXIMO_PALAVRAS_PREDITAS));
    lists.sentences.Bind(keyboard.KeysOfType(KeyType::SentencePrediction), sentenceLimit);
    lists.images.Bind(keyboard.KeysOfType(KeyType::ImagePrediction),
                      profile.Get(option::NUMERO_MAXIMO_IMAGENS_PREDITAS));
    // The limit of the text sentences holds here; the one of pictogram sentences limits when they are placed.
    lists.imageSentences.Bind(keyboard.KeysOfType(KeyType::ImageSentencePrediction), sentenceLimit);
    lists.imageSentenceKeyTexts.assign(lists.imageSentences.keys.size(), "");
    for (const auto& key : lists.words.keys)
        keyboard.SetLetters(key, WithHotKeyRoom(profile.Get(option::NUMERO_MAXIMO_LETRAS_PALAVRAS_PREDITAS)));
    for (const auto& key : lists.sentences.keys)
        keyboard.SetLetters(key, WithHotKeyRoom(profile.Get(option::NUMERO_MAXIMO_LETRAS_FRASES_PREDITAS)));
}

void PredictionKeys::Unbind() {
    lists = {};
}

void PredictionKeys::Show() {
    text.ShowTextPredictions();
    images.ShowImagePredictions();
}

void PredictionKeys::ShowNext() {
    text.ShowNextTextPredictions();
    images.ShowNextImagePredictions();
}

void PredictionKeys::ClearTexts() {
    text.ClearWordKeys();
    text.ClearSentenceKeys();
}

void PredictionKeys::ClearAll() {
    ClearTexts();
    images.ClearImageKeys();
    images.ClearImageSentenceKeys();
}

} // namespace ondrilo
