#pragma once

#include "platform/Geometry.h"
#include "platform/qt/AccessiblePrograms.h"

namespace ondrilo {

/// Where the caret of another program is on the screen.
class AccessibleCaret {
  public:
    /// `clientArea` tells where the program's window is, in the pixels of the server; empty if it is not in
    /// front.
    AccessibleCaret(AccessibilityConnection& connection, std::function<Rectangle()> clientArea)
        : connection(connection), clientArea(std::move(clientArea)) {}
    /// The caret has moved. One question is under way at a time; when it is answered, only the latest move
    /// still counts.
    void Move(const AccessibleFocus& focus);
    /// The place is unknown until the next move.
    void Forget();
    /// A window that was moved or scrolled tells nothing: who uses the place has it asked anew.
    void Renew();
    /// Top left, in logical pixels; (0, 0) while unknown.
    [[nodiscard]] Point Position() const { return position; }

  private:
    using Found = std::function<void(const std::optional<Rectangle>&)>;
    void Ask();
    void AskForOffset();
    void AskForLength();
    void AskForCharacter();
    void AskForCharacterBefore();
    void AskForObject(const std::optional<Rectangle>& lineAbove);
    void AskForArea(const AccessibleObject& object, const char* interface, const char* method,
                    const QVariantList& arguments, const char* form, Found found);
    /// False if the caret has moved meanwhile, and then it is asked for anew.
    bool IsStillThere();
    void Tell(Point told);
    void AskForWindowAround(const AccessibleObject& object, Point told, int depth);
    void AskForWindowArea(Point told);

    AccessibilityConnection& connection;
    std::function<Rectangle()> clientArea;
    AccessibilityConnection::Question question;
    std::optional<AccessibleFocus> latest; ///< not asked about yet
    AccessibleFocus asked;                 ///< with its path empty if there is none
    /// The window that holds an object.
    struct {
        AccessibleObject object, window;
    } known;
    Point position;
};

} // namespace ondrilo
