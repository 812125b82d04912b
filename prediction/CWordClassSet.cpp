#include "prediction/CWordClassSet.h"

#include "platform/FileStore.h"
#include "prediction/Vocabulary.h"
#include "text/LineReader.h"

#include <algorithm>
#include <stdexcept>

namespace ondrilo {

void CWordClassSet::Load(const std::filesystem::path& path) {
    classes.clear();
    total = 0;
    const FileBytes file = ReadFile(path);
    LineReader lines(file.bytes, kClassLineLimit);
    int frequency = 0;
    while (const auto line = lines.Next()) {
        if (classes.size() == kCapacity)
            throw std::invalid_argument("too many word classes");
        classes.emplace_back();
        FieldScanner fields(*line);
        const auto name = fields.Word();
        if (const auto number = fields.Integer()) {
            frequency = *number;
            classes.back() = {Text(*name), frequency};
        }
        total = WrappingSum(total, frequency);
    }
}

int CWordClassSet::Frequency(TextView name) const {
    const auto known = std::find_if(classes.begin(), classes.end(),
                                    [name](const CWordClass& wordClass) { return wordClass.name == name; });
    return known == classes.end() ? 0 : known->frequency;
}

} // namespace ondrilo
