#pragma once

#include "platform/AccessibleText.h"
#include "platform/qt/AccessiblePrograms.h"

#include <QTimer>

namespace ondrilo {

/// Reads the paragraph around the caret of another program once that has come to rest.
class AccessibleParagraph {
  public:
    using Answer = std::function<void(AccessibleText::Paragraph)>;
    /// `focus` tells what to read, none for nothing.
    AccessibleParagraph(AccessibilityConnection& connection, std::function<const AccessibleFocus*()> focus);

    /// Takes the place of the call before.
    void Read(Answer answer);
    /// The caret has moved: what is awaited or was read half is begun anew.
    void Renew();
    /// Nobody wants to know any more.
    void Drop();

  private:
    void Begin();
    void AskForSelection();
    void AskForOffset();
    void AskForLength();
    void AskForText(int from, int to, std::function<void(const QString&)> told);
    void Tell(const QString& before, const QString& behind);

    AccessibilityConnection& connection;
    std::function<const AccessibleFocus*()> focus;
    QTimer rest;
    Answer answer; ///< none if nobody waits
    AccessibilityConnection::Question question;
    AccessibleObject object;
    int caret = 0;
};

} // namespace ondrilo
