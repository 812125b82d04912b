#pragma once

#include "keyboards/COnScreenKey.h"
#include "keyboards/KeySymbol.h"
#include "keyboards/KeyboardSettings.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>

#include <optional>

namespace ondrilo {

/// What a key looks like at one moment: all that painting needs, and no way back to the keyboard. Lengths are
/// logical pixels.
struct KeyFace {
    enum class Content {
        None,
        Symbol,
        CentredLine, ///< `text` on one line in the key's middle
        LeftLine,    ///< `text` on one line from the left margin
        Wrapped,     ///< `text` broken at words, from the top left
        Picture,     ///< `picture`, under the caption `text` if there is one
    };

    QColor fill;
    std::optional<QColor> gradientEnd;
    int gradientAngle = 0;
    QColor ink;  ///< of the text
    QColor mark; ///< of symbols, link mark, page mark and press dot

    Content content = Content::None;
    KeySymbol symbol{};
    QString text;
    QImage picture;

    QFont font;
    double captionPoints = 6; ///< largest size of a caption
    int keyMargin = 10;
    int imageMargin = 10;

    bool isLink = false;
    int pageMarkWidth = 0; ///< 0: no page mark

    bool operator==(const KeyFace&) const = default;
};

/// The face of a key as it is now. `picture` is the joined picture of its label, null if it has none;
/// `editing` makes prediction keys show what they are.
[[nodiscard]] KeyFace MakeKeyFace(const COnScreenKey& key, const KeyboardSettings& settings, bool editing,
                                  const QImage& picture);

} // namespace ondrilo
