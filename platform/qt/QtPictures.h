#pragma once

#include "platform/DataFolder.h"
#include "platform/Measure.h"

#include <QCache>
#include <QImage>

namespace ondrilo {

/// The pictograms of a data folder, kept in memory while there is room.
class QtPictures : public PictureMeasure {
  public:
    explicit QtPictures(DataFolder folder);
    [[nodiscard]] std::optional<Size> SizeOf(TextView pictogram) const override;
    /// The picture; null if it does not load. `pictogram` as keyboard files name it.
    [[nodiscard]] QImage Load(TextView pictogram) const;
    /// Forgets everything, so that files that changed are read again.
    void Clear();

  private:
    DataFolder folder;
    mutable QCache<QByteArray, QImage> cache;
};

} // namespace ondrilo
