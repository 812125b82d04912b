#include "platform/qt/QtConversion.h"

namespace ondrilo {

QString ToQString(TextView text) {
    QString converted;
    converted.reserve(static_cast<qsizetype>(text.size()));
    for (const char c : text)
        converted += QChar(static_cast<char16_t>(CodePointOf(c)));
    return converted;
}

Text FromQString(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    return FromUtf8({utf8.constData(), static_cast<std::size_t>(utf8.size())});
}

QFont ToQFont(const Font& font) {
    QFont converted(ToQString(font.name));
    converted.setStyleHint(QFont::SansSerif);
    // Qt refuses sizes below one point with a warning.
    converted.setPointSize(std::max(font.size, 1));
    return converted;
}

QColor ToQColor(Color color) {
    return {color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF};
}

} // namespace ondrilo
