#include "app/PictogramSearch.h"

#include "keyboards/Pictograms.h"
#include "text/Classes.h"
#include "text/NormalForm.h"

#include <algorithm>
#include <set>

namespace ondrilo {
namespace {

using FoundKeys = std::vector<const COnScreenKeyData*>;

Text NameForm(TextView text) {
    return NormalizeSentence(WithoutBrackets(text));
}

const COnScreenKeyData* FindKey(const std::vector<COnScreenKeyData>& keys, TextView token) {
    const auto name = NameForm(token);
    const auto found = std::find_if(keys.begin(), keys.end(), [&name](const COnScreenKeyData& key) {
        return NameForm(key.description) == name;
    });
    return found == keys.end() ? nullptr : &*found;
}

/// The keys of all tokens; none if one of them has no key.
FoundKeys FindKeys(const std::vector<COnScreenKeyData>& keys, TextView text) {
    FoundKeys found;
    for (const auto& token : SplitTokens(text)) {
        const auto* key = IsPictogramToken(token) ? FindKey(keys, token) : nullptr;
        if (!key)
            return {};
        found.push_back(key);
    }
    return found;
}

template <typename Part>
Text JoinParts(const FoundKeys& keys, TextView glue, Part part) {
    Tokens parts;
    for (const auto* key : keys)
        parts.push_back(part(*key));
    return Join(parts, glue);
}

COnScreenKeyData Compose(const FoundKeys& keys, const PictogramSearchOptions& options) {
    COnScreenKeyData composed;
    composed.label = JoinParts(keys, ":", [](const auto& key) { return key.label; });
    if (options.withCaptions)
        composed.imageText = JoinParts(keys, " ", [](const auto& key) { return key.imageText; });
    composed.description = JoinParts(keys, " ", [](const auto& key) { return key.description; });
    composed.output = options.writesText
                          ? JoinParts(keys, " ",
                                      [](const auto& key) {
                                          return IsPictogramFile(key.output) ? key.description : key.output;
                                      })
                          : JoinParts(keys, ":", [](const auto& key) { return key.output; });
    composed.backgroundColor = keys.back()->backgroundColor;
    composed.textColor = keys.back()->textColor;
    return composed;
}

} // namespace

void FindPictograms(Predictions& predictions, const PictogramSearchOptions& options) {
    predictions.pictogramCandidates.clear();
    predictions.pictogramSentenceCandidates.clear();
    std::set<TextView> handled;
    for (const auto* texts : {&predictions.predictedPictogramWords, &predictions.predictedPictogramSentences})
        for (const auto& text : *texts) {
            if (!handled.insert(text).second)
                continue;
            const auto keys = FindKeys(predictions.pictogramKeys, text);
            if (keys.empty())
                continue;
            auto key = Compose(keys, options);
            auto& list = CountPictograms(key.label) > 1 ? predictions.pictogramSentenceCandidates
                                                        : predictions.pictogramCandidates;
            if (list.size() < kMaximumPredictions)
                list.push_back({std::move(key), text});
        }
}

} // namespace ondrilo
