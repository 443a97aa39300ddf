#include "AddFocusAppModel.h"
#include "FakeApplicationInfo.h"
#include "FakeDetectionProviders.h"
#include "InMemoryUserDefaults.h"
#include "settings/SettingsManager.h"

#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

using namespace Qt::StringLiterals;
using namespace velto;

namespace {

AppSnapshot snapshot(const QString& identifier, qint32 pid)
{
    AppSnapshot app;
    if (!identifier.isEmpty())
        app.bundleIdentifier = identifier;
    app.processIdentifier = pid;
    return app;
}

QStringList identifiers(const QList<RunningApplication>& applications)
{
    QStringList result;
    for (const RunningApplication& application : applications)
        result.append(application.bundleIdentifier);
    return result;
}

} // namespace

class AddFocusAppModelTest final : public QObject {
    Q_OBJECT

private:
    struct Fixture {
        Fixture()
        {
            applications.known = {
                {u"org.gnome.TextEditor"_s, {u"Text Editor"_s, u"text-editor"_s, true}},
                {u"firefox"_s, {u"Firefox"_s, u"firefox"_s, true}},
                {u"code"_s, {u"code"_s, QString(), true}},
                {u"org.freedesktop.portal"_s, {u"Portal"_s, QString(), false}},
            };
            workspace.applications.set({snapshot(u"org.gnome.TextEditor"_s, 1), snapshot(u"firefox"_s, 2),
                                        snapshot(u"firefox"_s, 3), snapshot(QString(), 4), snapshot(u"code"_s, 5),
                                        snapshot(u"org.freedesktop.portal"_s, 6), snapshot(u"x-unknown"_s, 7)});
        }
        InMemoryUserDefaults store;
        SettingsManager settings{store, nullptr};
        FakeWorkspace workspace;
        FakeApplicationInfo applications;
        AddFocusAppModel model{&settings, &workspace, &applications};
    };

private Q_SLOTS:
    void loadingKeepsRegularApplicationsOncePerIdentitySortedByPlainName()
    {
        Fixture f;
        const QList<RunningApplication> loaded = loadRunningApplications(f.workspace, &f.applications);
        // No name sorts first, then capitals before lower case.
        QCOMPARE(identifiers(loaded),
                 (QStringList{QString(), u"x-unknown"_s, u"firefox"_s, u"org.gnome.TextEditor"_s, u"code"_s}));
        QCOMPARE(loaded.at(2).name, u"Firefox"_s);
        QVERIFY(loaded.at(2).hasIcon);
        QVERIFY(!loaded.at(4).hasIcon);
        QVERIFY(loadRunningApplications(FakeWorkspace(), &f.applications).isEmpty());
    }

    void filteringTrimsLowerCasesAndHidesListedApplications_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("taken");
        QTest::addColumn<QStringList>("expected");
        const QStringList everyoneWithIdentity = {u"x-unknown"_s, u"firefox"_s, u"org.gnome.TextEditor"_s, u"code"_s};
        QTest::newRow("empty search") << QString() << QStringList() << everyoneWithIdentity;
        QTest::newRow("capitals and spaces") << u"  FIRE "_s << QStringList() << QStringList{u"firefox"_s};
        QTest::newRow("by identity") << u"gnome"_s << QStringList() << QStringList{u"org.gnome.TextEditor"_s};
        QTest::newRow("by name") << u"text ed"_s << QStringList() << QStringList{u"org.gnome.TextEditor"_s};
        QTest::newRow("already listed") << u"o"_s << QStringList{u"code"_s, u"firefox"_s}
                                        << QStringList{u"x-unknown"_s, u"org.gnome.TextEditor"_s};
    }
    void filteringTrimsLowerCasesAndHidesListedApplications()
    {
        QFETCH(QString, search);
        QFETCH(QStringList, taken);
        QFETCH(QStringList, expected);
        Fixture f;
        const QList<RunningApplication> loaded = loadRunningApplications(f.workspace, &f.applications);
        QCOMPARE(identifiers(filterApplications(loaded, search, taken)), expected);
    }

    void presentingStartsAfreshAndLoadsOffTheMainThread()
    {
        Fixture f;
        Qt::HANDLE workerThread = nullptr;
        f.workspace.hook.set([&workerThread] { workerThread = QThread::currentThreadId(); });
        f.model.setSearchText(u"fire"_s);
        f.model.setSelectedBundleId(u"firefox"_s);
        f.model.setSelectedMode(int(DeepFocusMode::WhenOpen));
        f.model.present();
        QCOMPARE(f.model.searchText(), QString());
        QVERIFY(!f.model.canAdd());
        QCOMPARE(f.model.selectedMode(), int(DeepFocusMode::WhenForeground));
        QVERIFY(f.model.isLoading());
        QTRY_VERIFY(!f.model.isLoading());
        QVERIFY(workerThread != nullptr);
        QVERIFY(workerThread != QThread::currentThreadId());
        QCOMPARE(f.model.filteredApps().size(), 4);
        QCOMPARE(f.model.filteredApps().first().toMap().value(u"name"_s).toString(), u"Unknown App"_s);
        QCOMPARE(f.model.emptyText(), u"No other apps are currently running"_s);
    }

    void addingAppendsTheSelectionEvenWhenASearchHidesIt()
    {
        Fixture f;
        f.model.present();
        QTRY_VERIFY(!f.model.isLoading());
        QVERIFY(!f.model.add());
        f.model.setSelectedBundleId(u"firefox"_s);
        f.model.setSelectedMode(int(DeepFocusMode::WhenOpen));
        f.model.setSearchText(u"gnome"_s);
        QVERIFY(f.model.add());
        QCOMPARE(f.settings.smartPauseSettings().deepFocusApps,
                 (QList<DeepFocusApp>{{u"Firefox"_s, u"firefox"_s, DeepFocusMode::WhenOpen}}));
        // Listed now, so no longer offered.
        f.model.setSearchText(QString());
        QCOMPARE(f.model.filteredApps().size(), 3);

        // An application without a name is added under its identity.
        f.model.setSelectedBundleId(u"x-unknown"_s);
        QVERIFY(f.model.add());
        QCOMPARE(f.settings.smartPauseSettings().deepFocusApps.last().name, u"x-unknown"_s);

        // A selection no running application has adds nothing and keeps the sheet open.
        f.model.setSelectedBundleId(u"gone"_s);
        QVERIFY(!f.model.add());
        QCOMPARE(f.settings.smartPauseSettings().deepFocusApps.size(), 2);
    }

    void aDeletedEntryIsOfferedAgainOnTheNextShowing()
    {
        Fixture f;
        SmartPauseSettings smartPause = f.settings.smartPauseSettings();
        smartPause.deepFocusApps = {{u"Firefox"_s, u"firefox"_s, DeepFocusMode::WhenForeground}};
        f.settings.setSmartPauseSettings(smartPause);
        f.model.present();
        QTRY_VERIFY(!f.model.isLoading());
        f.model.setSearchText(u"fire"_s);
        QVERIFY(f.model.filteredApps().isEmpty());
        f.settings.setSmartPauseSettings(SmartPauseSettings());
        f.model.present();
        QTRY_VERIFY(!f.model.isLoading());
        f.model.setSearchText(u"fire"_s);
        QCOMPARE(f.model.filteredApps().size(), 1);
    }

    void aLaterShowingSupersedesAnEarlierAnswer()
    {
        Fixture f;
        f.model.present();
        f.workspace.applications.set({snapshot(u"code"_s, 5)});
        f.model.present();
        QTRY_VERIFY(!f.model.isLoading());
        // Let any answer of the first showing arrive too.
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QCOMPARE(identifiers(f.model.runningApps()), QStringList{u"code"_s});
    }
};

QTEST_MAIN(AddFocusAppModelTest)
#include "tst_addfocusappmodel.moc"
