#include "keyboards/ui/KeyPicture.h"

#include "keyboards/Pictograms.h"

#include <QPainter>

namespace ondrilo {

QImage LoadKeyPicture(TextView label, const QtPictures& source) {
    std::vector<QImage> pictures;
    std::vector<Size> sizes;
    for (const auto& name : PictogramsOf(label)) {
        auto picture = source.Load(name);
        if (picture.isNull())
            continue;
        sizes.push_back({picture.width(), picture.height()});
        pictures.push_back(std::move(picture));
    }
    const auto joined = JoinPictures(sizes);
    if (!joined.IsLoaded())
        return {};

    QImage whole(joined.size.width, joined.size.height, QImage::Format_RGB32);
    whole.fill(Qt::white);
    QPainter painter(&whole);
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const auto& place = joined.places[i];
        painter.drawImage(
            place.x, place.y,
            pictures[i].scaled(place.width, place.height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return whole;
}

} // namespace ondrilo
