#pragma once

#include "prediction/EntryReader.h"
#include "prediction/Vocabulary.h"

#include <array>
#include <span>

namespace ondrilo {

/// Reads a pair file field by field, not line by line; a record whose number is missing is left out and the
/// next one begins where its number should stand. Gives the pairs whose entries are both known.
class PairReader {
  public:
    /// All three outlive this; the vocabulary takes in no entry meanwhile.
    PairReader(TextView bytes, const EntryFormat& format, const Vocabulary& entries);
    /// The next pairs in the order of the file; none at its end. Valid until the next call.
    std::span<const GeneralPair> Next();

  private:
    static constexpr std::size_t kMost = 64;

    /// A record of the file by the numbers of its texts.
    struct Record {
        std::size_t first;
        std::size_t second;
        int count;
    };

    void Read();
    void Look();
    std::size_t Want(TextView token);

    FieldScanner fields;
    const EntryFormat& format;
    const Vocabulary& entries;

    std::vector<Record> records;
    /// What to look for, at most two texts a record, and the first of the last record before them.
    std::array<Text, 2 * kMost + 1> texts;
    std::size_t wanted = 0;
    std::array<EntryId, 2 * kMost + 1> found{};
    std::vector<GeneralPair> known;
    TextView lastFirst;
};

} // namespace ondrilo
