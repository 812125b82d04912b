#include "fuzz/Fuzz.h"
#include "prediction/CAbbreviationExpansionSet.h"
#include "tests/support/TemporaryFolder.h"

using namespace ondrilo;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    CAbbreviationExpansionSet abbreviations;
    abbreviations.Load(folder.Write("ana.abr", TextOf(data, size)));
    Require(!abbreviations.Changed(), "reading changes nothing that must be saved");
    for (const auto& [abbreviation, expansion] : abbreviations.Entries())
        Require(abbreviations.Find(abbreviation) == expansion, "every abbreviation is found");
    return 0;
}
