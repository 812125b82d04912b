#include "platform/qt/AccessibleBus.h"

namespace ondrilo {

class AccessibleBus::Watch : public AccessibleText {};

AccessibleBus::AccessibleBus() : watch(std::make_unique<Watch>()) {
}

AccessibleBus::~AccessibleBus() = default;

void AccessibleBus::Follow(std::uint32_t process) {
    watch->Follow(process);
}

Point AccessibleBus::CaretPosition() const {
    return watch->CaretPosition();
}

bool AccessibleBus::IsPassword() const {
    return watch->IsPassword();
}

void AccessibleBus::ReadParagraph(std::function<void(Paragraph)> answer) {
    watch->ReadParagraph(std::move(answer));
}

} // namespace ondrilo
