#pragma once

#include "keyboards/COnScreenKeyboard.h"

#include <algorithm>
#include <optional>

namespace ondrilo {

/// The prediction keys of one type, and the page of results that they show.
struct PredictionKeyList {
    KeyIdentifiers keys; ///< all that the keyboard has, in its order
    int inUse = 0;       ///< how many of them, from the first, the profile lets the system fill
    int next = 0;        ///< first result not shown yet
    int page = 0;        ///< the page shown, from 0

    void Bind(KeyIdentifiers found, int limit) {
        keys = std::move(found);
        inUse = static_cast<int>(keys.size());
        if (limit >= 0 && limit < inUse)
            inUse = limit;
    }
    void RestartPaging() { next = page = 0; }
    /// Before the next page of `count` results is placed: a list that was shown whole starts over.
    void TurnPage(COnScreenKeyboard& keyboard, std::size_t count) {
        if (next != static_cast<int>(count)) {
            ++page;
            return;
        }
        keyboard.SetLastPageMark(keys, false);
        RestartPaging();
    }
    /// After placing: the last of several pages is marked.
    void MarkLastPage(COnScreenKeyboard& keyboard, std::size_t count) const {
        if (next == static_cast<int>(count) && page >= 1)
            keyboard.SetLastPageMark(keys, true);
    }
    [[nodiscard]] std::optional<int> PositionOf(COnScreenKeyIdentifier key) const {
        const auto found = std::find(keys.begin(), keys.end(), key);
        if (found == keys.end())
            return std::nullopt;
        return static_cast<int>(found - keys.begin());
    }
    /// The place in the whole list of what stands at that position of the page.
    [[nodiscard]] int IndexOf(int position) const { return page * inUse + position; }
};

/// All prediction keys of the keyboard on show.
struct PredictionKeyLists {
    PredictionKeyList words;
    PredictionKeyList sentences;
    PredictionKeyList images;
    PredictionKeyList imageSentences;
    /// The text behind the pictograms, one for each key of `imageSentences`.
    std::vector<Text> imageSentenceKeyTexts;

    void RestartPaging() {
        for (auto* list : {&words, &sentences, &images, &imageSentences})
            list->RestartPaging();
    }
};

} // namespace ondrilo
