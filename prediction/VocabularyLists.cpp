#include "prediction/VocabularyLists.h"

#include "text/CaseFolding.h"
#include "text/LineReader.h"
#include "text/NormalForm.h"

#include <algorithm>

namespace ondrilo {
namespace {

constexpr EntryListTexts kWordTexts{
    "Palavras e Pictogramas",
    "&Palavra:",
    "&Frequência:"_w,
    "Palavra vazia!",
    "Não são permitidos espaços na palavra. Utilize um travessão."_w,
    "Já existe essa palavra."_w,
    "Lista de palavras vazia!",
    "Seleccione primeiro uma palavra.",
    "Quer mesmo apagar esta palavra?",
};

constexpr EntryListTexts kSentenceTexts{
    "Frases e Sequências de Palavras e Pictogramas"_w,
    "&Frase:",
    "F&requência:"_w,
    "Frase vazia!",
    "",
    "Já existe essa frase."_w,
    "Lista de frases vazia!",
    "Seleccione primeiro uma frase.",
    "Quer mesmo apagar esta frase?",
};

constexpr EntryListTexts kAbbreviationTexts{
    "Abreviaturas",
    "A&breviatura:",
    "&Expansão:"_w,
    "Abreviatura vazia!",
    "Não são permitidos espaços na abreviatura. Utilize um travessão."_w,
    "Já existe essa abreviatura."_w,
    "Lista de abreviaturas vazia!",
    "Seleccione primeiro uma abreviatura.",
    "Quer mesmo apagar esta abreviatura?",
};

constexpr int kFirstFrequency = 1;
constexpr std::size_t kLongestNumber = 7; // characters

} // namespace

std::vector<ListedEntry> FrequencyList::Entries() const {
    std::vector<ListedEntry> listed;
    const auto& side = Side();
    std::vector<EntryId> all;
    side.Collect(side.All(), all);
    for (const EntryId entry : all)
        if (const int frequency = side.UserFrequency(entry); frequency > 0)
            listed.push_back({Text(side.TextOf(entry)), std::to_string(frequency)});
    return listed;
}

std::size_t FrequencyList::ValueLimit(TextView) const {
    return kLongestNumber;
}

Text FrequencyList::Add(TextView name) {
    if (!SetFrequency(name, kFirstFrequency))
        AddUnknown(name);
    return std::to_string(kFirstFrequency);
}

void FrequencyList::Change(TextView name, TextView value) {
    SetFrequency(name, FieldScanner(value).Integer().value_or(kFirstFrequency));
}

void FrequencyList::Remove(TextView name) {
    SetFrequency(name, 0);
}

const EntryListTexts& WordList::Texts() const {
    return kWordTexts;
}

Text WordList::Normalized(TextView typed) const {
    return MakeLower(Trim(typed));
}

std::size_t WordList::NameLimit() const {
    return CDictionary::kLongestUserWord;
}

bool WordList::SetFrequency(TextView name, int value) {
    return dictionary.SetUserWordFrequency(name, value);
}

const EntryListTexts& SentenceList::Texts() const {
    return kSentenceTexts;
}

Text SentenceList::Normalized(TextView typed) const {
    return Text(Trim(typed));
}

Text SentenceList::Key(TextView name) const {
    return NormalizeSentence(name);
}

std::size_t SentenceList::NameLimit() const {
    return CDictionary::kLongestUserSentence;
}

bool SentenceList::SetFrequency(TextView name, int value) {
    return dictionary.SetUserSentenceFrequency(name, value);
}

const EntryListTexts& AbbreviationList::Texts() const {
    return kAbbreviationTexts;
}

std::vector<ListedEntry> AbbreviationList::Entries() const {
    std::vector<ListedEntry> listed;
    for (auto& [abbreviation, expansion] : abbreviations.Entries())
        listed.push_back({std::move(abbreviation), std::move(expansion)});
    std::ranges::sort(listed, {}, &ListedEntry::name);
    return listed;
}

Text AbbreviationList::Normalized(TextView typed) const {
    return MakeLower(Trim(typed));
}

std::size_t AbbreviationList::NameLimit() const {
    return CAbbreviationExpansionSet::kLineLimit - 2;
}

std::size_t AbbreviationList::ValueLimit(TextView name) const {
    return CAbbreviationExpansionSet::kLineLimit - 1 - name.size();
}

Text AbbreviationList::Add(TextView name) {
    abbreviations.Set(name, "");
    return {};
}

} // namespace ondrilo
