#include "platform/DataFolder.h"
#include "platform/FileStore.h"
#include "profiles/store/CUserProfileSet.h"
#include "simulators/WordSimulation.h"
#include "tools/Commands.h"

#include <cstdlib>
#include <iostream>

namespace ondrilo {
namespace {

namespace fs = std::filesystem;

constexpr ToolOption kOptions[] = {
    {"--data", "DIR", "the data folder; nothing in it is changed"},
    {"--profile", "NAME", "whose options and vocabulary"},
    {"--text", "FILE", "what the person writes"},
    {"--type", "0|1|2", "0 (standard) with the profile's factors; 1 factor by factor; 2 each from 0 to 100"},
    {"--sim", "FILE", "write a row a run into this file"},
    {"--predictions", "N", "most predicted words; otherwise as many as the profile asks for"},
    {"--adapt", "0|1", "whether the person's words are learned; otherwise as the profile says"},
};

/// A folder of one's own, gone at the end.
class ScratchFolder {
  public:
    ScratchFolder() {
        std::string name = (fs::temp_directory_path() / "ondrilo-simulate-XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("no folder could be made in " + fs::temp_directory_path().string());
        path = name;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
    [[nodiscard]] const fs::path& Path() const { return path; }

  private:
    fs::path path;
};

/// Copies what a profile's vocabulary and options consist of, as far as it is there.
void CopyProfile(const DataFolder& from, const DataFolder& to, TextView name) {
    for (const auto& owner : {Text("geral"), Text(name)})
        for (const auto* extension : {".pal", ".par", ".frs", ".paf", ".cg", ".pcg", ".abr", ".cfg", ".acs"})
            if (const auto file = from.Path(owner + extension); fs::exists(file))
                fs::copy_file(file, to.Path(owner + extension));
}

/// The text as the simulator reads it.
fs::path CopyText(const Arguments& arguments, const fs::path& folder) {
    const fs::path path = arguments.Required("--text");
    const auto file = ReadFile(path);
    if (file.state != ReadState::Complete)
        throw std::runtime_error("cannot read " + path.string());
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    std::string_view bytes = file.bytes;
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    const auto text = arguments.FromTerminal(bytes);
    // The figures of a text whose accents are lost look right and are not.
    if (arguments.ToTerminal(text) != bytes)
        std::cerr << "ondrilo-tool: some characters of " << path.string()
                  << " were not understood; is it in the right --encoding?\n";
    auto copy = folder / "texto.txt";
    if (const auto saved = ReplaceFile(copy, text); !saved)
        throw std::runtime_error(ToUtf8(saved.problem));
    return copy;
}

WordSimulationType TypeOf(const Arguments& arguments) {
    const int type = arguments.Number("--type", 0);
    if (type > static_cast<int>(WordSimulationType::GraduallyRaised))
        throw UsageError("--type is 0, 1 or 2");
    return static_cast<WordSimulationType>(type);
}

/// Prints the figures of each run, and writes its row.
class Printer : public WordSimulationObserver {
  public:
    explicit Printer(const Arguments& arguments) {
        if (const auto path = arguments.Value("--sim"))
            Check(results.Open(*path));
    }
    void RunStarts(int) override {
        if (!first)
            std::cout << '\n';
        first = false;
    }
    void WordWritten(TextView, const WordSimulationFigures&) override {}
    void RunEnds(const WordSimulationFigures& figures) override {
        for (const auto& [label, value] : IndicatorsOf(figures))
            std::cout << ToUtf8(label) << ' ' << value << '\n';
        std::cout << std::flush;
        Check(results.Append(figures));
    }

  private:
    static void Check(const SaveResult& saved) {
        if (!saved)
            throw std::runtime_error(ToUtf8(saved.problem));
    }

    ResultsFile results;
    bool first = true;
};

int Simulate(const Arguments& arguments) {
    if (arguments.Operands() != std::vector<std::string>{"words"})
        throw UsageError("what is to be simulated: words");
    const auto type = TypeOf(arguments);
    const DataFolder data(arguments.Required("--data"));
    const auto name = FromUtf8(arguments.Required("--profile"));
    if (!fs::is_directory(data.Path()))
        throw std::runtime_error("there is no folder " + data.Path().string());

    const ScratchFolder scratch;
    const DataFolder copy(scratch.Path());
    CopyProfile(data, copy, name);
    const auto text = CopyText(arguments, scratch.Path());
    CUserProfile profile(std::make_shared<GeneralStore>());
    profile.properties.profileName = name;
    profile.properties.dictionaryFolder = copy.Path();
    profile.Load(copy.Path(ProfileFile(name, ".cfg")));
    const auto& options = profile.properties;
    const int listed =
        arguments.Number("--predictions", options.Get(option::NUMERO_MAXIMO_PALAVRAS_PREDITAS));
    const int adapts = arguments.Number("--adapt", options.Get(option::ADAPTACAO_UTILIZADOR));
    profile.Set(option::NUMERO_MAXIMO_PALAVRAS_PREDITAS, listed);
    profile.Set(option::ADAPTACAO_UTILIZADOR, adapts);
    for (const auto& message : profile.LoadDictionary())
        std::cerr << ToUtf8(message) << '\n';

    Printer printer(arguments);
    const auto outcome = SimulateWords(profile, text, type, printer);
    if (outcome.problem.empty())
        return 0;
    std::cerr << ToUtf8(outcome.problem) << '\n';
    return 1;
}

} // namespace

const Command kSimulateCommand = {
    "simulate", "tells how much prediction saves a person on a text",
    "\"simulate words\" writes the text as an ideal person would, who takes a word from the list as soon as\n"
    "it is there, and prints what that saved, for each run, always in UTF-8. Works on a copy of the data.",
    kOptions, Simulate};

} // namespace ondrilo
