#include "InMemoryUserDefaults.h"
#include "LoopbackHttpServer.h"
#include "StandardUpdaterController.h"
#include "UpdateAvailabilityModel.h"
#include "Updater.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace velto;

namespace {

struct FeedItem {
    QString version;
    QString shortVersion;
    QString minimumSystemVersion;
};

QByteArray appcast(const QList<FeedItem>& items)
{
    QString xml =
        u"<?xml version=\"1.0\"?>\n<rss version=\"2.0\" "
        "xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel><title>Velto</title>"_s;
    for (const FeedItem& item : items) {
        xml += u"<item><title>Velto "_s + item.shortVersion + u"</title><link>https://velto.app/releases/"_s +
               item.version + u"</link><sparkle:version>"_s + item.version + u"</sparkle:version>"_s +
               u"<sparkle:shortVersionString>"_s + item.shortVersion + u"</sparkle:shortVersionString>"_s +
               u"<sparkle:releaseNotesLink>https://velto.app/notes/"_s + item.version +
               u".html</sparkle:releaseNotesLink>"_s;
        if (!item.minimumSystemVersion.isEmpty())
            xml +=
                u"<sparkle:minimumSystemVersion>"_s + item.minimumSystemVersion + u"</sparkle:minimumSystemVersion>"_s;
        xml += u"<enclosure url=\"https://velto.app/dl/velto-"_s + item.version + u".tar.gz\" length=\"10\"/></item>"_s;
    }
    xml += u"</channel></rss>"_s;
    return xml.toUtf8();
}

// Records what the updater reports, in order, alongside the model under test.
class RecordingDelegate final : public UpdaterDelegate {
public:
    explicit RecordingDelegate(UpdateAvailabilityModel* model)
        : m_model(model)
    {}
    void didFindValidUpdate(const AppcastItem& item) override
    {
        found.append(item);
        m_model->didFindValidUpdate(item);
    }
    void didNotFindUpdate(const UpdateError& error) override
    {
        errors.append(error);
        m_model->didNotFindUpdate(error);
    }
    void userDidMakeChoice(UpdateChoice choice, const AppcastItem& item) override
    {
        choices.append(choice);
        m_model->userDidMakeChoice(choice, item);
    }
    [[nodiscard]] int lastReason() const
    {
        return errors.isEmpty()
                   ? -1
                   : errors.last().userInfo.value(UpdaterErrors::noUpdateFoundReasonKey.toString(), -1).toInt();
    }

    QList<AppcastItem> found;
    QList<UpdateError> errors;
    QList<UpdateChoice> choices;

private:
    UpdateAvailabilityModel* m_model;
};

// Stands in for the update window: remembers what it was shown and answers with a scripted choice.
class ScriptedUserDriver final : public UpdateUserDriver {
public:
    void showUpdateFound(const AppcastItem& item, std::function<void(UpdateChoice)> reply) override
    {
        shown.append(u"found "_s + item.displayVersionString());
        pendingReply = std::move(reply);
    }
    void showUpdateNotFound(const UpdateError&) override { shown.append(u"up to date"_s); }
    void showUpdaterError(const UpdateError& error) override { shown.append(u"error %1"_s.arg(error.code)); }

    QStringList shown;
    std::function<void(UpdateChoice)> pendingReply;
};

} // namespace

class TestUpdater : public QObject {
    Q_OBJECT

    struct Rig {
        InMemoryUserDefaults store;
        UpdateAvailabilityModel model;
        RecordingDelegate delegate{&model};
        ScriptedUserDriver* driver = nullptr;
        std::unique_ptr<Updater> updater;
        QDateTime now = QDateTime(QDate(2026, 3, 2), QTime(9, 0), Qt::UTC);
        std::optional<QUrl> opened;

        Rig(const QUrl& feed, const QString& hostVersion, std::chrono::milliseconds timeout = std::chrono::seconds(5))
        {
            UpdaterConfiguration configuration;
            configuration.feedUrl = feed;
            configuration.hostVersion = hostVersion;
            configuration.systemVersion = u"6.1"_s;
            configuration.timeout = timeout;
            configuration.maxFeedBytes = 64 * 1024;
            configuration.fetchProgram = QStringLiteral(VELTO_FETCH_PROGRAM);
            rebuild(configuration);
        }
        // A fresh updater on the same store and model, as after a restart.
        void setFeed(const QUrl& feed, const QString& hostVersion = {})
        {
            UpdaterConfiguration configuration = updater->configuration();
            configuration.feedUrl = feed;
            if (!hostVersion.isEmpty())
                configuration.hostVersion = hostVersion;
            rebuild(configuration);
        }
        void rebuild(const UpdaterConfiguration& configuration)
        {
            updater = std::make_unique<Updater>(configuration, &store, [this] { return now; });
            updater->setDelegate(&delegate);
            auto scripted = std::make_unique<ScriptedUserDriver>();
            driver = scripted.get();
            updater->setUserDriver(std::move(scripted));
            updater->setOnOpenUrl([this](const QUrl& url) { opened = url; });
            model.setUpdater(updater.get());
        }
        bool check(bool userInitiated)
        {
            QSignalSpy finished(updater.get(), &Updater::checkFinished);
            userInitiated ? updater->checkForUpdates() : updater->checkForUpdatesInBackground();
            return finished.wait(5000) && finished.size() == 1;
        }
    };

    LoopbackHttpServer m_server;

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(m_server.listen());
        m_server.route(
            u"/two-newer.xml"_s,
            {200, appcast({{u"1.1"_s, u"1.1"_s, {}}, {u"1.10"_s, u"1.10 Spring"_s, {}}, {u"1.9"_s, u"1.9"_s, {}}})});
        m_server.route(u"/current.xml"_s, {200, appcast({{u"0.9"_s, u"0.9"_s, {}}, {u"1.0"_s, u"1.0"_s, {}}})});
        m_server.route(u"/newer-than-this.xml"_s, {200, appcast({{u"1.0"_s, u"1.0"_s, {}}})});
        m_server.route(u"/malformed.xml"_s, {200, QByteArray("<rss><channel><item><sparkle:version>9.0")});
        m_server.route(u"/hang.xml"_s, {200, {}, true});
        m_server.route(u"/huge.xml"_s, {200, QByteArray(200 * 1024, ' ') + appcast({{u"9.0"_s, u"9.0"_s, {}}})});
        m_server.route(u"/redirect-away.xml"_s, {301, {}, false, QByteArray("http://velto.app/appcast.xml")});
        m_server.route(u"/redirect-home.xml"_s, {302, {}, false, m_server.url(u"/two-newer.xml"_s).toEncoded()});
        m_server.route(u"/needs-newer-system.xml"_s,
                       {200, appcast({{u"1.1"_s, u"1.1"_s, u"6.0"_s}, {u"1.2"_s, u"1.2"_s, u"7.0"_s}})});
        m_server.route(u"/only-for-newer-system.xml"_s, {200, appcast({{u"1.2"_s, u"1.2"_s, u"7.0"_s}})});
    }

    // The newest release wins by numeric comparison, its display version is published, and only a check the
    // user asked for shows a window.
    void findsTheNewestUpdate()
    {
        Rig rig(m_server.url(u"/two-newer.xml"_s), u"1.0"_s);
        QSignalSpy available(&rig.model, &UpdateAvailabilityModel::updateAvailableChanged);
        QVERIFY(rig.check(false));
        QCOMPARE(rig.delegate.found.size(), 1);
        QCOMPARE(rig.delegate.found.at(0).version, u"1.10"_s);
        QCOMPARE(rig.model.availableVersionDisplayString(), u"1.10 Spring"_s);
        QCOMPARE(available.at(0).at(0).toBool(), true);
        QVERIFY(rig.driver->shown.isEmpty());
        QVERIFY(rig.updater->lastOutcomeText().startsWith(u"Velto 1.10 Spring is available; you have 1.0."_s));
        QVERIFY(!rig.updater->lastCheckFailed());

        QVERIFY(rig.check(true));
        QCOMPARE(rig.driver->shown, QStringList{u"found 1.10 Spring"_s});

        // Redirects within the loopback are followed.
        rig.setFeed(m_server.url(u"/redirect-home.xml"_s));
        QVERIFY(rig.check(false));
        QCOMPARE(rig.delegate.found.size(), 3);
        QVERIFY(rig.delegate.errors.isEmpty());

        // A minimum system version above ours keeps a release from being offered; an older release that fits is.
        rig.setFeed(m_server.url(u"/needs-newer-system.xml"_s));
        QVERIFY(rig.check(false));
        QCOMPARE(rig.delegate.found.last().version, u"1.1"_s);
    }

    // Nothing newer clears an earlier found update, with the reason the delegate contract names.
    void reportsNoUpdateWithItsReason()
    {
        const QList<std::tuple<QString, QString, int>> cases{{u"/current.xml"_s, u"1.0"_s, 1},
                                                             {u"/newer-than-this.xml"_s, u"1.0.1"_s, 2}};
        for (const auto& [path, hostVersion, reason] : cases) {
            Rig rig(m_server.url(u"/two-newer.xml"_s), u"0.5"_s);
            QVERIFY(rig.check(false));
            QVERIFY(rig.model.updateAvailable());

            rig.setFeed(m_server.url(path), hostVersion);
            QVERIFY(rig.check(true));
            QCOMPARE(rig.delegate.errors.last().code, int(UpdaterErrors::NoUpdateFound));
            QCOMPARE(rig.delegate.lastReason(), reason);
            QVERIFY(!rig.model.updateAvailable());
            QCOMPARE(rig.updater->lastOutcomeText(), u"Velto %1 is the newest version available."_s.arg(hostVersion));
            QVERIFY(!rig.updater->lastCheckFailed());
        }
    }

    // A check that fails says why, and an update found earlier stays published untouched.
    void failedCheckKeepsAnEarlierUpdate_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("fetchProgram");
        const QString helper = QStringLiteral(VELTO_FETCH_PROGRAM);
        QTest::newRow("malformed XML") << u"/malformed.xml"_s << int(UpdaterErrors::FeedMalformed) << helper;
        QTest::newRow("404") << u"/missing.xml"_s << int(UpdaterErrors::FeedUnreachable) << helper;
        QTest::newRow("time-out") << u"/hang.xml"_s << int(UpdaterErrors::TimedOut) << helper;
        QTest::newRow("oversized body") << u"/huge.xml"_s << int(UpdaterErrors::FeedTooLarge) << helper;
        QTest::newRow("redirect off the machine")
            << u"/redirect-away.xml"_s << int(UpdaterErrors::FeedInsecure) << helper;
        QTest::newRow("only for a newer system")
            << u"/only-for-newer-system.xml"_s << int(UpdaterErrors::NoUpdateFound) << helper;
        QTest::newRow("no download helper")
            << u"/two-newer.xml"_s << int(UpdaterErrors::FeedUnreachable) << u"/nonexistent/velto-fetch"_s;
    }
    void failedCheckKeepsAnEarlierUpdate()
    {
        QFETCH(QString, path);
        QFETCH(int, code);
        QFETCH(QString, fetchProgram);
        // Room for the helper to start in a slow (sanitizer) build; a hung server still fails well before five.
        Rig rig(m_server.url(u"/two-newer.xml"_s), u"1.0"_s, std::chrono::milliseconds(1500));
        QVERIFY(rig.check(false));
        QCOMPARE(rig.model.availableVersionDisplayString(), u"1.10 Spring"_s);

        UpdaterConfiguration configuration = rig.updater->configuration();
        configuration.feedUrl = m_server.url(path);
        configuration.fetchProgram = fetchProgram;
        rig.rebuild(configuration);
        QSignalSpy willChange(&rig.model, &UpdateAvailabilityModel::objectWillChange);
        QElapsedTimer elapsed;
        elapsed.start();
        QVERIFY(rig.check(true));
        QVERIFY(elapsed.elapsed() < 3000);
        QCOMPARE(rig.delegate.errors.last().code, code);
        QCOMPARE(rig.model.availableVersionDisplayString(), u"1.10 Spring"_s);
        QCOMPARE(willChange.size(), 0);
        QCOMPARE(rig.updater->lastCheckFailed(), code != int(UpdaterErrors::NoUpdateFound));
        QVERIFY(!rig.updater->lastOutcomeText().isEmpty());

        QCOMPARE(rig.driver->shown.size(), 1);
    }

    // Only https, or plain http to this machine; an insecure feed is never fetched; the address set at build time must
    // be one the updater will fetch.
    void insecureFeedIsNeverFetchedAndTheShippedOneIs()
    {
        const QList<std::pair<QString, bool>> urls{
            {u"https://velto.app/appcast.xml"_s, true},   {u"http://127.0.0.1:8080/a.xml"_s, true},
            {u"http://[::1]:8080/a.xml"_s, true},         {u"http://velto.app/appcast.xml"_s, false},
            {u"http://192.168.1.2/appcast.xml"_s, false}, {u"ftp://velto.app/appcast.xml"_s, false},
            {u"http://127.9.9.9/a.xml"_s, true},          {u"http://[::ffff:127.0.0.1]/a.xml"_s, true},
            {u"http://localhost/a.xml"_s, true},          {u"http://[::2]/a.xml"_s, false}};
        for (const auto& [url, allowed] : urls)
            QVERIFY2(Updater::isAllowedFeedUrl(QUrl(url)) == allowed, qPrintable(url));
        const UpdaterConfiguration shipped = defaultUpdaterConfiguration(u"1.0"_s);
        QVERIFY2(Updater::isAllowedFeedUrl(shipped.feedUrl), qPrintable(shipped.feedUrl.toString()));

        Rig rig(QUrl(u"http://velto.invalid/appcast.xml"_s), u"1.0"_s);
        QVERIFY(!rig.updater->start());
        QVERIFY(rig.check(false));
        QCOMPARE(rig.delegate.errors.size(), 1);
        QCOMPARE(rig.delegate.errors.at(0).code, int(UpdaterErrors::FeedInsecure));
    }

    // Skipping clears the model and is remembered: the same version is not offered again, a later one is.
    void skipIsRememberedAndNotOfferedAgain()
    {
        Rig rig(m_server.url(u"/two-newer.xml"_s), u"1.0"_s);
        QVERIFY(rig.check(true));
        rig.driver->pendingReply(UpdateChoice::Skip);
        QCOMPARE(rig.delegate.choices, QList<UpdateChoice>{UpdateChoice::Skip});
        QVERIFY(!rig.model.updateAvailable());
        QVERIFY(rig.model.availableVersionDisplayString().isNull());
        QCOMPARE(rig.store.values.value(Updater::skippedVersionKey.toString()).toString(), u"1.10"_s);

        // A fresh updater on the same store, as after a restart.
        rig.setFeed(m_server.url(u"/two-newer.xml"_s));
        QVERIFY(rig.check(true));
        QVERIFY(rig.check(false));
        QCOMPARE(rig.delegate.found.size(), 1);
        QVERIFY(!rig.model.updateAvailable());
        QCOMPARE(rig.driver->shown, QStringList{u"up to date"_s}); // the background check shows nothing

        m_server.route(u"/after-skip.xml"_s, {200, appcast({{u"1.10"_s, u"1.10"_s, {}}, {u"1.11"_s, u"1.11"_s, {}}})});
        rig.setFeed(m_server.url(u"/after-skip.xml"_s));
        QVERIFY(rig.check(false));
        QCOMPARE(rig.model.availableVersionDisplayString(), u"1.11"_s);
    }

    // Dismissing or downloading leaves the published state as it was; downloading opens the release page.
    void otherChoicesKeepTheState()
    {
        const QList<std::pair<UpdateChoice, QUrl>> cases{
            {UpdateChoice::Dismiss, QUrl()}, {UpdateChoice::Install, QUrl(u"https://velto.app/releases/1.10"_s)}};
        for (const auto& [choice, opened] : cases) {
            Rig rig(m_server.url(u"/two-newer.xml"_s), u"1.0"_s);
            QVERIFY(rig.check(true));
            QSignalSpy willChange(&rig.model, &UpdateAvailabilityModel::objectWillChange);
            rig.driver->pendingReply(choice);
            QCOMPARE(rig.delegate.choices, QList<UpdateChoice>{choice});
            QCOMPARE(willChange.size(), 0);
            QCOMPARE(rig.opened.value_or(QUrl()), opened);
            QVERIFY(!rig.store.values.contains(Updater::skippedVersionKey.toString()));
        }
    }

    // Two requests during one check make one request and one answer; the user's request gets its window.
    void requestsDuringACheckJoinIt()
    {
        Rig rig(m_server.url(u"/two-newer.xml"_s), u"1.0"_s);
        const int before = m_server.requestCount;
        QSignalSpy finished(rig.updater.get(), &Updater::checkFinished);
        rig.updater->checkForUpdatesInBackground();
        rig.updater->checkForUpdates();
        QVERIFY(finished.wait(5000));
        QTest::qWait(50);
        QCOMPARE(m_server.requestCount - before, 1);
        QCOMPARE(rig.driver->shown, QStringList{u"found 1.10 Spring"_s});
    }

    // Once a day, the first a few minutes after launch, counted from the remembered last check.
    void schedulesFromTheLastCheck()
    {
        // Seconds since the last check (-1: never checked, negative: clock set back) -> seconds to the next.
        const QList<std::pair<qint64, qint64>> cases{{-1, 180}, {3600, 23 * 3600}, {3 * 86400, 180}, {-86400, 180}};
        for (const auto& [ago, next] : cases) {
            Rig rig(m_server.url(u"/two-newer.xml"_s), u"1.0"_s);
            if (ago != -1)
                rig.store.values.insert(Updater::lastCheckKey.toString(),
                                        rig.now.addSecs(-ago).toString(Qt::ISODateWithMs));
            QVERIFY(rig.updater->start());
            QCOMPARE(rig.updater->nextScheduledCheckDate(), rig.now.addSecs(next));
        }
    }

    void aCheckIsRememberedAndMovesTheSchedule()
    {
        Rig rig(m_server.url(u"/hang.xml"_s), u"1.0"_s, std::chrono::milliseconds(100));
        QVERIFY(rig.updater->start());
        rig.now = rig.now.addSecs(7200);
        QVERIFY(rig.check(false)); // a failure counts as a check too
        QCOMPARE(rig.updater->lastUpdateCheckDate(), rig.now);
        QCOMPARE(rig.updater->nextScheduledCheckDate(), rig.now.addDays(1));
    }

    // The model changes only on the definite answers of the delegate contract.
    void modelFollowsTheDelegateContract_data()
    {
        QTest::addColumn<QString>("domain");
        QTest::addColumn<int>("code");
        QTest::addColumn<QVariant>("reason");
        QTest::addColumn<bool>("clears");
        const QString ours = UpdaterErrors::domain.toString();
        QTest::newRow("latest") << ours << 1001 << QVariant(1) << true;
        QTest::newRow("unknown reason") << ours << 1001 << QVariant(0) << false;
        QTest::newRow("system too old") << ours << 1001 << QVariant(3) << false;
        QTest::newRow("other domain") << u"NSURLErrorDomain"_s << 1001 << QVariant(1) << false;
    }
    void modelFollowsTheDelegateContract()
    {
        QFETCH(QString, domain);
        QFETCH(int, code);
        QFETCH(QVariant, reason);
        QFETCH(bool, clears);
        UpdateAvailabilityModel model;
        AppcastItem item;
        item.version = u"140"_s;
        item.shortVersionString = u"1.4"_s;
        model.didFindValidUpdate(item);

        // Observers hear objectWillChange() while the old value is still in place.
        QList<bool> seenAtWillChange;
        connect(&model, &UpdateAvailabilityModel::objectWillChange, &model,
                [&] { seenAtWillChange.append(model.updateAvailable()); });
        model.didNotFindUpdate({domain, code, {{UpdaterErrors::noUpdateFoundReasonKey.toString(), reason}}, {}});
        QCOMPARE(model.updateAvailable(), !clears);
        QCOMPARE(model.availableVersionDisplayString(), clears ? QString() : u"1.4"_s);
        if (clears)
            QCOMPARE(seenAtWillChange, (QList<bool>{true, false}));
        else
            QVERIFY(seenAtWillChange.isEmpty());
    }

    // Every assignment is announced, also when the value stays the same.
    void repeatedFindIsAnnouncedEachTime()
    {
        UpdateAvailabilityModel model;
        QSignalSpy willChange(&model, &UpdateAvailabilityModel::objectWillChange);
        QSignalSpy text(&model, &UpdateAvailabilityModel::availableVersionDisplayStringChanged);
        AppcastItem item;
        item.version = u"1.4"_s;
        model.didFindValidUpdate(item);
        model.didFindValidUpdate(item);
        QCOMPARE(willChange.size(), 4);
        QCOMPARE(text.size(), 2);
        QCOMPARE(text.at(1).at(0).toString(), u"1.4"_s);
    }

    // The controller starts its updater at once, with the model as delegate and a weak reference in the model.
    void controllerWiresTheModel()
    {
        InMemoryUserDefaults store;
        UpdateAvailabilityModel model;
        const QDateTime now(QDate(2026, 3, 2), QTime(9, 0), Qt::UTC);
        UpdaterConfiguration configuration;
        configuration.feedUrl = m_server.url(u"/two-newer.xml"_s);
        configuration.hostVersion = u"1.0"_s;
        configuration.fetchProgram = QStringLiteral(VELTO_FETCH_PROGRAM);
        {
            StandardUpdaterController controller(configuration, &store, &model, {}, [now] { return now; });
            QCOMPARE(model.updater(), controller.updater());
            QCOMPARE(controller.updater()->delegate(), &model);
            QCOMPARE(controller.updater()->nextScheduledCheckDate(), now.addSecs(180));
            QSignalSpy finished(controller.updater(), &Updater::checkFinished);
            model.checkForUpdatesInBackground();
            QVERIFY(finished.wait(5000));
            QCOMPARE(model.availableVersionDisplayString(), u"1.10 Spring"_s);
        }
        QVERIFY(!model.updater());
        model.checkForUpdates(); // the updater is gone: nothing happens
        QVERIFY(model.updateAvailable());
    }
};

QTEST_GUILESS_MAIN(TestUpdater)
#include "tst_updater.moc"
