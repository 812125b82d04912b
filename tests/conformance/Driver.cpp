#include "platform/FileStore.h"
#include "tests/conformance/KeyboardArea.h"
#include "tests/conformance/KeysArea.h"
#include "tests/conformance/LayoutArea.h"
#include "tests/conformance/LearningArea.h"
#include "tests/conformance/OptionsArea.h"
#include "tests/conformance/ProfileArea.h"
#include "tests/conformance/QueryFile.h"
#include "tests/conformance/ScanningArea.h"
#include "tests/conformance/SelectionArea.h"
#include "tests/conformance/TextArea.h"
#include "tests/conformance/VocabularyArea.h"
#include "tests/support/TemporaryFolder.h"
#include "text/LineReader.h"

#include <iostream>
#include <set>

namespace ondrilo::conformance {
namespace {

namespace fs = std::filesystem;

constexpr int kSkipped = 77;

const std::map<std::string, AreaMaker>& Areas() {
    static const std::map<std::string, AreaMaker> areas{
        {"dictionary", MakerOf<VocabularyArea>()},
        {"keyboard", MakerOf<KeyboardArea>()},
        {"keys", MakerOf<KeysArea>()},
        {"layout", MakerOf<LayoutArea>()},
        {"learning", MakerOf<LearningArea>()},
        {"options", MakerOf<OptionsArea>()},
        {"prediction", MakerOf<VocabularyArea>()},
        {"profile", MakerOf<ProfileArea>()},
        {"scanning", MakerOf<ScanningArea>()},
        {"selection", MakerOf<SelectionArea>()},
        {"text", MakerOf<TextArea>()},
    };
    return areas;
}

std::optional<Values> AnswerOrFailure(const Area& area, const Query& query) {
    try {
        return area.Answer(query.operation, query.arguments);
    } catch (const std::exception& failure) {
        return Values{"exception", failure.what()};
    }
}

/// Runs the lines of one case in order, on one state.
Text RunCase(const AreaMaker& make, const fs::path& folder) {
    const TemporaryFolder scratch;
    if (fs::exists(folder / "data"))
        fs::copy(folder / "data", scratch.Path(), fs::copy_options::recursive);
    const auto area = make(scratch.Path());
    const FileBytes queries = ReadFile(folder / "queries.tsv");
    LineReader lines(queries.bytes, TextView::npos);
    Text answers;
    while (const auto line = lines.Next())
        answers.append(FormatAnswer(AnswerOrFailure(*area, ParseQuery(*line)))).append("\n");
    return answers;
}

bool RunArea(const AreaMaker& make, const fs::path& vectors, const fs::path& answers) {
    fs::remove_all(answers);
    for (const auto& entry : fs::directory_iterator(vectors)) {
        const fs::path folder = answers / entry.path().filename();
        fs::create_directories(folder);
        const auto saved = ReplaceFile(folder / "answers.tsv", RunCase(make, entry.path()));
        if (!saved) {
            std::cerr << ToUtf8(saved.problem) << '\n';
            return false;
        }
    }
    return true;
}

int Run(const std::vector<std::string>& arguments) {
    if (arguments.size() < 3) {
        std::cerr << "usage: conformance_driver VECTORS ANSWERS [area...]\n";
        return 2;
    }
    const fs::path vectors = arguments[1];
    if (!fs::is_directory(vectors)) {
        std::cerr << "no vectors in " << vectors << '\n';
        return kSkipped;
    }
    const std::set<std::string> wanted(arguments.begin() + 3, arguments.end());
    for (const auto& [name, make] : Areas()) {
        if ((!wanted.empty() && !wanted.contains(name)) || !fs::exists(vectors / name))
            continue;
        if (!RunArea(make, vectors / name, arguments[2] / fs::path(name)))
            return 1;
    }
    return 0;
}

} // namespace
} // namespace ondrilo::conformance

int main(int count, char** arguments) {
    return ondrilo::conformance::Run({arguments, arguments + count});
}
