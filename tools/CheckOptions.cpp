#include "tools/CheckOptions.h"

#include "keyboards/KeyboardFile.h"
#include "profiles/CAccessOptions.h"
#include "profiles/CSystemOptions.h"
#include "profiles/CUserProfileProperties.h"
#include "profiles/OptionLines.h"
#include "tools/KnownKeyNames.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <map>

namespace ondrilo {

namespace {

bool IsComment(TextView word) {
    return word.starts_with('#') || word.starts_with("//");
}

template <typename Options>
bool Contains(const Options& options, const auto& option) {
    return std::ranges::find(options, option) != std::end(options);
}

/// "08:30-12:00;14:00-17:15"
bool AreTimeSpans(TextView text) {
    constexpr TextView form = "00:00-00:00";
    constexpr auto isDigit = [](char c) {
        return c >= '0' && c <= '9';
    };
    return std::ranges::all_of(Split(text, ";"), [&](const Text& span) {
        return std::ranges::equal(span, form,
                                  [&](char c, char f) { return f == '0' ? isDigit(c) : c == f; }) &&
               span.substr(0, 2) < "24" && span.substr(3, 2) < "60" && span.substr(6, 2) < "24" &&
               span.substr(9, 2) < "60";
    });
}

/// The lines of a file of options, with what all such files share: comments and keys that stand twice.
template <typename Visit>
void CheckOptionLines(CheckedFile& file, Visit visit) {
    std::map<Text, int, std::less<>> seen;
    while (const auto line = file.Next()) {
        const auto words = WordsOf(*line);
        if (words.empty() || IsComment(words[0]) || !visit(words))
            continue;
        if (const auto [before, added] = seen.try_emplace(Text(words[0]), file.Line()); !added)
            file.Tell("replaces line " + std::to_string(before->second));
    }
}

/// A value that can be read as it stands and lies in its range; false if that was told not to be so.
bool CheckRange(CheckedFile& file, TextView word, int least, int most) {
    const auto value = FieldScanner(word).Integer().value_or(0);
    if (const auto problem = IntegerProblem(word); !problem.empty())
        file.Tell(problem);
    else if (value < least || value > most)
        file.Tell(Quoted(word) + " is outside " + std::to_string(least) + " to " + std::to_string(most));
    else
        return true;
    return false;
}

/// More words than are read.
void TellLost(CheckedFile& file, TextView lastRead, bool mayHaveBlanks) {
    file.Tell("what follows " + Quoted(lastRead) + " is lost" +
              (mayHaveBlanks ? "; blanks are written as \";;;\"" : ""));
}

class ProfileCheck {
  public:
    ProfileCheck(const DataFolder& folder, TextView name, CheckReport& report)
        : folder(folder), file(report, folder, name, kOptionLineLimit) {}

    void Run() {
        CheckOptionLines(file, [this](const std::vector<TextView>& words) {
            const auto* option = FindProfileOption(words[0]);
            if (!option) {
                file.Tell(Quoted(words[0]) + " is no option: skipped");
                return false;
            }
            CheckValue(*option, words);
            return true;
        });
    }

  private:
    void CheckValue(const ProfileOption& option, const std::vector<TextView>& words) {
        if (words.size() < 2) {
            // An empty text is how the program itself writes one.
            if (!option.IsText() || !option.standardText.empty())
                file.Tell(Text(option.key) + " has no value: read as " + (option.IsText() ? "empty" : "0"));
            return;
        }
        if (option.IsInteger())
            CheckInteger(option, words[1]);
        else if (option.IsText())
            CheckText(TextOption{option.index}, words[1]);
        else
            CheckReal(words[1]);
        if (words.size() > 2)
            TellLost(file, words[1], option.kind == OptionKind::SpacedText);
    }

    void CheckInteger(const ProfileOption& option, TextView word) {
        if (!CheckRange(file, word, option.least, option.most))
            return;
        const auto value = FieldScanner(word).Integer().value_or(0);
        const IntegerOption handle{option.index};
        if (handle == option::TECLAS_COMPLETAR && !Contains(std::array{0, 48, 112}, value))
            file.Tell(Quoted(word) + " is neither 0, 48 nor 112");
        else if (value % option.Step() != 0)
            file.Tell(Quoted(word) + " is no multiple of " + std::to_string(option.Step()) +
                      ": that time never comes");
    }

    void CheckReal(TextView word) {
        FieldScanner scanner(word);
        if (!scanner.Real() || scanner.Word())
            file.Tell(Quoted(word) + " is read as " + std::to_string(FieldScanner(word).Real().value_or(0)));
    }

    void CheckText(TextOption option, TextView word) {
        constexpr TextOption keys[] = {option::TECLA_EXPANSAO_ABREVIATURAS, option::TECLA_SINTESE_PALAVRA,
                                       option::TECLA_SINTESE_FRASE, option::TECLA_MANIPULO1,
                                       option::TECLA_MANIPULO2};
        constexpr TextView methods[] = {"Nenhum", "Regular", "Inverso", "Passo-a-Passo"};
        constexpr TextView agents[] = {"Ondrilo", "Merlin", "Papagaio", "Robot"};
        if (Contains(keys, option) && !IsKnownKeyName(word))
            file.Tell(Quoted(word) + " is no key name");
        else if (option == option::METODO_VARRIMENTO && !Contains(methods, word))
            file.Tell(Quoted(word) + " is no scanning method");
        else if (option == option::NOME_AGENTE && !Contains(agents, word))
            file.Tell(Quoted(word) + " is no agent");
        else if (option == option::NOME_TECLADO && !std::filesystem::exists(FindKeyboard(folder, word)))
            file.Tell("there is no keyboard " + Quoted(word));
        else if (IsTimeSpanOption(option) && !AreTimeSpans(word))
            file.Tell(Quoted(word) + " is no list of time spans");
    }

    static bool IsTimeSpanOption(TextOption option) {
        return option >= option::INTERVALOS_TEMPO_DOMINGO && option <= option::INTERVALOS_TEMPO_SABADO;
    }

    const DataFolder& folder;
    CheckedFile file;
};

void CheckAccessOptions(const DataFolder& folder, TextView name, CheckReport& report) {
    CheckedFile file(report, folder, name, kOptionLineLimit);
    CheckOptionLines(file, [&](const std::vector<TextView>& words) {
        const auto* option = std::ranges::find(kAccessOptions, words[0], &AccessOptionRow::key);
        const bool isNumber = option != std::end(kAccessOptions);
        if (!isNumber && words[0] != kCueVoiceKey) {
            file.Tell(Quoted(words[0]) + " is no option: skipped");
            return false;
        }
        if (words.size() < 2)
            file.Tell(Text(words[0]) + " has no value: read as " + (isNumber ? "0" : "empty"));
        else if (isNumber && CheckRange(file, words[1], option->least, option->most) &&
                 *FieldScanner(words[1]).Integer() % option->step != 0)
            file.Tell(Quoted(words[1]) + " is no multiple of " + std::to_string(option->step) +
                      ": rounded down");
        if (words.size() > 2)
            TellLost(file, words[1], !isNumber);
        return true;
    });
}

void CheckSystemOptions(const DataFolder& folder, const std::vector<Text>& profiles, CheckReport& report) {
    CheckedFile file(report, folder, "configsis", kOptionLineLimit);
    const auto checkProfile = [&](TextView name) {
        if (!name.empty() && std::ranges::count(profiles, name) == 0)
            file.Tell(Quoted(name) + " is no profile");
    };
    CheckOptionLines(file, [&](const std::vector<TextView>& words) {
        const auto* option = std::ranges::find(kSystemOptions, words[0], &SystemOption::key);
        const auto value = words.size() > 1 ? words[1] : TextView{};
        if (option == std::end(kSystemOptions))
            file.Tell(Quoted(words[0]) + " is no option: skipped");
        else if (option->kind == SystemOptionKind::Integer && !IntegerProblem(value).empty())
            file.Tell(IntegerProblem(value));
        else if (option->key == "PERFIL_UTILIZADOR_ARRANQUE")
            checkProfile(value);
        else if (option->kind == SystemOptionKind::List)
            std::ranges::for_each(Split(value, ";"), checkProfile);
        // The server's name stands twice by rule.
        return option != std::end(kSystemOptions) && option->key != "NOME_SERVIDOR_COMUNICACAO_COOPERATIVA";
    });
}

void CheckProfileList(const DataFolder& folder, CheckReport& report) {
    CheckedFile file(report, folder, "utils");
    std::map<Text, int, std::less<>> seen{{"generico", 0}};
    while (const auto line = file.Next()) {
        for (const auto name : WordsOf(*line)) {
            if (const auto [before, added] = seen.try_emplace(Text(name), file.Line()); !added)
                file.Tell(Quoted(name) + " is in the list already");
            if (!std::filesystem::exists(folder.Path(Text(name) + ".cfg")))
                file.Tell("there is no " + Quoted(Text(name) + ".cfg") + ": all options at their defaults");
        }
    }
}

} // namespace

void CheckOptions(const DataFolder& folder, const std::vector<Text>& profiles, CheckReport& report) {
    for (const auto& name : folder.Files(".cfg"))
        ProfileCheck(folder, name, report).Run();
    for (const auto& name : folder.Files(".acs"))
        CheckAccessOptions(folder, name, report);
    for (const TextView required : {"generico.cfg", "base.cfg"})
        if (!std::filesystem::exists(folder.Path(required)))
            report.push_back({Text(required), 0, "missing"});
    CheckSystemOptions(folder, profiles, report);
    CheckProfileList(folder, report);
}

} // namespace ondrilo
