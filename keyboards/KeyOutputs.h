#pragma once

#include "text/Text.h"

/// What the output of a key means.
namespace ondrilo {

/// In the order in which a press tells them apart. Keys that are filled at run time have a meaning of their
/// own that comes before Pictogram and Text: ask the keyboard's lists first.
enum class OutputKind { KeyboardLink, Program, Sequence, Command, Pictogram, Text };
[[nodiscard]] OutputKind KindOfOutput(TextView output);

/// Ends in ".tec", in any case.
[[nodiscard]] bool IsKeyboardLink(TextView output);
/// Ends in ".tec" in lower case: only such a key bears the link mark and counts as a link for editing.
[[nodiscard]] bool HasLinkMark(TextView output);
/// Ends in ".exe", ".com" or ".desktop", in any case; or is the absolute path of a file that exists and ends
/// in
/// ".sh" or ".AppImage".
[[nodiscard]] bool IsProgram(TextView output);
/// "{...}", blanks around it ignored.
[[nodiscard]] bool IsKeySequence(TextView output);
/// "[...]".
[[nodiscard]] bool IsCommand(TextView output);

/// The command inside such an output and its argument; what follows is ignored.
struct CommandCall {
    Text name;
    Text argument;
    bool operator==(const CommandCall&) const = default;
};
[[nodiscard]] CommandCall ParseCommand(TextView output);

} // namespace ondrilo
