#include "FakeNotificationPresenter.h"
#include "FakeSoundPlayer.h"
#include "MessageCapture.h"
#include "VeltoWindows.h"
#include "notification/PreBreakNotificationDisplayModel.h"
#include "windows/LazyWindows.h"
#include "windows/WindowsModuleLoader.h"

#include <QGuiApplication>
#include <QTest>

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
};

QTEST_MAIN(TestWindowsModule)
#include "tst_windowsmodule.moc"
