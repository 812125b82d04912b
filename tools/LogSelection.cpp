#include "tools/LogSelection.h"

#include "text/LineReader.h"

#include <array>

namespace ondrilo {
namespace {

struct Operation {
    TextView name;
    bool writes, predicted;
};
constexpr std::array<Operation, 13> kOperations{{{"PREDICTED_WORD_SELECTION", true, true},
                                                 {"PREDICTED_WORD_SEQUENCE_SELECTION", true, true},
                                                 {"PREDICTED_SENTENCE_SELECTION", true, true},
                                                 {"PREDICTED_IMAGE_SELECTION", true, true},
                                                 {"PREDICTED_IMAGE_SENTENCE_SELECTION", true, true},
                                                 {"TEXT_KEY_SELECTION", true, false},
                                                 {"IMAGE_KEY_SELECTION", true, false},
                                                 {"IMAGE_SENTENCE_KEY_SELECTION", true, false},
                                                 {"ABBREVIATION_SELECTION", true, false},
                                                 {"ON_SCREEN_KEYBOARD_CALL", false, false},
                                                 {"KEY_SEQUENCE_EXECUTION", false, false},
                                                 {"PROGRAM_EXECUTION", false, false},
                                                 {"COMMAND_EXECUTION", false, false}}};

/// Takes "3_" off the text.
std::optional<int> TakeNumber(TextView& text) {
    const auto end = text.find('_');
    if (end == TextView::npos || text.substr(0, end).find_first_not_of("0123456789") != TextView::npos)
        return std::nullopt;
    constexpr int most = 9999; // no list is as long; larger ones would burst the sums
    const auto number = FieldScanner(text.substr(0, end)).Integer();
    if (!number || *number > most)
        return std::nullopt;
    text.remove_prefix(end + 1);
    return number;
}

void ReadPosition(TextView details, LogSelection& selection) {
    const auto page = TakeNumber(details);
    const auto position = page ? TakeNumber(details) : std::nullopt;
    if (!position)
        return;
    selection.page = *page;
    selection.position = position;
    selection.details = details;
}

} // namespace

std::optional<LogSelection> ReadLogSelection(TextView type) {
    // What a command speaks follows the command itself.
    if (type.starts_with("COMMAND_EXECUTION_SYNTHESIZE_"))
        return std::nullopt;
    for (const auto& [name, writes, predicted] : kOperations) {
        if (!type.starts_with(name))
            continue;
        auto details = type.substr(name.size());
        if (details.starts_with('_'))
            details.remove_prefix(1);
        LogSelection selection{name, writes, predicted, 0, {}, Text(details)};
        if (predicted)
            ReadPosition(details, selection);
        return selection;
    }
    return std::nullopt;
}

} // namespace ondrilo
