#pragma once

#include "prediction/CDictionary.h"
#include "prediction/CSentencePredictor.h"
#include "prediction/CWordPredictor.h"
#include "profiles/CUserProfileProperties.h"
#include "tests/conformance/Area.h"

namespace ondrilo::conformance {

/// A dictionary: what is read, found, predicted, changed and written.
class VocabularyArea : public Area {
  public:
    explicit VocabularyArea(const std::filesystem::path& folder);

  protected:
    virtual CDictionary& Dictionary() { return ownDictionary; }

  private:
    void AddFiles();
    void AddSearches();
    void AddSuccessors();
    void AddClasses();
    void AddChanges();
    void AddAbbreviations();
    void AddPredictions();
    void AddFilters();
    [[nodiscard]] Values Totals();
    [[nodiscard]] Values BestWords(std::size_t most);
    [[nodiscard]] Values BestSentences(std::size_t most);

    DataFolder folder;
    CDictionary ownDictionary;
    CUserProfileProperties profile;
    CWordPredictor wordPredictor;
    CSentencePredictor sentencePredictor;
};

} // namespace ondrilo::conformance
