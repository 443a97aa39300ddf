#include "Appcast.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using velto::compareVersions;
using velto::parseAppcast;

class TestAppcast : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void versionsCompareBySegments_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<int>("order");
        QTest::newRow("two-digit minor") << u"1.10"_s << u"1.9"_s << 1;
        QTest::newRow("release over beta") << u"2.0"_s << u"2.0b1"_s << 1;
        QTest::newRow("rc over beta") << u"2.0rc1"_s << u"2.0b9"_s << 1;
        QTest::newRow("patch over next beta") << u"1.0.1"_s << u"1.0b1"_s << 1;
        QTest::newRow("dash pre-release") << u"1.2.0"_s << u"1.2.0-rc.1"_s << 1;
        QTest::newRow("trailing zero") << u"2.0"_s << u"2.0.0"_s << 0;
    }
    void versionsCompareBySegments()
    {
        QFETCH(QString, left);
        QFETCH(QString, right);
        QFETCH(int, order);
        QCOMPARE(compareVersions(left, right), order);
        QCOMPARE(compareVersions(right, left), -order);
        QCOMPARE(compareVersions(left, left), 0);
    }

    void readsEveryFieldOfAnItem()
    {
        const QByteArray feed =
            "<?xml version=\"1.0\" encoding=\"utf-8\"?>"
            "<rss version=\"2.0\" xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">"
            "<channel>"
            "<title>Velto</title>"
            "<item>"
            "<title>Version 1.2</title>"
            "<link>https://velto.app/releases/1.2</link>"
            "<sparkle:version>120</sparkle:version>"
            "<sparkle:shortVersionString>1.2</sparkle:shortVersionString>"
            "<sparkle:releaseNotesLink>https://velto.app/notes/1.2.html</sparkle:releaseNotesLink>"
            "<sparkle:minimumSystemVersion>5.10</sparkle:minimumSystemVersion>"
            "<enclosure url=\"https://velto.app/dl/velto-1.2.tar.gz\" length=\"1234\" "
            "type=\"application/octet-stream\"/>"
            "</item>"
            "<item>"
            "<title>Version 1.1</title>"
            "<enclosure url=\"https://velto.app/dl/velto-1.1.tar.gz\" sparkle:version=\"110\" "
            "sparkle:shortVersionString=\"1.1\"/>"
            "</item>"
            "<item><title>No version, left out</title></item>"
            "</channel>"
            "</rss>";
        const auto items = parseAppcast(feed);
        QVERIFY(items);
        QCOMPARE(items->size(), 2);
        const velto::AppcastItem& first = items->at(0);
        QCOMPARE(first.version, u"120"_s);
        QCOMPARE(first.displayVersionString(), u"1.2"_s);
        QCOMPARE(first.releaseNotesUrl, QUrl(u"https://velto.app/notes/1.2.html"_s));
        QCOMPARE(first.minimumSystemVersion, u"5.10"_s);
        QCOMPARE(first.downloadPageUrl(), QUrl(u"https://velto.app/releases/1.2"_s));
        // Versions on the enclosure, and no release page: the file is the download.
        const velto::AppcastItem& second = items->at(1);
        QCOMPARE(second.version, u"110"_s);
        QVERIFY(second.releaseNotesUrl.isEmpty());
        QCOMPARE(second.downloadPageUrl(), QUrl(u"https://velto.app/dl/velto-1.1.tar.gz"_s));
    }

    // The least a feed can be: no items at all, or an item with nothing but its version.
    void minimalFeeds()
    {
        auto items = parseAppcast("<rss version=\"2.0\"><channel><title>Velto</title></channel></rss>");
        QVERIFY(items);
        QVERIFY(items->isEmpty());
        items = parseAppcast("<rss><channel><item><sparkle:version xmlns:sparkle=\"x\">1.4</sparkle:version>"
                             "</item></channel></rss>");
        QVERIFY(items);
        QCOMPARE(items->size(), 1);
        QCOMPARE(items->at(0).displayVersionString(), u"1.4"_s);
    }

    void rejectsWhatIsNotAnAppcast_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("unclosed") << QByteArray("<rss><channel><item><title>1.2</title></channel>");
        QTest::newRow("html error page") << QByteArray("<html><body>Service unavailable</body></html>");
        QTest::newRow("junk after the feed") << QByteArray("<rss><channel/></rss><rss>");
    }
    void rejectsWhatIsNotAnAppcast()
    {
        QFETCH(QByteArray, data);
        QVERIFY(!parseAppcast(data));
    }
};

QTEST_GUILESS_MAIN(TestAppcast)
#include "tst_appcast.moc"
