#include "prediction/PairReader.h"

#include <algorithm>

namespace ondrilo {

PairReader::PairReader(TextView bytes, const EntryFormat& format, const Vocabulary& entries)
    : fields(bytes), format(format), entries(entries) {
    records.reserve(kMost);
    known.reserve(kMost);
}

std::span<const GeneralPair> PairReader::Next() {
    do {
        Read();
        Look();
    } while (known.empty() && !records.empty());
    return known;
}

void PairReader::Read() {
    records.clear();
    wanted = 0;
    std::size_t first = Want(lastFirst);
    while (records.size() < kMost) {
        const auto firstToken = fields.Word(format.tokenLimit);
        if (!firstToken)
            return;
        const auto secondToken = fields.Word(format.tokenLimit);
        const auto count = fields.Integer();
        if (!secondToken || !count)
            continue;
        // The files are grouped by first entry.
        if (*firstToken != lastFirst) {
            lastFirst = *firstToken;
            first = Want(lastFirst);
        }
        records.push_back({first, Want(*secondToken), *count});
    }
}

std::size_t PairReader::Want(TextView token) {
    Text& text = texts[wanted];
    text.assign(token);
    std::replace(text.begin(), text.end(), '|', ' ');
    return wanted++;
}

void PairReader::Look() {
    std::array<TextView, 2 * kMost + 1> views;
    std::copy_n(texts.begin(), wanted, views.begin());
    entries.FindEach(std::span(views).first(wanted), found);
    // What is found as it stands is in normal form.
    if (format.sentences)
        for (std::size_t i = 0; i < wanted; ++i)
            if (found[i] == kNoEntry)
                found[i] = entries.Find(format.StoredForm(texts[i])).entry;

    known.clear();
    for (const auto& [first, second, count] : records)
        if (found[first] != kNoEntry && found[second] != kNoEntry)
            known.push_back({found[first], {found[second], count}});
}

} // namespace ondrilo
