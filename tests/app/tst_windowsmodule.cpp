#include "FakeNotificationPresenter.h"
#include "FakeSoundPlayer.h"
#include "MessageCapture.h"
#include "VeltoWindows.h"
#include "notification/PreBreakNotificationDisplayModel.h"
#include "windows/LazyWindows.h"
#include "windows/WindowsModuleLoader.h"

#include <QFile>
#include <QGuiApplication>
#include <QTest>
#include <QWindow>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace velto;

namespace {

// Counts what the shell asks of the windows and hands out fakes it can look into.
class CountingWindows final : public VeltoWindows {
public:
    std::unique_ptr<NotificationWindowPresenting> makeNotificationPresenter() override
    {
        ++presenters;
        auto made = std::make_unique<FakeNotificationPresenter>();
        presenter = made.get();
        return made;
    }
    std::unique_ptr<BreakOverlay> makeBreakOverlay(SettingsManager*, BreakManager*, SoundPlaying*,
                                                   ScreenLocking*) override
    {
        return nullptr;
    }
    std::unique_ptr<SettingsWindows> makeSettingsWindows(SettingsCollaborators) override { return nullptr; }
    std::unique_ptr<SoundPlaying> makeSoundPlayer() override
    {
        ++players;
        auto made = std::make_unique<FakeSoundPlayer>();
        player = made.get();
        return made;
    }

    int presenters = 0;
    int players = 0;
    FakeNotificationPresenter* presenter = nullptr;
    FakeSoundPlayer* player = nullptr;
};

// Resident kilobytes of the executable code of the mapped files whose path contains name.
qint64 residentCodeKb(const QString& name)
{
    QFile smaps(u"/proc/self/smaps"_s);
    if (!smaps.open(QIODevice::ReadOnly))
        return -1;
    qint64 total = 0;
    bool counting = false;
    for (const QByteArray& line : smaps.readAll().split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() >= 5 && fields.first().contains('-') && !line.endsWith(':'))
            counting = fields.size() >= 6 && fields.at(1) == "r-xp" && fields.at(5).contains(name.toUtf8());
        else if (counting && fields.size() >= 2 && fields.first() == "Rss:")
            total += fields.at(1).toLongLong();
    }
    return total;
}

bool anyWindowVisible()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.cbegin(), windows.cend(), [](const QWindow* w) { return w->isVisible(); });
}

} // namespace

class TestWindowsModule : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingIsAskedForUntilTheFirstCardOrChime()
    {
        CountingWindows windows;
        int asked = 0;
        WindowsSource source = [&] {
            ++asked;
            return &windows;
        };
        LazyNotificationPresenter card(source);
        LazySoundPlayer chimes(source);
        // A hide with no card ever shown has nothing to take away, and loads nothing.
        card.hide();
        QCOMPARE(asked, 0);

        auto model = std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Short, 60.0);
        card.show(model, {}, {}, {}, {});
        card.show(model, {}, {}, {}, {});
        card.hide();
        QCOMPARE(windows.presenters, 1);
        QCOMPARE(windows.presenter->cards.size(), 2);
        QCOMPARE(windows.presenter->hides, 1);

        chimes.play(u"Glass"_s, 0.5f);
        chimes.play(u"Blow"_s, 1.0f);
        QCOMPARE(windows.players, 1);
        QCOMPARE(windows.player->names(), (QStringList{u"Glass"_s, u"Blow"_s}));
        QCOMPARE(windows.player->played.first().volume, 0.5f);
        QCOMPARE(asked, 2);

        // Without windows, cards and chimes are silently absent.
        LazyNotificationPresenter noCard([] { return nullptr; });
        LazySoundPlayer noChimes(WindowsSource{});
        noCard.show(model, {}, {}, {}, {});
        noCard.hide();
        noChimes.play(u"Pop"_s, 1.0f);
    }

    void theBuiltModuleLoadsAndABadOneIsSaid()
    {
        VeltoWindows* loaded = loadWindowsModule(QStringLiteral(VELTO_WINDOWS_MODULE));
        QVERIFY(loaded);
        // The module's windows make the real card and chimes.
        QVERIFY(loaded->makeNotificationPresenter());
        QVERIFY(loaded->makeSoundPlayer());
        QCOMPARE(loadWindowsModule(QStringLiteral(VELTO_WINDOWS_MODULE)), loaded);

        MessageCapture capture;
        QVERIFY(!loadWindowsModule(u"/nonexistent/velto-windows.so"_s));
        QVERIFY(!loadWindowsModule(QStringLiteral(VELTO_NOT_A_MODULE)));
        const QStringList said = capture.texts();
        QCOMPARE(said.size(), 2);
        for (const QString& text : said)
            QVERIFY2(text.contains(u"velto: cannot load the windows ("_s), qPrintable(text));
    }

    void betweenWindowsTheCodeTheyBroughtIsUnmappedAndComesBack()
    {
        VeltoWindows* loaded = loadWindowsModule(QStringLiteral(VELTO_WINDOWS_MODULE));
        QVERIFY(loaded);
        auto card = loaded->makeNotificationPresenter();
        auto model = std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Short, 60.0);
        for (int round = 0; round < 2; ++round) {
            card->show(model, {}, {}, {}, {});
            QTRY_VERIFY(anyWindowVisible());
            QVERIFY(residentCodeKb(u"libQt6Quick.so"_s) > 256);
            QVERIFY(residentCodeKb(u"velto-windows.so"_s) > 0);
            card->hide();
            QTRY_VERIFY(!anyWindowVisible());
            QTRY_VERIFY(residentCodeKb(u"libQt6Quick.so"_s) < 64);
        }
        // Velto's own code, loaded before the windows, stays.
        QVERIFY(residentCodeKb(u"libQt6Core.so"_s) > 256);
    }
};

QTEST_MAIN(TestWindowsModule)
#include "tst_windowsmodule.moc"
