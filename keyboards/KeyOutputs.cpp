#include "keyboards/KeyOutputs.h"

#include "keyboards/Pictograms.h"
#include "text/CaseFolding.h"
#include "text/NormalForm.h"
#include "text/Splitter.h"

#include <filesystem>

namespace ondrilo {
namespace {

bool IsEnclosed(TextView text, char opening, char closing) {
    return text.size() >= 2 && text.front() == opening && text.back() == closing;
}

/// These endings stand in ordinary texts too; only a file that is there makes a program of them.
bool IsProgramFile(TextView output) {
    if (!output.ends_with(".sh") && !output.ends_with(".AppImage"))
        return false;
    const std::filesystem::path path = ToUtf8(output);
    std::error_code unreachable;
    return path.is_absolute() && std::filesystem::is_regular_file(path, unreachable);
}

} // namespace

OutputKind KindOfOutput(TextView output) {
    if (IsKeyboardLink(output))
        return OutputKind::KeyboardLink;
    if (IsProgram(output))
        return OutputKind::Program;
    if (IsKeySequence(output))
        return OutputKind::Sequence;
    if (IsCommand(output))
        return OutputKind::Command;
    return HasPictograms(output) ? OutputKind::Pictogram : OutputKind::Text;
}

bool IsKeyboardLink(TextView output) {
    return MakeLower(output).ends_with(".tec");
}

bool HasLinkMark(TextView output) {
    return output.ends_with(".tec");
}

bool IsProgram(TextView output) {
    const Text folded = MakeLower(output);
    const auto hasEnding = [&folded](TextView ending) {
        return folded.ends_with(ending);
    };
    return hasEnding(".exe") || hasEnding(".com") || hasEnding(".desktop") || IsProgramFile(output);
}

bool IsKeySequence(TextView output) {
    return IsEnclosed(Trim(output), '{', '}');
}

bool IsCommand(TextView output) {
    return IsEnclosed(output, '[', ']');
}

CommandCall ParseCommand(TextView output) {
    Tokens words = Split(WithoutBrackets(output), " ");
    words.resize(2);
    return {std::move(words[0]), std::move(words[1])};
}

} // namespace ondrilo
