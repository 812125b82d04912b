#pragma once

#include "platform/Clock.h"
#include "profiles/store/CUserProfile.h"
#include "simulators/CWordPredictionSimulator.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace ondrilo {

/// How often the text is written, and with which coefficients.
enum class WordSimulationType {
    AsTheyAre,       ///< once, with the profile's own
    FactorByFactor,  ///< six times: each factor joins those before
    GraduallyRaised, ///< five times 51: one factor after the other from 0 to 100
};

/// The profile's values in one run.
struct PredictionFactors {
    bool adapts = false;
    int word = 0;      ///< COEFICIENTE_FREQUENCIA_PALAVRA
    int pair = 0;      ///< COEFICIENTE_FREQUENCIA_PAR_PALAVRAS
    int wordClass = 0; ///< COEFICIENTE_CLASSE_PALAVRA
    int userWord = 0;  ///< COEFICIENTE_FREQUENCIA_PALAVRA_UTILIZADOR
    int userPair = 0;  ///< COEFICIENTE_FREQUENCIA_PAR_PALAVRAS_UTILIZADOR

    bool operator==(const PredictionFactors&) const = default;
};

/// One element a run; nothing leaves the profile as it is.
[[nodiscard]] std::vector<std::optional<PredictionFactors>> ScheduleOf(WordSimulationType type);

/// Watches the runs of a simulation.
class WordSimulationObserver {
  public:
    virtual ~WordSimulationObserver() = default;
    virtual void RunStarts(int words) = 0;
    virtual void WordWritten(TextView word, const WordSimulationFigures& figures) = 0;
    virtual void RunEnds(const WordSimulationFigures& figures) = 0;
};

struct WordSimulationOutcome {
    /// To show, each once.
    std::vector<Text> messages;
    /// A sentence for the status line; empty if all went well.
    Text problem;
};

/// All runs of that type on a text. The values of the last run stay in the profile: who studies the
/// coefficients goes on from there. A text that cannot be read ends everything in silence.
WordSimulationOutcome SimulateWords(CUserProfile& profile, const std::filesystem::path& text,
                                    WordSimulationType type, WordSimulationObserver& observer);

/// Name of the file for the results of a profile's simulation that begins now.
[[nodiscard]] Text ResultsFileName(TextView profileName, const LocalTime& now);

/// The rows of a simulation, on disk as soon as each run ends.
class ResultsFile {
  public:
    /// Writes an empty file.
    SaveResult Open(const std::filesystem::path& path);
    /// Nothing if no file is open.
    SaveResult Append(const WordSimulationFigures& figures);

  private:
    std::filesystem::path path;
    Text rows;
};

} // namespace ondrilo
