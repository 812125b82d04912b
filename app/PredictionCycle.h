#pragma once

#include "app/PredictionKeys.h"
#include "app/SessionServices.h"
#include "app/Targets.h"
#include "prediction/CSentencePredictor.h"
#include "prediction/CWordPredictor.h"
#include "prediction/ResultFilter.h"

namespace ondrilo {

/// Turns the text around the insertion point into what the prediction keys show.
class PredictionCycle {
  public:
    PredictionCycle(const CUserProfileSet& profiles, const Targets& targets, Predictions& predictions,
                    PredictionKeys& keys, const SessionServices& services);

    /// One whole cycle. Does nothing while a partner's suggestions are on the keys.
    void RunPrediction();

  private:
    void PredictWords();
    void PredictSentences();
    void ReactWithAgent();
    [[nodiscard]] ResultLimits Limits(IntegerOption longest) const;
    [[nodiscard]] const CUserProfile& Profile() const { return profiles.Active(); }

    const CUserProfileSet& profiles;
    const Targets& targets;
    Predictions& predictions;
    PredictionKeys& keys;
    SessionServices services;
    CWordPredictor wordPredictor;
    CSentencePredictor sentencePredictor;
    std::vector<DictionaryScore> best;
};

} // namespace ondrilo
