#pragma once

#include "text/Text.h"

#include <vector>

/// Between a dialog that lists entries with a value each (words with their frequency, abbreviations with
/// their expansion) and what the entries belong to.
namespace ondrilo {

enum class EntryListKind { Words, Sentences, Abbreviations };

struct ListedEntry {
    Text name;
    Text value;
    bool operator==(const ListedEntry&) const = default;
};

/// What the dialog says; all of it is text for the person.
struct EntryListTexts {
    TextView title;
    TextView nameLabel;
    TextView valueLabel;
    TextView emptyName;       ///< refuses to add a name without characters
    TextView nameWithBlank;   ///< refuses a blank in a name; empty: blanks are welcome
    TextView nameExists;      ///< an entry of that name is in the list
    TextView emptyList;       ///< nothing to remove
    TextView nothingSelected; ///< nothing chosen to remove
    TextView confirmRemoval;  ///< question
};

/// The entries that a dialog shows and changes. Changes take effect at once; whoever opened the dialog keeps
/// or forgets them when it has ended.
class EntryList {
  public:
    virtual ~EntryList() = default;
    [[nodiscard]] virtual EntryListKind Kind() const = 0;
    [[nodiscard]] virtual const EntryListTexts& Texts() const = 0;
    /// True if values are numbers from 1 to 1,000,000; otherwise they are free text.
    [[nodiscard]] virtual bool HasNumbers() const = 0;
    /// In the order in which they are shown.
    [[nodiscard]] virtual std::vector<ListedEntry> Entries() const = 0;
    /// The form in which a typed name is kept: trimmed, and folded where the list does so.
    [[nodiscard]] virtual Text Normalized(TextView typed) const = 0;
    /// What tells entries apart: names with the same key are one entry.
    [[nodiscard]] virtual Text Key(TextView name) const { return Text(name); }
    /// Most characters of a name, and of the value of `name`, that outlive a visit to the file.
    [[nodiscard]] virtual std::size_t NameLimit() const = 0;
    [[nodiscard]] virtual std::size_t ValueLimit(TextView name) const = 0;
    /// A name that is not listed yet; gives the value that it starts with.
    virtual Text Add(TextView name) = 0;
    virtual void Change(TextView name, TextView value) = 0;
    virtual void Remove(TextView name) = 0;
};

} // namespace ondrilo
