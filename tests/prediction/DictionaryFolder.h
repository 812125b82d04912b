#pragma once

#include "prediction/CDictionary.h"
#include "tests/support/TemporaryFolder.h"
#include "text/Splitter.h"

#include <gtest/gtest.h>

namespace ondrilo {

/// A dictionary over files that a test writes; those it does not write are empty.
class DictionaryFolder : public testing::Test {
  protected:
    DictionaryFolder() {
        for (const char* name : {"geral.pal", "geral.par", "geral.cg", "geral.pcg", "geral.frs", "geral.paf",
                                 "ana.pal", "ana.par", "ana.frs", "ana.paf", "ana.abr"})
            (void)folder.Write(name, "");
    }

    using Files = std::initializer_list<std::pair<const char*, TextView>>;

    void Write(const std::string& name, TextView bytes) { (void)folder.Write(name, bytes); }
    [[nodiscard]] Text Read(const std::string& name) const { return folder.Read(name); }
    /// Loads, from these files over those that were written before; what to tell the person.
    std::vector<Text> Load(Files files = {}, bool adapt = false) {
        for (const auto& [name, bytes] : files)
            Write(name, bytes);
        return dictionary.LoadProfileDictionaries(DataFolder(folder.Path()), "ana", adapt);
    }
    [[nodiscard]] Tokens Words() const {
        Tokens all;
        for (int position = dictionary.FirstWord(); position >= 0;)
            all.emplace_back(dictionary.NextWord(position).Characters());
        return all;
    }
    /// "word:general:user" for each successor.
    [[nodiscard]] Tokens NextWords(TextView word) const {
        CDictionaryNextWordSet next;
        (void)dictionary.NextWordSet(word, next);
        Tokens told;
        for (const auto& [entry, frequency, userFrequency] : next)
            told.push_back(Text(entry.Characters()) + ":" + std::to_string(frequency) + ":" +
                           std::to_string(userFrequency));
        return told;
    }
    [[nodiscard]] Tokens WithPrefix(TextView prefix, std::size_t most = 100) const {
        std::vector<CDictionaryWord> out(most);
        out.resize(dictionary.WordsWithPrefix(prefix, out));
        return Characters(out);
    }
    [[nodiscard]] Tokens SentencesWithPrefix(TextView prefix, std::size_t most = 100) const {
        std::vector<CDictionarySentence> out(most);
        out.resize(dictionary.SentencesWithPrefix(prefix, out));
        return Characters(out);
    }

    TemporaryFolder folder;
    CDictionary dictionary;

  private:
    static Tokens Characters(const std::vector<DictionaryEntry>& entries) {
        Tokens texts;
        for (const DictionaryEntry& entry : entries)
            texts.emplace_back(entry.Characters());
        return texts;
    }
};

} // namespace ondrilo
