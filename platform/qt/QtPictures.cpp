#include "platform/qt/QtPictures.h"

namespace ondrilo {
namespace {

constexpr qsizetype kCacheKilobytes = qsizetype{64} * 1024;

qsizetype KilobytesOf(const QImage& picture) {
    return picture.sizeInBytes() / 1024 + 1;
}

} // namespace

QtPictures::QtPictures(DataFolder folder) : folder(std::move(folder)), cache(kCacheKilobytes) {
}

std::optional<Size> QtPictures::SizeOf(TextView pictogram) const {
    const QImage picture = Load(pictogram);
    if (picture.isNull())
        return std::nullopt;
    return Size{picture.width(), picture.height()};
}

QImage QtPictures::Load(TextView pictogram) const {
    const QByteArray key(pictogram.data(), static_cast<qsizetype>(pictogram.size()));
    if (const auto* known = cache.object(key))
        return *known;
    QImage picture(QString::fromStdString(folder.Find(pictogram).string()));
    cache.insert(key, new QImage(picture), KilobytesOf(picture));
    return picture;
}

void QtPictures::Clear() {
    cache.clear();
}

} // namespace ondrilo
