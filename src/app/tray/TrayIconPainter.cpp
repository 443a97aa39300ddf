#include "TrayIconPainter.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace velto {

namespace {

const QColor badgeColor(0x0f, 0x76, 0x6e);
// White at 35 % over the badge, mixed here: the track lies wholly on the badge, and Qt strokes a translucent
// pen through its helper threads, which would wake three threads at every redraw.
const QColor trackColor(0x0f + (255 - 0x0f) * 90 / 255, 0x76 + (255 - 0x76) * 90 / 255, 0x6e + (255 - 0x6e) * 90 / 255);

void paintMark(QPainter& painter, const QRectF& box)
{
    // A "V" whose right arm rises past the ring: a nod to a pause that lifts.
    const double s = box.width();
    QPainterPath mark;
    mark.moveTo(box.left() + s * 0.27, box.top() + s * 0.33);
    mark.lineTo(box.left() + s * 0.47, box.top() + s * 0.70);
    mark.lineTo(box.left() + s * 0.74, box.top() + s * 0.26);
    QPen pen(Qt::white, std::max(1.5, s * 0.11), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(mark);
}

} // namespace

QImage TrayIconPainter::paint(const TrayIconFace& face, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);

    const QRectF box(0.5, 0.5, size - 1.0, size - 1.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(badgeColor);
    painter.drawEllipse(box);

    if (!face.showsTimer) {
        paintMark(painter, box);
        return image;
    }

    const double ringWidth = std::max(1.5, size * 0.1);
    const QRectF ring = box.adjusted(ringWidth, ringWidth, -ringWidth, -ringWidth);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(trackColor, ringWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawEllipse(ring);
    if (face.ringSteps > 0) {
        // Qt counts sixteenths of a degree, anticlockwise from three o'clock; the ring runs clockwise from noon.
        const int span = -face.ringSteps * 360 * 16 / TrayIconFace::ringResolution;
        painter.setPen(QPen(Qt::white, ringWidth, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(ring, 90 * 16, span);
    }

    QFont font;
    font.setBold(true);
    font.setPixelSize(face.label.size() > 2 ? int(size * 0.34) : int(size * 0.44));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(box, Qt::AlignCenter, face.label);
    return image;
}

QIcon TrayIconPainter::icon(const TrayIconFace& face)
{
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48})
        icon.addPixmap(QPixmap::fromImage(paint(face, size)));
    return icon;
}

} // namespace velto
