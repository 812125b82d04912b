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
    const Successors successors = vocabulary->SuccessorsOf(id);
    for (std::size_t i = 0; i < successors.Size(); ++i)
        greatest = std::max(greatest, successors[i].*counter);
    return greatest;
}

} // namespace ondrilo
