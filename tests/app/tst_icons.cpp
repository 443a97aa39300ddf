#include <QImage>
#include <QImageReader>
#include <QTest>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

QImage render(const QString& file, int size)
{
    QImageReader reader(QStringLiteral(VELTO_ICON_DIR "/") + file);
    reader.setScaledSize({size, size});
    return reader.read().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

// The application icon and the tray's monochrome icon, drawn at the sizes desktops and trays ask for.
class TestIcons : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void trayIconIsOneColourAndReadableAtTraySizes_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {16, 22, 48})
            QTest::addRow("%d px", size) << size;
    }
    void trayIconIsOneColourAndReadableAtTraySizes()
    {
        QFETCH(int, size);
        const QImage image = render(u"velto-symbolic.svg"_s, size);
        QVERIFY(!image.isNull());
        QCOMPARE(image.size(), QSize(size, size));

        // A panel recolours a symbolic icon through its alpha alone, so every visible pixel has one colour (up to
        // the rounding that edge pixels get from premultiplied drawing).
        QColor reference = Qt::transparent;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                if (image.pixelColor(x, y).alpha() > reference.alpha())
                    reference = image.pixelColor(x, y);
            }
        }
        QCOMPARE(reference.alpha(), 255);
        int opaque = 0;
        int clear = 0;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const QColor pixel = image.pixelColor(x, y);
                if (pixel.alpha() == 0)
                    ++clear;
                if (pixel.alpha() < 128)
                    continue;
                ++opaque;
                const int tolerance = 2 + 255 / pixel.alpha();
                QVERIFY2(std::abs(pixel.red() - reference.red()) <= tolerance &&
                             std::abs(pixel.green() - reference.green()) <= tolerance &&
                             std::abs(pixel.blue() - reference.blue()) <= tolerance,
                         qPrintable(u"%1 at %2,%3"_s.arg(pixel.name()).arg(x).arg(y)));
            }
        }
        // Solid strokes, with room around them.
        QVERIFY2(opaque >= size * 2, qPrintable(QString::number(opaque)));
        QVERIFY(clear > size * size / 3);
    }

    void applicationIconFillsItsSquareAtEverySize_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {16, 256})
            QTest::addRow("%d px", size) << size;
    }
    void applicationIconFillsItsSquareAtEverySize()
    {
        QFETCH(int, size);
        const QImage image = render(u"com.velto.app.svg"_s, size);
        QVERIFY(!image.isNull());
        QCOMPARE(image.size(), QSize(size, size));
        // The tile is opaque in the middle and leaves the corners clear, as the theme's other icons do.
        QCOMPARE(qAlpha(image.pixel(size / 2, size / 2 + size / 8)), 255);
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(image.pixel(size - 1, size - 1)), 0);
        // The white mark stands out from the tile.
        bool hasWhite = false;
        bool hasTile = false;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const QColor pixel = image.pixelColor(x, y);
                hasWhite |= pixel.alpha() == 255 && pixel.lightness() > 240;
                hasTile |= pixel.alpha() == 255 && pixel.lightness() < 150;
            }
        }
        QVERIFY(hasWhite && hasTile);
    }
};

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
