#include "profiles/CUserProfileProperties.h"

#include "profiles/OptionLines.h"

namespace ondrilo {

CUserProfileProperties::CUserProfileProperties() {
    for (const auto& option : kProfileOptions) {
        if (option.IsInteger())
            integers[option.index] = option.standard;
        else if (option.IsText())
            texts[option.index] = option.standardText;
    }
}

TextView CUserProfileProperties::GetTimeSpans(int weekday) const {
    constexpr auto sunday = static_cast<std::size_t>(option::INTERVALOS_TEMPO_DOMINGO);
    if (weekday < 1 || weekday > 7)
        return {};
    return texts[sunday + static_cast<std::size_t>(weekday) - 1];
}

void CUserProfileProperties::Load(const std::filesystem::path& path) {
    filePath = path;
    Parse(ReadFile(path).bytes);
}

SaveResult CUserProfileProperties::Save() const {
    return ReplaceFile(filePath, Format());
}

void CUserProfileProperties::Parse(TextView bytes) {
    ForEachOptionLine(bytes, [this](TextView key, TextView line) {
        if (const auto* option = FindProfileOption(key))
            Assign(*option, line);
    });
}

void CUserProfileProperties::Assign(const ProfileOption& option, TextView line) {
    // A missing or unreadable value is 0 or empty, not the default.
    if (option.IsInteger())
        integers[option.index] = IntegerOfLine(line);
    else if (option.kind == OptionKind::Real)
        reals[option.index] = RealOfLine(line);
    else
        texts[option.index] =
            option.kind == OptionKind::SpacedText ? MarksToBlanks(TextOfLine(line)) : TextOfLine(line);
    if (option.key == "NOME_TECLADO")
        activeKeyboardName = Get(option::NOME_TECLADO);
}

Text CUserProfileProperties::Format() const {
    Text file;
    for (const auto& option : kProfileOptions) {
        if (option.IsInteger())
            AppendOption(file, option.key, integers[option.index]);
        else if (option.kind == OptionKind::Real)
            AppendOption(file, option.key, reals[option.index]);
        else if (option.kind == OptionKind::SpacedText)
            AppendOption(file, option.key, BlanksToMarks(texts[option.index]));
        else
            AppendOption(file, option.key, texts[option.index]);
    }
    return file;
}

} // namespace ondrilo
