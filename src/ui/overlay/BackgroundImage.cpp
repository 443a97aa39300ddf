#include "BackgroundImage.h"

#include <QImageReader>

namespace velto {

QImage loadBackgroundImage(const QString& path, int allocationLimitMb)
{
    if (path.isEmpty())
        return {};
    // The limit is process-wide in Qt; it is put back so other image loading keeps its own.
    const int previousLimit = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(allocationLimitMb);
    QImageReader reader(path);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    QImageReader::setAllocationLimit(previousLimit);
    if (image.isNull())
        return {};
    // A fill image does not need more pixels than the largest common screens have; smaller stays cheap to draw.
    constexpr int maximumSide = 3840;
    if (image.width() > maximumSide || image.height() > maximumSide)
        image = image.scaled(maximumSide, maximumSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return image;
}

} // namespace velto
