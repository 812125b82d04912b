#pragma once

#include "targets/CInternalWordProcessor.h"

#include <memory>

namespace ondrilo {

/// The text targets of a session: the internal editor, if the profile has one, and the target in use.
class Targets {
  public:
    /// The target in use; null while there is none.
    [[nodiscard]] CWordProcessor* Current() const { return current; }
    /// Null if the profile has no internal editor.
    [[nodiscard]] CInternalWordProcessor* Internal() const { return internal.get(); }
    [[nodiscard]] bool IsInternal() const { return current && current == internal.get(); }
    /// What is written now is secret: it is neither learned, logged nor spoken.
    [[nodiscard]] bool IsPassword() const { return current && current->IsPassword(); }

    void SetInternal(std::unique_ptr<CInternalWordProcessor> editor) { internal = std::move(editor); }
    /// The internal editor becomes the target in use; none if there is no editor.
    void UseInternal() {
        Detach();
        current = internal.get();
    }
    void UseExternal(std::unique_ptr<CWordProcessor> target) {
        Detach();
        external = std::move(target);
        current = external.get();
    }
    /// Ends the use of the target; an external one is destroyed, the editor stays.
    void Detach() {
        current = nullptr;
        if (external)
            external->Destroy();
        external.reset();
    }
    /// The end of a session.
    void Release() {
        Detach();
        if (internal)
            internal->Destroy();
        internal.reset();
    }

  private:
    CWordProcessor* current = nullptr;
    std::unique_ptr<CInternalWordProcessor> internal;
    std::unique_ptr<CWordProcessor> external;
};

} // namespace ondrilo
