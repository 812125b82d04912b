#include "fuzz/Fuzz.h"
#include "prediction/LearningJournal.h"
#include "tests/support/TemporaryFolder.h"

using namespace ondrilo;

/// Whatever a crash left in the journal, opening it harms nothing, and what is learned afterwards can be
/// learned again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    folder.Write("ana.jrn", TextOf(data, size));
    const DataFolder files(folder.Path());
    const Lesson lesson{Lesson::Kind::Word, "depois"};
    {
        CDictionary dictionary;
        LearningJournal journal;
        journal.Open(files, "ana", dictionary);
        Require(bool(journal.Append({&lesson, 1})), "a step can be appended");
    }
    CDictionary dictionary;
    LearningJournal journal;
    journal.Open(files, "ana", dictionary);
    Require(bool(dictionary.GetWord("depois")), "a step that was appended is learned again");
    return 0;
}
