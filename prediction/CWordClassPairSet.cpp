#include "prediction/CWordClassPairSet.h"

#include "platform/FileStore.h"
#include "prediction/CWordClassSet.h"
#include "prediction/Vocabulary.h"
#include "text/LineReader.h"

namespace ondrilo {

void CWordClassPairSet::Load(const std::filesystem::path& path) {
    rows.clear();
    count = total = 0;
    const FileBytes file = ReadFile(path);
    LineReader lines(file.bytes, kClassLineLimit);
    int frequency = 0;
    while (const auto line = lines.Next()) {
        ++count;
        FieldScanner fields(*line);
        const auto first = fields.Word();
        const auto second = fields.Word();
        if (const auto number = fields.Integer()) {
            frequency = *number;
            rows[Text(*first)][Text(*second)] = frequency;
        }
        total = WrappingSum(total, frequency);
    }
}

int CWordClassPairSet::Frequency(TextView first, TextView second) const {
    const Row* row = After(first);
    if (!row)
        return 0;
    const auto known = row->find(second);
    return known == row->end() ? 0 : known->second;
}

const CWordClassPairSet::Row* CWordClassPairSet::After(TextView first) const {
    const auto row = rows.find(first);
    return row == rows.end() ? nullptr : &row->second;
}

} // namespace ondrilo
