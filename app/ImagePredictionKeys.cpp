#include "app/ImagePredictionKeys.h"

#include "keyboards/Pictograms.h"

namespace ondrilo {

ImagePredictionKeys::ImagePredictionKeys(COnScreenKeyboard& keyboard, PredictionKeyLists& lists,
                                         const Predictions& predictions, const CUserProfileSet& profiles)
    : keyboard(keyboard), lists(lists), predictions(predictions), profiles(profiles) {
}

void ImagePredictionKeys::ShowImagePredictions() {
    if (keyboard.IsEditing())
        return;
    ClearImageKeys();
    ClearImageSentenceKeys();
    for (auto* list : {&lists.images, &lists.imageSentences}) {
        keyboard.SetLastPageMark(list->keys, false);
        list->RestartPaging();
    }
    PlaceImages();
    PlaceImageSentences();
}

void ImagePredictionKeys::ShowNextImagePredictions() {
    if (keyboard.IsEditing())
        return;
    ClearImageKeys();
    ClearImageSentenceKeys();
    lists.images.TurnPage(keyboard, predictions.pictogramCandidates.size());
    PlaceImages();
    lists.images.MarkLastPage(keyboard, predictions.pictogramCandidates.size());
    lists.imageSentences.TurnPage(keyboard, predictions.pictogramSentenceCandidates.size());
    PlaceImageSentences();
    lists.imageSentences.MarkLastPage(keyboard, predictions.pictogramSentenceCandidates.size());
}

void ImagePredictionKeys::PlaceImages() {
    const auto& candidates = predictions.pictogramCandidates;
    auto& list = lists.images;
    const int most = profiles.Active().properties.Get(option::NUMERO_MAXIMO_IMAGENS_PREDITAS);
    for (int k = 0; list.next < static_cast<int>(candidates.size()); ++list.next) {
        if (k >= list.inUse || k >= most)
            return;
        const auto& candidate = candidates[static_cast<std::size_t>(list.next)];
        if (!IsOnShow(candidate.key.description))
            Write(list.keys[static_cast<std::size_t>(k++)], candidate.key);
    }
}

void ImagePredictionKeys::PlaceImageSentences() {
    const auto& candidates = predictions.pictogramSentenceCandidates;
    const auto& profile = profiles.Active().properties;
    auto& list = lists.imageSentences;
    const int most = profile.Get(option::NUMERO_MAXIMO_FRASES_IMAGENS_PREDITAS);
    const int longest = profile.Get(option::NUMERO_MAXIMO_IMAGENS_FRASES_PREDITAS);
    for (int k = 0; list.next < static_cast<int>(candidates.size()); ++list.next) {
        if (k >= list.inUse || k >= most)
            return;
        const auto& candidate = candidates[static_cast<std::size_t>(list.next)];
        if (IsOnShow(candidate.key.description) || CountPictograms(candidate.key.label) > longest)
            continue;
        const auto position = static_cast<std::size_t>(k++);
        Write(list.keys[position], candidate.key);
        lists.imageSentenceKeyTexts[position] = candidate.text;
    }
}

bool ImagePredictionKeys::IsOnShow(TextView description) const {
    const auto& fixed = keyboard.FlatKeys();
    if (std::any_of(fixed.begin(), fixed.end(),
                    [description](const COnScreenKeyData& key) { return key.description == description; }))
        return true;
    for (const auto* list : {&lists.words, &lists.sentences, &lists.images, &lists.imageSentences})
        for (const auto& key : list->keys)
            if (keyboard.Key(key).data.description == description)
                return true;
    return false;
}

void ImagePredictionKeys::Write(COnScreenKeyIdentifier key, const COnScreenKeyData& content) {
    keyboard.SetLabel(key, content.label);
    keyboard.SetImageText(key, content.imageText);
    keyboard.SetDescription(key, content.description);
    keyboard.SetOutput(key, content.output);
    keyboard.SetActive(key, content.active);
    keyboard.SetBackgroundColor(key, content.backgroundColor);
    keyboard.SetTextColor(key, content.textColor);
}

void ImagePredictionKeys::ClearImageKeys() {
    Clear(lists.images);
}

void ImagePredictionKeys::ClearImageSentenceKeys() {
    Clear(lists.imageSentences);
    for (auto& text : lists.imageSentenceKeyTexts)
        text.clear();
}

void ImagePredictionKeys::Clear(const PredictionKeyList& list) {
    for (const auto& key : list.keys) {
        keyboard.SetLabel(key, "");
        keyboard.SetDescription(key, "");
        keyboard.SetOutput(key, "");
        keyboard.SetBackgroundColor(key, kDefaultColor);
        keyboard.SetTextColor(key, kDefaultColor);
    }
}

} // namespace ondrilo
