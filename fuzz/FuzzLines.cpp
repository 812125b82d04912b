#include "fuzz/Fuzz.h"
#include "text/CaseFolding.h"
#include "text/Classes.h"
#include "text/Counting.h"
#include "text/LineReader.h"
#include "text/NormalForm.h"

namespace {

using namespace ondrilo;

void ReadLines(TextView bytes, std::size_t limit) {
    LineReader lines(bytes, limit);
    std::size_t total = 0;
    while (const auto line = lines.Next()) {
        Require(line->size() <= limit, "no read is longer than the limit");
        total += line->size();
        FieldScanner numbers(*line);
        while (numbers.Integer() || numbers.Word(3))
            continue;
        FieldScanner reals(*line);
        while (reals.Real() || reals.Word(7))
            continue;
        FieldScanner tail(*line);
        (void)tail.Word();
        (void)tail.Tail();
    }
    Require(total <= bytes.size(), "no byte is read twice");
}

void TreatAsText(TextView text) {
    const Text normal = NormalizeSentence(text);
    Require(NormalizeSentence(normal) == normal, "the normal form is stable");
    Require(FromUtf8(ToUtf8(text)) == text, "UTF-8 keeps every byte");
    (void)FromUtf8(text);
    (void)LearnedKindOf(text);
    (void)CountQwertyKeys(text);
    (void)CountKeyPresses(text);
    (void)CountSymbols(text);
    (void)CountWords(DropBrackets(text));
    (void)WordForms(text.substr(text.size() / 2), text);
    (void)SentenceForms(text);
    Require(GetRemainder(text, text).empty(), "nothing remains of what is written in full");
    Require(BarsToBlanks(BlanksToBars(text)) == Replace(text, "|", " "), "bars stand for blanks");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    const TextView bytes = TextOf(data + 1, size - 1);
    ReadLines(bytes, 1 + data[0]);
    TreatAsText(bytes);
    return 0;
}
