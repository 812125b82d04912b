#pragma once

#include "platform/EntryList.h"
#include "prediction/CDictionary.h"

namespace ondrilo {

/// The person's entries of one side of a dictionary, each with its user frequency. The order is that of the
/// dictionary; entries that were removed or never used are not listed.
class FrequencyList : public EntryList {
  public:
    [[nodiscard]] bool HasNumbers() const override { return true; }
    [[nodiscard]] std::vector<ListedEntry> Entries() const override;
    [[nodiscard]] std::size_t ValueLimit(TextView) const override;
    Text Add(TextView name) override;
    void Change(TextView name, TextView value) override;
    void Remove(TextView name) override;

  protected:
    /// The dictionary outlives the list.
    explicit FrequencyList(CDictionary& dictionary) : dictionary(dictionary) {}
    CDictionary& dictionary;

  private:
    [[nodiscard]] virtual const Vocabulary& Side() const = 0;
    /// False if there is no such entry.
    virtual bool SetFrequency(TextView name, int value) = 0;
    virtual void AddUnknown(TextView name) = 0;
};

/// "Palavras e Pictogramas".
class WordList : public FrequencyList {
  public:
    explicit WordList(CDictionary& dictionary) : FrequencyList(dictionary) {}
    [[nodiscard]] EntryListKind Kind() const override { return EntryListKind::Words; }
    [[nodiscard]] const EntryListTexts& Texts() const override;
    [[nodiscard]] Text Normalized(TextView typed) const override;
    [[nodiscard]] std::size_t NameLimit() const override;

  private:
    [[nodiscard]] const Vocabulary& Side() const override { return dictionary.Words(); }
    bool SetFrequency(TextView name, int value) override;
    void AddUnknown(TextView name) override { dictionary.AddUserWord(name); }
};

/// "Frases e Sequências de Palavras e Pictogramas". A sentence is shown as it was typed until the list is
/// next opened, though the dictionary keeps its normal form.
class SentenceList : public FrequencyList {
  public:
    explicit SentenceList(CDictionary& dictionary) : FrequencyList(dictionary) {}
    [[nodiscard]] EntryListKind Kind() const override { return EntryListKind::Sentences; }
    [[nodiscard]] const EntryListTexts& Texts() const override;
    [[nodiscard]] Text Normalized(TextView typed) const override;
    [[nodiscard]] Text Key(TextView name) const override;
    [[nodiscard]] std::size_t NameLimit() const override;

  private:
    [[nodiscard]] const Vocabulary& Side() const override { return dictionary.Sentences(); }
    bool SetFrequency(TextView name, int value) override;
    void AddUnknown(TextView name) override { dictionary.AddUserSentence(name); }
};

/// "Abreviaturas", sorted. One whose expansion stays empty is not on file and thus gone at the next load.
class AbbreviationList : public EntryList {
  public:
    /// The set outlives the list.
    explicit AbbreviationList(CAbbreviationExpansionSet& abbreviations) : abbreviations(abbreviations) {}
    [[nodiscard]] EntryListKind Kind() const override { return EntryListKind::Abbreviations; }
    [[nodiscard]] const EntryListTexts& Texts() const override;
    [[nodiscard]] bool HasNumbers() const override { return false; }
    [[nodiscard]] std::vector<ListedEntry> Entries() const override;
    [[nodiscard]] Text Normalized(TextView typed) const override;
    [[nodiscard]] std::size_t NameLimit() const override;
    [[nodiscard]] std::size_t ValueLimit(TextView name) const override;
    Text Add(TextView name) override;
    void Change(TextView name, TextView value) override { abbreviations.Set(name, value); }
    void Remove(TextView name) override { abbreviations.Remove(name); }

  private:
    CAbbreviationExpansionSet& abbreviations;
};

} // namespace ondrilo
