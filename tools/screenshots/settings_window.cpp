// Renders the seven settings panes off screen, light and dark, for the README.
// Usage: velto_screenshots_settings OUTPUT_DIR [DESKTOP WINDOWS TYPING]
// The optional three show the panes as on that desktop with those window and typing sources.
#include "InMemoryHistoryStore.h"
#include "InMemoryUserDefaults.h"
#include "ScreenshotLanguage.h"
#include "SettingsWindowController.h"
#include "UpdateAvailabilityModel.h"
#include "detection/ApplicationInfoProviding.h"
#include "detection/WorkspaceProviding.h"
#include "history/HistoryRecorder.h"
#include "scheduling/ScreenLocking.h"
#include "settings/SettingsManager.h"
#include "settings/UserDefaultsStore.h"

#include <QDir>
#include <QGuiApplication>
#include <QHash>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace velto;

namespace {

class Lock final : public ScreenLocking {
public:
    [[nodiscard]] bool isLockAvailable() const override { return true; }
    void lockScreen() override {}
};

class Workspace final : public WorkspaceProviding {
public:
    [[nodiscard]] QList<AppSnapshot> runningApplications() const override
    {
        return {{u"org.mozilla.firefox"_s, true, 10},
                {u"org.gnome.Nautilus"_s, false, 11},
                {u"code"_s, false, 12},
                {u"org.gnome.Calculator"_s, false, 13}};
    }
};

// Icons by path, so the pictures do not depend on the icon theme of the machine that renders them.
QString icon(QStringView name)
{
    return u"/usr/share/icons/Adwaita/48x48/legacy/"_s + name + u".png"_s;
}

class Applications final : public ApplicationInfoProviding {
public:
    [[nodiscard]] std::optional<ApplicationInfo> applicationInfo(const QString& identifier) const override
    {
        static const QHash<QString, ApplicationInfo> known = {
            {u"org.mozilla.firefox"_s, {u"Firefox"_s, icon(u"web-browser"), true}},
            {u"org.gnome.Nautilus"_s, {u"Files"_s, icon(u"system-file-manager"), true}},
            {u"code"_s, {u"Visual Studio Code"_s, icon(u"applications-development"), true}},
            {u"org.gnome.Calculator"_s, {u"Calculator"_s, icon(u"accessories-calculator"), true}},
            {u"org.gnome.TextEditor"_s, {u"Text Editor"_s, icon(u"accessories-text-editor"), true}},
        };
        const auto found = known.constFind(identifier);
        if (found == known.cend())
            return std::nullopt;
        return *found;
    }
};

QPalette palette(bool dark)
{
    QPalette p;
    const QColor window = dark ? QColor(0x26, 0x26, 0x28) : QColor(0xf0, 0xf0, 0xf2);
    const QColor text = dark ? QColor(0xec, 0xec, 0xee) : QColor(0x1d, 0x1d, 0x1f);
    const QColor base = dark ? QColor(0x1e, 0x1e, 0x20) : QColor(0xff, 0xff, 0xff);
    const QColor button = dark ? QColor(0x3a, 0x3a, 0x3c) : QColor(0xfa, 0xfa, 0xfb);
    const QColor accent = dark ? QColor(0x3d, 0x84, 0xf0) : QColor(0x1f, 0x6f, 0xe5);
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const bool disabled = group == QPalette::Disabled;
        p.setColor(group, QPalette::Window, window);
        p.setColor(group, QPalette::WindowText, disabled ? QColor(0x80, 0x80, 0x80) : text);
        p.setColor(group, QPalette::Base, base);
        p.setColor(group, QPalette::AlternateBase, window);
        p.setColor(group, QPalette::Text, disabled ? QColor(0x80, 0x80, 0x80) : text);
        p.setColor(group, QPalette::Button, button);
        p.setColor(group, QPalette::ButtonText, disabled ? QColor(0x80, 0x80, 0x80) : text);
        p.setColor(group, QPalette::Highlight, accent);
        p.setColor(group, QPalette::HighlightedText, Qt::white);
        p.setColor(group, QPalette::ToolTipBase, base);
        p.setColor(group, QPalette::ToolTipText, text);
        p.setColor(group, QPalette::PlaceholderText, dark ? QColor(0x8a, 0x8a, 0x8e) : QColor(0x9a, 0x9a, 0x9e));
        p.setColor(group, QPalette::Light, dark ? QColor(0x50, 0x50, 0x52) : Qt::white);
        p.setColor(group, QPalette::Midlight, dark ? QColor(0x44, 0x44, 0x46) : QColor(0xe4, 0xe4, 0xe6));
        p.setColor(group, QPalette::Mid, dark ? QColor(0x30, 0x30, 0x32) : QColor(0xb8, 0xb8, 0xbc));
        p.setColor(group, QPalette::Dark, dark ? QColor(0x18, 0x18, 0x1a) : QColor(0x9c, 0x9c, 0xa0));
        p.setColor(group, QPalette::Shadow, Qt::black);
    }
    return p;
}

// Six weeks of plausible history up to a Wednesday afternoon: weekdays of 10 to 20 breaks with a few skipped and
// some Smart Pause holds, weekends off. Made the same way every time, so the pictures change only with the pane.
void fillHistory(InMemoryHistoryStore& store, const QDateTime& now)
{
    quint32 state = 20251105;
    const auto random = [&state](int below) {
        state = state * 1103515245U + 12345U;
        return int((state >> 16) % quint32(below));
    };
    const QDate today = now.date();
    for (QDate day = today.addDays(-40); day <= today; day = day.addDays(1)) {
        if (day.dayOfWeek() > 5)
            continue;
        const qint64 daysAgo = day.daysTo(today);
        const int taken = daysAgo == 0 ? 8 : 10 + random(11);
        // This week's days as the week row shows them: a skip on Monday, none since.
        int skipped = random(3) == 0 ? 0 : 1 + random(3);
        if (daysAgo < 3)
            skipped = daysAgo == 2 ? 2 : 0;
        QDateTime at(day, QTime(9, 0), QTimeZone::utc());
        int skipsLeft = skipped;
        for (int i = 0; i < taken + skipped; ++i) {
            at = at.addSecs(20 * 60 + random(15) * 60);
            const bool skip = skipsLeft > 0 && (i % 5 == 2 || taken + skipped - i <= skipsLeft);
            HistoryEvent event;
            event.at = at;
            event.breakType = i % 4 == 3 ? BreakType::Long : BreakType::Short;
            // Skipped on the break screen, or before it came.
            event.kind =
                skip && skipsLeft % 2 == 0 ? HistoryEventKind::UpcomingBreakSkipped : HistoryEventKind::BreakEnded;
            if (event.kind == HistoryEventKind::BreakEnded)
                event.detail = (skip ? HistoryNames::skipped : HistoryNames::completed).toString();
            skipsLeft -= skip ? 1 : 0;
            store.append(event);
        }
        if (random(3) == 0 || daysAgo == 0) {
            HistoryEvent hold;
            hold.kind = HistoryEventKind::SmartPauseHold;
            hold.at = QDateTime(day, QTime(11, 0), QTimeZone::utc());
            hold.detail = u"meeting"_s;
            hold.seconds = daysAgo == 0 ? 25 * 60 : (20 + random(45)) * 60;
            store.append(hold);
        }
        store.addToDay({day, (daysAgo == 0 ? 4.5 : 6 + random(3)) * 3600, (35 + random(50)) * 60.0});
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    // Velto's icon, as the application sets it at start.
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(VELTO_APP_ICON)));
    QCoreApplication::setApplicationVersion(u"0.1.0"_s);
    const QString outputDir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"docs/screenshots"_s;
    const QString language = useScreenshotLanguage();
    QDir().mkpath(outputDir);

    InMemoryUserDefaults store;
    SettingsManager settings(store, nullptr);
    BreakConfiguration breaks = settings.breakConfiguration();
    breaks.longBreakEnabled = true;
    settings.setBreakConfiguration(breaks);
    Schedule schedule = settings.schedule();
    schedule.isEnabled = true;
    schedule.activeDays = {Weekday::Monday, Weekday::Tuesday, Weekday::Wednesday, Weekday::Thursday, Weekday::Friday};
    settings.setSchedule(schedule);
    SmartPauseSettings smartPause = settings.smartPauseSettings();
    smartPause.deepFocusApps = {{u"Visual Studio Code"_s, u"code"_s, DeepFocusMode::WhenForeground},
                                {u"Text Editor"_s, u"org.gnome.TextEditor"_s, DeepFocusMode::WhenForegroundFullscreen}};
    settings.setSmartPauseSettings(smartPause);
    BreakAppearance appearance = settings.breakAppearance();
    appearance.backgroundType = BackgroundType::Gradient;
    appearance.gradientTheme = GradientTheme::Aurora;
    settings.setBreakAppearance(appearance);

    Lock lock;
    Workspace workspace;
    Applications applications;
    UpdateAvailabilityModel updates;
    AppcastItem item;
    item.shortVersionString = u"0.2.0"_s;
    updates.didFindValidUpdate(item);

    const QDateTime now(QDate(2025, 11, 5), QTime(16, 30), QTimeZone::utc());
    InMemoryHistoryStore historyStore;
    fillHistory(historyStore, now);
    HistoryRecorder history(historyStore, nullptr, QTimeZone::utc(), [now] { return now; });

    const QStringList tabs = {u"general"_s,    u"breaks"_s,  u"smart-pause"_s, u"notifications"_s,
                              u"appearance"_s, u"history"_s, u"about"_s};
    int failures = 0;
    for (const bool dark : {false, true}) {
        QGuiApplication::setPalette(palette(dark));
        // A fresh controller per theme, so the palette is read afresh.
        SettingsWindowController::Collaborators collaborators{&lock, &workspace, &applications, &updates};
        collaborators.history = &history;
        if (argc > 4) {
            const QVariantMap sources{{u"windows"_s, QString::fromLocal8Bit(argv[3])},
                                      {u"typing"_s, QString::fromLocal8Bit(argv[4])}};
            collaborators.detectionSources = [sources] { return sources; };
            collaborators.desktop = QString::fromLocal8Bit(argv[2]);
        }
        SettingsWindowController controller(collaborators);
        controller.showSettings(&settings, nullptr);
        QQuickWindow* window = controller.settingsWindow();
        if (!window) {
            std::fprintf(stderr, "the settings window could not be built\n");
            return 1;
        }
        for (int tab = 0; tab < tabs.size(); ++tab) {
            window->setProperty("selectedTab", tab);
            QTest::qWait(100);
            // The history light over the last week, dark over the month; drawn once its read is back.
            if (tabs.at(tab) == u"history"_s) {
                auto* historyModel = window->property("historyModel").value<QObject*>();
                historyModel->setProperty("chartDays", dark ? 30 : 7);
                QTest::qWaitFor([historyModel] { return !historyModel->property("loading").toBool(); });
                QTest::qWait(50);
            }
            // Tall enough for the whole pane, so the picture shows every section.
            const auto* pane = window->property("detailPane").value<QObject*>();
            const int paneHeight = pane ? pane->property("implicitHeight").toInt() : 0;
            window->setMaximumHeight(4000);
            window->resize(window->width(), std::max(580, paneHeight + 90));
            QTest::qWait(150);
            const QString path =
                outputDir + u"/settings-"_s + tabs.at(tab) + (dark ? u"-dark"_s : u"-light"_s) + language + u".png"_s;
            if (!window->grabWindow().save(path)) {
                std::fprintf(stderr, "could not write %s\n", qPrintable(path));
                ++failures;
            }
            // The add-focus-app sheet over the Smart Pause pane, at the window's usual size.
            QObject* sheet = pane ? pane->findChild<QObject*>(u"addFocusAppSheet"_s) : nullptr;
            if (sheet) {
                window->resize(740, 580);
                window->setMaximumHeight(580);
                QMetaObject::invokeMethod(sheet, "open");
                QTest::qWait(300);
                if (auto* model = window->property("focusAppModel").value<QObject*>())
                    model->setProperty("selectedBundleId", u"org.mozilla.firefox"_s);
                QTest::qWait(150);
                const QString sheetPath =
                    outputDir + u"/settings-add-focus-app"_s + (dark ? u"-dark"_s : u"-light"_s) + language + u".png"_s;
                if (!window->grabWindow().save(sheetPath))
                    ++failures;
                QMetaObject::invokeMethod(sheet, "close");
                QTest::qWait(300);
            }
        }
        window->close();
    }
    return failures == 0 ? 0 : 1;
}
