#include "BackgroundImage.h"

#include <QImageReader>

namespace velto {

QImage loadBackgroundImage(const QString& path, int allocationLimitMb)
{
    if (path.isEmpty())
        return {};
    QImageReader reader(path);
    reader.setAllocationLimit(allocationLimitMb);
    reader.setAutoTransform(true);
    QImage image = reader.read();
    if (image.isNull())
        return {};
    // A fill image does not need more pixels than the largest common screens have; smaller stays cheap to draw.
    constexpr int maximumSide = 3840;
    if (image.width() > maximumSide || image.height() > maximumSide)
        image = image.scaled(maximumSide, maximumSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return image;
}

} // namespace velto
