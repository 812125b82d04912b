#pragma once

#include <QTranslator>

namespace ondrilo {

/// European Portuguese for the texts of Qt's own: choosers of files and colours, menus of text fields,
/// standard buttons. Install it in the application.
class PortugueseTexts : public QTranslator {
  public:
    [[nodiscard]] QString translate(const char* context, const char* source, const char* comment,
                                    int number) const override;
    [[nodiscard]] bool isEmpty() const override { return false; }
};

} // namespace ondrilo
