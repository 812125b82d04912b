#pragma once

#include "prediction/CWordPredictor.h"
#include "simulators/WordSimulationFigures.h"
#include "text/LineReader.h"

#include <filesystem>
#include <optional>

namespace ondrilo {

class CUserProfileProperties;

/// Writes a text word by word as an ideal person would, who takes a word from the list as soon as it is
/// there, and counts what that saves. With ADAPTACAO_UTILIZADOR the dictionary learns on the way and is as
/// before at the end; between Start and End it must not be saved.
class CWordPredictionSimulator {
  public:
    /// Opens a text (Windows-1252). False if it cannot be read, or if something learned before could not be
    /// saved and would be lost at the end: then Problem tells. Dictionary and profile stay in place until
    /// End.
    bool Start(CDictionary& dictionary, const CUserProfileProperties& profile,
               const std::filesystem::path& path);
    [[nodiscard]] const Text& Problem() const { return problem; }
    /// All words of the text.
    [[nodiscard]] int CountWords() const;
    /// Writes one word; false at the end of the text.
    bool Step();
    /// Closes the text and takes back what the dictionary learned; the messages to show, in order.
    std::vector<Text> End();

    /// The word written last, as it stands in the text.
    [[nodiscard]] const Text& Word() const { return previousWord; }
    [[nodiscard]] const WordSimulationFigures& Figures() const { return figures; }

  private:
    bool FindNextWord();
    void WriteWithPrediction(const Text& word, char next);
    /// Place in the list of predictions, or nothing.
    std::optional<int> PlaceAmongPredictions(TextView smallWord, TextView prefix);
    void Learn(const Text& word);
    int CountKeys(bool& caps, TextView text, char next);

    CDictionary* dictionary = nullptr;
    const CUserProfileProperties* profile = nullptr;
    std::filesystem::path path;
    Text problem;
    Text bytes;
    LineReader lines{{}, 0};
    Tokens tokens;
    std::size_t tokenIndex = 0;
    Text previousWord;
    WordSimulationFigures figures;
    /// Of the typist without prediction, and of the person.
    bool capsLock = false;
    bool userCapsLock = false;
    CWordPredictor predictor;
    CDictionaryWordScoreSet scoreSet;
    std::vector<Text> keyNames;
};

} // namespace ondrilo
