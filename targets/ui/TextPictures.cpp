#include "targets/ui/TextPictures.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>

namespace ondrilo {
namespace {

constexpr int kPictureObject = QTextFormat::UserObject + 1;
constexpr int kSerialNumber = QTextFormat::UserProperty + 1;

} // namespace

TextPictures::TextPictures(QTextDocument& document) : document(document) {
    document.documentLayout()->registerHandler(kPictureObject, this);
}

void TextPictures::Insert(QTextCursor& cursor, const QImage& picture) {
    QTextCharFormat format;
    format.setObjectType(kPictureObject);
    format.setProperty(kSerialNumber, static_cast<int>(pictures.size()));
    pictures.push_back({picture});
    cursor.insertText(QString(QChar(kPlace)), format);
}

std::vector<SurfacePicture> TextPictures::All() const {
    std::vector<SurfacePicture> all;
    const auto text = document.toRawText();
    for (int i = 0; i < text.size(); ++i)
        if (const auto serial = text[i] == QChar(kPlace) ? SerialAt(i) : std::nullopt)
            all.push_back({i, pictures[*serial].index});
    return all;
}

void TextPictures::SetIndex(int position, int index) {
    if (const auto serial = SerialAt(position))
        pictures[*serial].index = index;
}

std::optional<std::size_t> TextPictures::SerialAt(int position) const {
    if (position < 0 || document.characterAt(position) != QChar(kPlace))
        return std::nullopt;
    QTextCursor cursor(&document);
    cursor.setPosition(position + 1); // a cursor tells the format of the character before it
    const auto format = cursor.charFormat();
    // Text written after a picture inherits the number, but not the type.
    if (format.objectType() != kPictureObject)
        return std::nullopt;
    return static_cast<std::size_t>(format.intProperty(kSerialNumber));
}

QSizeF TextPictures::intrinsicSize(QTextDocument*, int, const QTextFormat& format) {
    return pictures[static_cast<std::size_t>(format.intProperty(kSerialNumber))].image.size();
}

void TextPictures::drawObject(QPainter* painter, const QRectF& area, QTextDocument*, int,
                              const QTextFormat& format) {
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(area, pictures[static_cast<std::size_t>(format.intProperty(kSerialNumber))].image);
}

} // namespace ondrilo
