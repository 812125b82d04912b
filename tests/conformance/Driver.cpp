#include "tests/conformance/VocabularyArea.h"
#include "tests/support/TemporaryFolder.h"
#include "text/LineReader.h"

#include <iostream>
#include <set>

namespace ondrilo::conformance {
namespace {

namespace fs = std::filesystem;

constexpr int kSkipped = 77;
constexpr TextView kHexDigits = "0123456789ABCDEF";

/// Fields are separated by tabs; bytes outside 0x20 to 0x7E and the backslash stand as "\xNN".
Text Escape(TextView field) {
    Text escaped;
    for (const char c : field) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte <= 0x7E && c != '\\')
            escaped += c;
        else
            escaped.append("\\x").append({kHexDigits[byte >> 4], kHexDigits[byte & 0xF]});
    }
    return escaped;
}

Text Unescape(TextView field) {
    Text plain;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (!field.substr(i).starts_with("\\x") || i + 3 >= field.size()) {
            plain += field[i];
            continue;
        }
        plain += static_cast<char>(kHexDigits.find(field[i + 2]) << 4 | kHexDigits.find(field[i + 3]));
        i += 3;
    }
    return plain;
}

/// What a query "mark operation arguments... => expected values..." asks: the operation and its arguments.
Arguments AskedBy(TextView line) {
    Arguments asked;
    for (auto tab = line.find('\t'); tab != TextView::npos;) {
        line.remove_prefix(tab + 1);
        tab = line.find('\t');
        const TextView field = line.substr(0, tab);
        if (field == "=>")
            break;
        asked.push_back(Unescape(field));
    }
    return asked;
}

const std::map<std::string, AreaMaker>& Areas() {
    static const std::map<std::string, AreaMaker> areas{
        {"dictionary", Make<VocabularyArea>},
        {"keyboard", kKeyboardArea},
        {"keys", kKeysArea},
        {"layout", kLayoutArea},
        {"learning", kLearningArea},
        {"options", kOptionsArea},
        {"prediction", Make<VocabularyArea>},
        {"profile", kProfileArea},
        {"scanning", kScanningArea},
        {"selection", kSelectionArea},
        {"speech", kSpeechArea},
        {"text", kTextArea},
        {"word_simulator", kWordSimulatorArea},
    };
    return areas;
}

std::optional<Values> AnswerOrFailure(const Area& area, Arguments query) {
    if (query.empty())
        return std::nullopt;
    try {
        const Text operation = query.at(0);
        query.erase(query.begin());
        return area.Answer(operation, query);
    } catch (const std::exception& failure) {
        return Values{"exception", failure.what()};
    }
}

/// "=>" and the values, each after a tab; "!skip" for nothing.
Text FormatAnswer(const std::optional<Values>& values) {
    if (!values)
        return "!skip\n";
    Text answer = "=>";
    for (const Text& value : *values)
        answer.append("\t").append(Escape(value));
    return answer + "\n";
}

/// Runs the lines of one case in order, on one state.
Text RunCase(AreaMaker make, const fs::path& folder) {
    const TemporaryFolder scratch;
    if (fs::exists(folder / "data"))
        fs::copy(folder / "data", scratch.Path(), fs::copy_options::recursive);
    const auto area = make(scratch.Path());
    const FileBytes queries = ReadFile(folder / "queries.tsv");
    LineReader lines(queries.bytes, TextView::npos);
    Text answers;
    while (const auto line = lines.Next())
        answers += FormatAnswer(AnswerOrFailure(*area, AskedBy(*line)));
    return answers;
}

bool RunArea(AreaMaker make, const fs::path& vectors, const fs::path& answers) {
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
