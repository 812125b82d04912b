#include "logging/MessageContext.h"

#include "text/NormalForm.h"
#include "text/Splitter.h"

#include <algorithm>

namespace ondrilo {
namespace {

constexpr std::size_t kLimit = 500;

} // namespace

void MessageContext::Update(TextView written) {
    const auto text = written.substr(written.size() - std::min(written.size(), kLimit));
    if (Split(text, kTerminators).empty()) {
        current.clear();
        return;
    }
    previous = std::move(current);
    current = TrimLeft(CollapseWhiteSpace(text));
}

void MessageContext::Clear() {
    current.clear();
    previous.clear();
}

} // namespace ondrilo
