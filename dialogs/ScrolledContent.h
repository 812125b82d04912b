#pragma once

#include <QScrollArea>

namespace ondrilo {

/// Room for content that may need more than there is: as large as the content where the screen allows it,
/// with scroll bars where not. What gets the focus is scrolled into sight.
class ScrolledContent : public QScrollArea {
    Q_OBJECT

  public:
    explicit ScrolledContent(QWidget* content);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  private:
    void ShowFocused(QWidget* focused);
};

} // namespace ondrilo
