#include "profiles/CSystemOptions.h"

#include "profiles/OptionLines.h"

#include <utility>

namespace ondrilo {
namespace {

constexpr TextView kPassword = "$Kalvimo7R$";

} // namespace

void CSystemOptions::Set(IntegerSystemOption option, int value) {
    integers[static_cast<std::size_t>(option)] = value;
    changed = true;
}

void CSystemOptions::Set(TextSystemOption option, TextView value) {
    texts[static_cast<std::size_t>(option)] = value;
    changed = true;
}

std::vector<Text> CSystemOptions::GetPriorities() {
    changed = true;
    return priorities;
}

void CSystemOptions::SetPriorities(std::vector<Text> names) {
    changed = true;
    priorities = std::move(names);
}

bool CSystemOptions::PassesLock(Dialogs& dialogs, MessageBoxes& boxes) {
    const auto typed = dialogs.AskPassword();
    if (typed && *typed != kPassword)
        boxes.Show("Senha incorrecta!");
    return typed == kPassword;
}

bool CSystemOptions::UnlockChanges(Dialogs& dialogs, MessageBoxes& boxes) {
    const bool passed = PassesLock(dialogs, boxes);
    if (passed)
        Set(system_option::ALTERACOES_SISTEMA, 1);
    return passed;
}

void CSystemOptions::Load(const std::filesystem::path& path) {
    file = path;
    const auto read = ReadFile(path);
    Parse(read.bytes);
    if (read.state == ReadState::Complete)
        changed = false;
}

SaveResult CSystemOptions::Save() {
    if (!changed)
        return {};
    auto result = ReplaceFile(file, Format());
    changed = !result;
    return result;
}

void CSystemOptions::Parse(TextView bytes) {
    ForEachOptionLine(bytes, [this](TextView key, TextView line) { Assign(key, line); });
}

void CSystemOptions::Assign(TextView key, TextView line) {
    for (const auto& option : kSystemOptions) {
        if (option.key != key)
            continue;
        // The ";;;" that the writer puts into a text stays in it: the reader never turns it back.
        if (option.kind == SystemOptionKind::Integer)
            integers[option.index] = IntegerOfLine(line);
        else if (option.kind == SystemOptionKind::List)
            priorities = Split(TextOfLine(line), ";");
        else
            texts[option.index] = TextOfLine(line);
    }
}

Text CSystemOptions::Format() const {
    Text bytes;
    for (const auto& option : kSystemOptions) {
        if (option.kind == SystemOptionKind::Integer)
            AppendOption(bytes, option.key, integers[option.index]);
        else if (option.kind == SystemOptionKind::List)
            AppendOption(bytes, option.key, Join(priorities, ";;;"));
        else if (option.kind == SystemOptionKind::MarkedText)
            AppendOption(bytes, option.key, BlanksToMarks(texts[option.index]));
        else
            AppendOption(bytes, option.key, texts[option.index]);
    }
    return bytes;
}

} // namespace ondrilo
