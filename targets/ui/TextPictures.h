#pragma once

#include "targets/TextSurface.h"

#include <QImage>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>

#include <optional>
#include <vector>

namespace ondrilo {

/// The pictures of a text document, one position each. A picture's place is in the document and follows undo
/// and redo; the picture itself and its number are kept here, where they survive both.
class TextPictures : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

  public:
    explicit TextPictures(QTextDocument& document);

    /// The code unit that stands for a picture in the document's raw text.
    static constexpr char16_t kPlace = QChar::ObjectReplacementCharacter;

    /// Inserts at the cursor a picture without a number.
    void Insert(QTextCursor& cursor, const QImage& picture);
    [[nodiscard]] std::vector<SurfacePicture> All() const;
    void SetIndex(int position, int index);

    [[nodiscard]] QSizeF intrinsicSize(QTextDocument* document, int position,
                                       const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& area, QTextDocument* document, int position,
                    const QTextFormat& format) override;

  private:
    struct Picture {
        QImage image;
        int index = -1;
    };
    [[nodiscard]] std::optional<std::size_t> SerialAt(int position) const;

    QTextDocument& document;
    std::vector<Picture> pictures; // by serial number; never shrinks, since undo can bring any of them back
};

} // namespace ondrilo
