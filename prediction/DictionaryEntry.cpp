#include "prediction/DictionaryEntry.h"

namespace ondrilo {

int DictionaryEntry::MaxNextFrequency() const {
    return GreatestOverSuccessors(&Successor::frequency);
}

int DictionaryEntry::MaxUserNextFrequency() const {
    return GreatestOverSuccessors(&Successor::userFrequency);
}

int DictionaryEntry::GreatestOverSuccessors(int Successor::*counter) const {
    int greatest = 0;
    vocabulary->ForEachSuccessor(
        id, kAllSuccessors, [&](const Successor& next) { greatest = std::max(greatest, next.*counter); });
    return greatest;
}

} // namespace ondrilo
