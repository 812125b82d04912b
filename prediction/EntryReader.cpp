#include "prediction/EntryReader.h"

#include "text/NormalForm.h"

namespace ondrilo {

Text EntryFormat::StoredForm(TextView text) const {
    return sentences ? NormalizeSentence(text) : Text(text);
}

std::optional<EntryLine> EntryReader::Next() {
    while (const auto line = lines.Next()) {
        FieldScanner fields(*line);
        const auto text = fields.Word();
        if (!text)
            continue;
        EntryLine entry{BarsToBlanks(*text), fields.Integer(), {}};
        if (entry.frequency)
            entry.className = fields.Word().value_or(TextView());
        return entry;
    }
    return std::nullopt;
}

} // namespace ondrilo
