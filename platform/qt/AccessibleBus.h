#pragma once

#include "platform/AccessibleText.h"

#include <memory>

namespace ondrilo {

/// Other programs' texts over the desktop's accessibility bus. Needs a running event loop, which is never
/// held. Without such a bus, or with a program that tells nothing, all stays as in the form without it.
class AccessibleBus : public AccessibleText {
  public:
    /// Looks for the bus in the background and asks the desktop that programs tell of their texts.
    AccessibleBus();
    ~AccessibleBus() override;

    void Follow(std::uint32_t process) override;
    void OnCaretMoved(const std::function<void(bool isElsewhere)>& moved) override;
    [[nodiscard]] Point CaretPosition() const override;
    [[nodiscard]] bool IsPassword() const override;
    void ReadParagraph(const std::function<void(Paragraph)>& answer) override;

  private:
    class Watch;
    std::unique_ptr<Watch> watch;
};

} // namespace ondrilo
