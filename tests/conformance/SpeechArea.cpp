#include "speech/CSpeechSynthesizer.h"
#include "tests/conformance/Area.h"
#include "tests/support/FakeSpeechEngine.h"

namespace ondrilo::conformance {
namespace {

/// The exceptions of a voice.
class SpeechArea : public Area {
  public:
    explicit SpeechArea(const std::filesystem::path& folder) : synthesizer(engine, DataFolder(folder)) {
        OnFile(folder);
        On("exceptions_load", [this](const auto& a) { synthesizer.SelectVoice(a.at(0), {}); });
        On("exceptions_spoken", [this](const auto& a) {
            synthesizer.Speak(a.at(0));
            return engine.said.back().text;
        });
        On("exceptions_set", [this](const auto& a) { return synthesizer.SetException(a.at(0), a.at(1)); });
        On("exceptions_remove", [this](const auto& a) { return synthesizer.RemoveException(a.at(0)); });
        On("exceptions_sorted", [this](const auto&) {
            Values values;
            for (const auto& [text, replacement] : synthesizer.GetExceptions())
                Append(values, {text, replacement});
            return values;
        });
    }

  private:
    FakeSpeechEngine engine;
    CSpeechSynthesizer synthesizer;
};

} // namespace

const AreaMaker kSpeechArea = Make<SpeechArea>;

} // namespace ondrilo::conformance
