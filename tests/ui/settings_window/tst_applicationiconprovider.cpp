#include "ApplicationIconProvider.h"
#include "FakeApplicationInfo.h"
#include "SettingsPaneModel.h"

#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace velto;

namespace {

QString idOf(const QUrl& source)
{
    // What the QML engine hands the provider: the part after image://veltoappicon/.
    return source.toString(QUrl::FullyEncoded).mid(QStringLiteral("image://veltoappicon/").size());
}

} // namespace

class ApplicationIconProviderTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void iconFilesAreScaledToTheRequestedSize()
    {
        QTemporaryDir dir;
        QImage red(64, 64, QImage::Format_ARGB32);
        red.fill(Qt::red);
        const QString path = dir.filePath(u"red.png"_s);
        QVERIFY(red.save(path));
        FakeApplicationInfo applications;
        applications.known.insert(u"org.example.Red App"_s, {u"Red"_s, path, true});
        ApplicationIconProvider provider(&applications);

        QSize size;
        const QImage image =
            provider.requestImage(idOf(SettingsPaneModel::iconSource(u"org.example.Red App"_s)), &size, QSize(24, 24));
        QCOMPARE(applications.queries.load(), 1);
        QCOMPARE(image.size(), QSize(24, 24));
        QCOMPARE(size, QSize(24, 24));
        QCOMPARE(image.pixelColor(12, 12), QColor(Qt::red));
    }

    void unknownApplicationsAndMissingIconsStillGiveAnImage()
    {
        FakeApplicationInfo applications;
        applications.known.insert(u"no.icon"_s, {u"No Icon"_s, u"/nonexistent/icon.png"_s, true});
        ApplicationIconProvider provider(&applications);
        for (const QString& id : {u"not.installed"_s, u"no.icon"_s}) {
            QSize size;
            const QImage image = provider.requestImage(id, &size, QSize(28, 28));
            QVERIFY2(!image.isNull(), qPrintable(id));
            QCOMPARE(size, image.size());
            QVERIFY(image.width() <= 28 && image.height() <= 28);
            // Not blank: the generic icon or the plain tile has colour in its middle.
            QVERIFY2(image.pixelColor(image.width() / 2, image.height() / 2).alpha() > 0, qPrintable(id));
        }
        ApplicationIconProvider withoutProvider(nullptr);
        QVERIFY(!withoutProvider.requestImage(u"anything"_s, nullptr, QSize()).isNull());
    }

    void ownIconIsTheApplicationWindowIcon()
    {
        QGuiApplication::setWindowIcon(QIcon());
        QCOMPARE(SettingsPaneModel::appIconSource(), QUrl());
        QPixmap blue(32, 32);
        blue.fill(Qt::blue);
        QGuiApplication::setWindowIcon(QIcon(blue));
        const QUrl source = SettingsPaneModel::appIconSource();
        QVERIFY(source.toString().startsWith(u"image://veltoappicon/"_s));

        FakeApplicationInfo applications;
        ApplicationIconProvider provider(&applications);
        const QImage image = provider.requestImage(idOf(source), nullptr, QSize(16, 16));
        QCOMPARE(image.pixelColor(8, 8), QColor(Qt::blue));
        QCOMPARE(applications.queries.load(), 0);
    }
};

QTEST_MAIN(ApplicationIconProviderTest)
#include "tst_applicationiconprovider.moc"
