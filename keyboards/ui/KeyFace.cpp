#include "keyboards/ui/KeyFace.h"

#include "keyboards/KeyOutputs.h"
#include "keyboards/Pictograms.h"
#include "platform/qt/QtConversion.h"

namespace ondrilo {
namespace {

constexpr int kEditingPoints = 8;

void SetColors(KeyFace& face, const COnScreenKey& key, const KeyboardSettings& settings) {
    if (key.IsLit()) {
        face.fill = ToQColor(key.LitBackground());
        face.ink = ToQColor(key.LitText());
        face.mark = ToQColor(key.data.backgroundColor);
        return;
    }
    face.fill = ToQColor(IsPrediction(key.Type()) ? settings.predictionBackground : key.data.backgroundColor);
    face.ink = ToQColor(key.data.textColor);
    face.mark = ToQColor(key.LitBackground());
    if (settings.fillType != 0) {
        face.gradientEnd = ToQColor(settings.gradientColor);
        face.gradientAngle = settings.gradientAngle;
    }
}

void SetText(KeyFace& face, TextView text, KeyFace::Content content) {
    if (text.empty())
        return;
    face.text = ToQString(text);
    face.content = content;
}

void SetNormalContent(KeyFace& face, const COnScreenKeyData& data) {
    if (const auto symbol = SymbolOf(data.output); symbol && data.label == kSymbolLabel) {
        face.symbol = *symbol;
        face.content = KeyFace::Content::Symbol;
        return;
    }
    SetText(face, data.label,
            IsWrappedLabel(data.label) ? KeyFace::Content::Wrapped : KeyFace::Content::CentredLine);
}

void SetPicture(KeyFace& face, const COnScreenKeyData& data, const QImage& picture) {
    if (picture.isNull() || !HasPictograms(data.label))
        return;
    face.picture = picture;
    face.text = ToQString(data.imageText);
    face.content = KeyFace::Content::Picture;
}

void SetTypeName(KeyFace& face, KeyType type) {
    for (const auto& row : kKeyTypes)
        if (row.type == type)
            SetText(face, "[" + Text(row.shown) + "]", KeyFace::Content::Wrapped);
    face.font.setPointSize(kEditingPoints);
}

void SetContent(KeyFace& face, const COnScreenKey& key, bool editing, const QImage& picture) {
    if (editing && IsPrediction(key.Type()))
        return SetTypeName(face, key.Type());
    switch (key.Type()) {
    case KeyType::Normal:
        return SetNormalContent(face, key.data);
    case KeyType::WordPrediction:
        return SetText(face, key.data.label, KeyFace::Content::LeftLine);
    case KeyType::SentencePrediction:
        return SetText(face, key.data.label, KeyFace::Content::Wrapped);
    case KeyType::Image:
    case KeyType::ImagePrediction:
    case KeyType::ImageSentencePrediction:
        return SetPicture(face, key.data, picture);
    case KeyType::Empty:
    case KeyType::Other:
        return;
    }
}

} // namespace

KeyFace MakeKeyFace(const COnScreenKey& key, const KeyboardSettings& settings, bool editing,
                    const QImage& picture) {
    KeyFace face;
    SetColors(face, key, settings);
    face.font = ToQFont(settings.font);
    face.captionPoints = settings.imageHeight / 8;
    face.keyMargin = settings.keyMargin;
    face.imageMargin = settings.imageMargin;
    if (key.IsActive())
        SetContent(face, key, editing, picture);
    face.isLink = HasLinkMark(key.data.output);
    if (key.lastPageMark)
        face.pageMarkWidth = settings.font.size / 4;
    return face;
}

} // namespace ondrilo
