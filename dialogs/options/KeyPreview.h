#pragma once

#include "dialogs/options/OptionsDraft.h"

#include <QImage>
#include <QWidget>

namespace ondrilo {

/// Keys as the draft would have them, before the background of the window: a plain key, one that is lit and
/// one with a prediction.
class KeyPreview : public QWidget {
    Q_OBJECT

  public:
    explicit KeyPreview(const OptionsDraft& draft);
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void LoadPicture();
    void PaintBackground(QPainter& painter) const;

    const OptionsDraft& draft;
    Text picturePath;
    QImage picture;
};

} // namespace ondrilo
