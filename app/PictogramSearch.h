#pragma once

#include "app/Predictions.h"

namespace ondrilo {

struct PictogramSearchOptions {
    bool withCaptions = true; ///< the candidates keep the captions of the keys
    bool writesText = false;  ///< the candidates write text instead of pictograms
};

/// Turns the predicted pictogram words and sentences into key contents: each bracketed token is looked up by
/// its name among the descriptions of `pictogramKeys`. An entry with a token that no key has is dropped.
void FindPictograms(Predictions& predictions, const PictogramSearchOptions& options);

} // namespace ondrilo
