#include "AddFocusAppModel.h"
#include "FakeApplicationInfo.h"
#include "FakeDetectionProviders.h"
#include "FakeGnomeExtension.h"
#include "FakeScreenLock.h"
#include "HistoryPaneModel.h"
#include "InMemoryHistoryStore.h"
#include "InMemoryUserDefaults.h"
#include "PseudoTranslator.h"
#include "SettingsPaneModel.h"
#include "SettingsWindowController.h"
#include "UpdateAvailabilityModel.h"
#include "detection/DetectionCoverage.h"
#include "history/HistoryRecorder.h"
#include "settings/SettingsManager.h"

#include <QAccessible>
#include <QJSEngine>
#include <QJSValue>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScopeGuard>
#include <QSet>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using namespace velto;

namespace {

// Objects with this name under root, in the object tree and the visual tree (views and repeaters make their
// delegates children of items only), each once, in tree order.
QList<QObject*> named(QObject* root, const QString& name)
{
    QList<QObject*> found;
    QSet<QObject*> seen;
    std::function<void(QObject*)> walk = [&](QObject* object) {
        if (!object || seen.contains(object))
            return;
        seen.insert(object);
        if (object->objectName() == name)
            found.append(object);
        if (auto* item = qobject_cast<QQuickItem*>(object)) {
            for (QQuickItem* child : item->childItems())
                walk(child);
        }
        for (QObject* child : object->children())
            walk(child);
    };
    walk(root);
    return found;
}

// Emits a control's signal the way a user's action does, so the pane's own handler runs.
void emitSignal(QObject* object, const char* signal)
{
    QVERIFY2(object, signal);
    QVERIFY(QMetaObject::invokeMethod(object, signal));
}

void activate(QObject* comboBox, int index)
{
    QVERIFY(comboBox);
    comboBox->setProperty("currentIndex", index);
    QVERIFY(QMetaObject::invokeMethod(comboBox, "activated", Q_ARG(int, index)));
}

void toggle(QObject* switchRow, bool on)
{
    QVERIFY(switchRow);
    QObject* control = switchRow->findChild<QObject*>(u"switch"_s);
    QVERIFY(control);
    control->setProperty("checked", on);
    QVERIFY(QMetaObject::invokeMethod(control, "toggled"));
}

bool isA(const QObject* object, const char* className)
{
    for (const QMetaObject* meta = object->metaObject(); meta; meta = meta->superClass()) {
        if (qstrcmp(meta->className(), className) == 0)
            return true;
    }
    return false;
}

// Every visible text, placeholder and spoken name in the window went through the translator unless it is one of
// the data shown, and no text is cut short or runs past its own item or the window's edge. A picker is checked as one:
// its options are the model's, and it is at least as wide as the longest of them.
void checkLanguage(QQuickWindow* window, const QStringList& data)
{
    std::function<void(QQuickItem*)> check = [&](QQuickItem* item) {
        if (!item->isVisible() || QTest::currentTestFailed())
            return;
        QStringList texts{item->property("placeholderText").toString()};
        if (QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(item))
            texts.append(accessible->text(QAccessible::Name));
        const bool isText = isA(item, "QQuickText");
        if (isText)
            texts.append(item->property("text").toString());
        for (const QString& text : std::as_const(texts)) {
            const bool wordy = std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetter(); });
            QVERIFY2(!wordy || data.contains(text) || PseudoTranslator::isTranslated(text), qPrintable(text));
        }
        if (isText) {
            const QString text = item->property("text").toString();
            QVERIFY2(item->property("contentWidth").toReal() <= item->width() + 1, qPrintable(text));
            QVERIFY2(!item->property("truncated").toBool(), qPrintable(text));
            QVERIFY2(item->mapToScene(QPointF(item->width(), 0)).x() <= window->width() + 1, qPrintable(text));
        }
        if (isA(item, "QQuickComboBox")) {
            QVERIFY2(item->width() + 1 >= item->implicitWidth(), qPrintable(texts.last()));
            return;
        }
        for (QQuickItem* child : item->childItems())
            check(child);
    };
    // A frame first, so that every layout has taken in its items' latest sizes.
    window->grabWindow();
    check(window->contentItem());
}

} // namespace

class SettingsWindowControllerTest final : public QObject {
    Q_OBJECT

private:
    struct Fixture {
        InMemoryUserDefaults store;
        SettingsManager settings{store, nullptr};
        FakeScreenLock lock;
        FakeWorkspace workspace;
        FakeApplicationInfo applications;
        UpdateAvailabilityModel updates;
        QVariantMap detectionSources;
        FakeGnomeExtension gnomeExtension;
        InMemoryHistoryStore historyStore;
        HistoryRecorder history{historyStore};
        SettingsWindowController controller{{&lock, &workspace, &applications, &updates, &store.writeState(),
                                             [this] { return detectionSources; }, u"GNOME"_s, &gnomeExtension,
                                             &history}};

        QQuickWindow* open()
        {
            applications.known.insert(u"org.gnome.TextEditor"_s, {u"Text Editor"_s, QString(), true});
            controller.showSettings(&settings, nullptr);
            QQuickWindow* window = controller.settingsWindow();
            // Let the one rebuild after the first showing happen.
            QCoreApplication::processEvents();
            return window;
        }
        QObject* pane(int tab)
        {
            QQuickWindow* window = controller.settingsWindow();
            window->setProperty("selectedTab", tab);
            QCoreApplication::processEvents();
            return window->property("detailPane").value<QObject*>();
        }
        SettingsPaneModel* paneModel()
        {
            return controller.settingsWindow()->property("paneModel").value<SettingsPaneModel*>();
        }
        // Breaks that ended just now, taken and skipped.
        void recordBreaks(int taken, int skipped)
        {
            const QDateTime now = QDateTime::currentDateTime();
            for (int i = 0; i < taken + skipped; ++i) {
                HistoryEvent ended{HistoryEventKind::BreakEnded,
                                   now.toUTC(),
                                   int(now.offsetFromUtc()),
                                   BreakType::Short,
                                   (i < taken ? HistoryNames::completed : HistoryNames::skipped).toString(),
                                   20};
                historyStore.append(ended);
            }
        }
        // The History pane once its read has come back.
        QObject* historyPane()
        {
            QObject* pane = this->pane(5);
            auto* model = controller.settingsWindow()->property("historyModel").value<HistoryPaneModel*>();
            if (!QTest::qWaitFor([model] { return !model->loading(); }))
                return nullptr;
            QCoreApplication::processEvents();
            return pane;
        }
    };

    static QObject* picker(QObject* pane, const QString& row)
    {
        QObject* found = pane ? pane->findChild<QObject*>(row) : nullptr;
        return found ? found->findChild<QObject*>(u"picker"_s) : nullptr;
    }
    static bool isShown(QObject* item) { return item && item->property("visible").toBool(); }
    static bool onSway() { return qEnvironmentVariable("VELTO_TEST_COMPOSITOR") == u"sway"_s; }

private Q_SLOTS:
    void initTestCase()
    {
        // Off screen the plain style keeps the suite quick; on a compositor the window looks as users see it.
        if (!onSway())
            qputenv("QT_QUICK_CONTROLS_STYLE", "Basic");
    }

    void opensOnceBringsForwardAndBuildsAFreshWindowAfterClosing()
    {
        Fixture f;
        QVERIFY(!f.controller.engineIfCreated());
        QQuickWindow* first = f.open();
        QVERIFY(first);
        QVERIFY(f.controller.engineIfCreated());
        QVERIFY(first->isVisible());

        first->setProperty("selectedTab", 3);
        f.controller.showSettings(&f.settings, nullptr);
        QCOMPARE(f.controller.settingsWindow(), first);
        QCOMPARE(first->property("selectedTab").toInt(), 3);

        first->close();
        QVERIFY(!first->isVisible());
        QQuickWindow* second = f.open();
        QVERIFY(second != first);
        QCOMPARE(second->property("selectedTab").toInt(), 0);
        QVERIFY(second->isVisible());

        // The window opened meanwhile kept the engine; once the last one has gone, the engine goes too, with the
        // type registrations Qt keeps for the whole process; the next window registers them again.
        QTest::qWait(0);
        QVERIFY(f.controller.engineIfCreated());
        const auto controlsRegistered = [] { return qmlTypeId("QtQuick.Templates", 6, 0, "Button") != -1; };
        QVERIFY(controlsRegistered());
        second->close();
        QTRY_VERIFY(!f.controller.engineIfCreated());
        QTRY_VERIFY(!controlsRegistered());
        QQuickWindow* third = f.open();
        QVERIFY(third);
        QVERIFY(controlsRegistered());
        QVERIFY(third->findChild<QObject*>(u"sidebarToggle"_s));
    }

    void updateDotFollowsTheUpdateModelWhileOpen()
    {
        Fixture f;
        QQuickWindow* window = f.open();
        auto dotShown = [window] {
            const QList<QObject*> dots = named(window, u"updateDot"_s);
            return std::any_of(dots.cbegin(), dots.cend(), [](QObject* dot) { return isShown(dot); });
        };
        QVERIFY(!dotShown());
        AppcastItem item;
        item.shortVersionString = u"3.0"_s;
        f.updates.didFindValidUpdate(item);
        QVERIFY(dotShown());
        QObject* about = f.pane(6);
        QVERIFY(isShown(about->findChild<QObject*>(u"updateNudge"_s)));
        f.updates.userDidMakeChoice(UpdateChoice::Skip, item);
        QVERIFY(!dotShown());
        QVERIFY(!isShown(about->findChild<QObject*>(u"updateNudge"_s)));
    }

    void sidebarButtonHidesAndShowsTheCategories()
    {
        Fixture f;
        QQuickWindow* window = f.open();
        QObject* sidebar = window->findChild<QObject*>(u"sidebar"_s);
        QVERIFY(isShown(sidebar));
        emitSignal(window->findChild<QObject*>(u"sidebarToggle"_s), "clicked");
        QVERIFY(!isShown(sidebar));
        emitSignal(window->findChild<QObject*>(u"sidebarToggle"_s), "clicked");
        QVERIFY(isShown(sidebar));
    }

    void aChangeThatCannotBeSavedIsToldUnderEveryPane()
    {
        Fixture f;
        QQuickWindow* window = f.open();
        auto told = [window] { return isShown(named(window, u"saveProblem"_s).value(0)); };
        QVERIFY(!told());
        f.store.writesSucceed = false;
        toggle(f.pane(0)->findChild<QObject*>(u"showTimerInMenuBar"_s), false);
        QVERIFY(told());
        f.pane(4);
        QVERIFY(told());
        f.store.writesSucceed = true;
        emitSignal(f.pane(4)->findChild<QObject*>(u"addMessage"_s), "clicked");
        QVERIFY(!told());
    }

    void pickersShowNoSelectionForStoredValuesThatAreNoOption()
    {
        Fixture f;
        BreakConfiguration breaks = f.settings.breakConfiguration();
        breaks.workInterval = 90;
        f.settings.setBreakConfiguration(breaks);
        NotificationSettings notifications = f.settings.notificationSettings();
        notifications.preBreakNotificationTime = 240;
        f.settings.setNotificationSettings(notifications);
        f.open();

        QObject* workInterval = picker(f.pane(1), u"workInterval"_s);
        QCOMPARE(workInterval->property("currentIndex").toInt(), -1);
        QCOMPARE(workInterval->property("displayText").toString(), QString());
        QObject* lead = picker(f.pane(3), u"preBreakNotificationTime"_s);
        QCOMPARE(lead->property("currentIndex").toInt(), -1);

        activate(lead, 3);
        QCOMPARE(f.settings.notificationSettings().preBreakNotificationTime, 300.0);
        QCOMPARE(lead->property("displayText").toString(), u"5 min before"_s);
        // The picker keeps following the store after the user's choice.
        notifications = f.settings.notificationSettings();
        notifications.preBreakNotificationTime = 120;
        f.settings.setNotificationSettings(notifications);
        QCOMPARE(lead->property("currentIndex").toInt(), 1);

        // Switching the notice off hides the row and keeps the lead time.
        toggle(f.pane(3)->findChild<QObject*>(u"showPreBreakNotification"_s), false);
        QVERIFY(!isShown(f.pane(3)->findChild<QObject*>(u"preBreakNotificationTime"_s)));
        QCOMPARE(f.settings.notificationSettings().preBreakNotificationTime, 120.0);
    }

    void presetButtonsFollowTheSelection()
    {
        Fixture f;
        f.open();
        QObject* pane = f.pane(1);
        const QStringList buttons = {u"presetBalanced"_s, u"presetDeepFocus"_s, u"presetEyeCare"_s, u"presetCustom"_s};
        auto highlighted = [&] {
            QStringList on;
            for (const QString& name : buttons) {
                if (pane->findChild<QObject*>(name)->property("highlighted").toBool())
                    on.append(name);
            }
            return on;
        };
        QCOMPARE(highlighted(), QStringList{u"presetBalanced"_s});

        emitSignal(pane->findChild<QObject*>(u"presetDeepFocus"_s), "clicked");
        QCOMPARE(highlighted(), QStringList{u"presetDeepFocus"_s});
        QVERIFY(isShown(pane->findChild<QObject*>(u"longBreakFrequency"_s)));

        activate(picker(pane, u"shortBreakDuration"_s), 0);
        QCOMPARE(highlighted(), QStringList{u"presetCustom"_s});
        QCOMPARE(f.settings.breakConfiguration().shortBreakDuration, 10.0);

        // Balanced has no long-break frequency: turning long breaks on shows Frequency with nothing chosen.
        emitSignal(pane->findChild<QObject*>(u"presetBalanced"_s), "clicked");
        QCOMPARE(highlighted(), QStringList{u"presetBalanced"_s});
        QVERIFY(!isShown(pane->findChild<QObject*>(u"longBreakFrequency"_s)));
        toggle(pane->findChild<QObject*>(u"longBreakEnabled"_s), true);
        QVERIFY(isShown(pane->findChild<QObject*>(u"longBreakFrequency"_s)));
        QCOMPARE(picker(pane, u"longBreakFrequency"_s)->property("currentIndex").toInt(), -1);
        QCOMPARE(highlighted(), QStringList{u"presetCustom"_s});
    }

    void lockSwitchStaysOffAndExplainsWithoutALocker()
    {
        Fixture f;
        f.lock.available = false;
        f.open();
        QObject* pane = f.pane(1);
        QObject* row = pane->findChild<QObject*>(u"lockScreenOnBreak"_s);
        toggle(row, true);
        QCOMPARE(row->findChild<QObject*>(u"switch"_s)->property("checked").toBool(), false);
        QObject* alert = pane->findChild<QObject*>(u"lockScreenAlert"_s);
        QVERIFY(alert);
        QVERIFY(alert->property("visible").toBool());
        QVERIFY(QMetaObject::invokeMethod(alert, "close"));
        QTRY_VERIFY(!f.paneModel()->showLockScreenAlert());
    }

    void officeHoursFollowTheSwitchAndTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("firstDay");
        QTest::addColumn<QString>("nineAm");
        QTest::newRow("US: Sunday first, 12-hour clock") << u"en_US"_s << u"Sun"_s << u"9 AM"_s;
        QTest::newRow("Germany: Monday first, 24-hour clock") << u"de_DE"_s << u"Mon"_s << u"09"_s;
    }

    void officeHoursFollowTheSwitchAndTheLocale()
    {
        QFETCH(QString, locale);
        QFETCH(QString, firstDay);
        QFETCH(QString, nineAm);
        const QLocale saved;
        QLocale::setDefault(QLocale(locale));
        Fixture f;
        Schedule schedule = f.settings.schedule();
        schedule.startTime = {9, 0};
        f.settings.setSchedule(schedule);
        f.open();
        QObject* pane = f.pane(0);
        QObject* days = pane->findChild<QObject*>(u"activeDays"_s);
        QVERIFY(!isShown(days));
        toggle(pane->findChild<QObject*>(u"useOfficeHours"_s), true);
        QVERIFY(isShown(days));
        // The day names stay in Velto's language (English here); their order is the locale's week.
        const QList<QQuickItem*> row = qobject_cast<QQuickItem*>(days)->childItems();
        QCOMPARE(row.value(1)->property("text").toString(), firstDay);

        auto* hour = pane->findChild<QObject*>(u"startTime"_s)->findChild<QObject*>(u"hour"_s);
        QCOMPARE(hour->property("displayText").toString(), nineAm);
        // What is typed reads the same way, and the hour of the day is stored.
        QJSValue read = hour->property("valueFromText").value<QJSValue>();
        const QJSValue typed =
            read.call({locale == u"en_US"_s ? u"3 PM"_s : u"15"_s, qjsEngine(hour)->toScriptValue(QLocale(locale))});
        QCOMPARE(typed.toInt(), 15);
        QCOMPARE(f.settings.schedule().startTime.hour, 9);
        toggle(pane->findChild<QObject*>(u"useOfficeHours"_s), false);
        QVERIFY(!isShown(days));
        QLocale::setDefault(saved);
    }

    void resetFromTheGeneralPaneRestoresTheStoreAndTheControls()
    {
        Fixture f;
        f.open();
        toggle(f.pane(0)->findChild<QObject*>(u"showTimerInMenuBar"_s), false);
        emitSignal(f.pane(4)->findChild<QObject*>(u"addMessage"_s), "clicked");
        emitSignal(f.pane(0)->findChild<QObject*>(u"resetToDefaults"_s), "clicked");
        QCOMPARE(f.settings.showTimerInMenuBar(), true);
        QCOMPARE(f.settings.breakAppearance(), BreakAppearance());
        QCOMPARE(f.pane(0)
                     ->findChild<QObject*>(u"showTimerInMenuBar"_s)
                     ->findChild<QObject*>(u"switch"_s)
                     ->property("checked")
                     .toBool(),
                 true);
    }

    void messageEditorKeepsAtLeastOneMessage()
    {
        Fixture f;
        BreakAppearance appearance = f.settings.breakAppearance();
        appearance.customMessages = {u"Only one"_s};
        f.settings.setBreakAppearance(appearance);
        f.open();
        QObject* pane = f.pane(4);
        auto removeButtons = [pane] { return named(pane, u"removeMessage"_s); };
        QCOMPARE(removeButtons().size(), 1);
        QVERIFY(!removeButtons().first()->property("enabled").toBool());

        emitSignal(pane->findChild<QObject*>(u"addMessage"_s), "clicked");
        QCOMPARE(removeButtons().size(), 2);
        QVERIFY(removeButtons().first()->property("enabled").toBool());

        QList<QObject*> fields = named(pane, u"message"_s);
        QCOMPARE(fields.size(), 2);
        QObject* second = fields.at(1);
        second->setProperty("text", u"Stretch"_s);
        emitSignal(second, "textEdited");
        QCOMPARE(f.settings.breakAppearance().customMessages, (QStringList{u"Only one"_s, u"Stretch"_s}));
        // Typing does not rebuild the fields.
        QCOMPARE(named(pane, u"message"_s).at(1), second);

        emitSignal(removeButtons().first(), "clicked");
        QCOMPARE(f.settings.breakAppearance().customMessages, QStringList{u"Stretch"_s});
    }

    void appearancePickersShowAndHideTheTheme()
    {
        Fixture f;
        f.open();
        QObject* pane = f.pane(4);
        QObject* theme = pane->findChild<QObject*>(u"gradientTheme"_s);
        QVERIFY(!isShown(theme));
        activate(picker(pane, u"backgroundType"_s), 2);
        QCOMPARE(f.settings.breakAppearance().backgroundType, BackgroundType::Gradient);
        QVERIFY(isShown(theme));
        QCOMPARE(theme->findChild<QObject*>(u"picker"_s)->property("currentIndex").toInt(), 0);
        activate(picker(pane, u"backgroundType"_s), 1);
        QVERIFY(!isShown(theme));
    }

    void focusAppSheetAddsByButtonOrKeysAndEscapeCancels()
    {
        Fixture f;
        f.workspace.applications.set({AppSnapshot{u"org.gnome.TextEditor"_s, true, 7}});
        QQuickWindow* window = f.open();
        window->requestActivate();
        QObject* pane = f.pane(2);
        QObject* addApp = pane->findChild<QObject*>(u"addApp"_s);
        QObject* sheet = pane->findChild<QObject*>(u"addFocusAppSheet"_s);
        QVERIFY(sheet);
        QObject* add = sheet->findChild<QObject*>(u"addSelected"_s);
        QVERIFY(add);
        auto* model = window->property("focusAppModel").value<AddFocusAppModel*>();
        QVERIFY(isShown(pane->findChild<QObject*>(u"noFocusApps"_s)));

        emitSignal(addApp, "clicked");
        QTRY_VERIFY(sheet->property("opened").toBool());
        QTRY_COMPARE(model->filteredApps().size(), 1);
        // Return without a selection adds nothing and keeps the sheet.
        QVERIFY(!add->property("enabled").toBool());
        QTest::keyClick(window, Qt::Key_Return);
        QVERIFY(sheet->property("visible").toBool());
        // Down selects the first application, Escape leaves without adding it.
        QTest::keyClick(window, Qt::Key_Tab);
        QTest::keyClick(window, Qt::Key_Down);
        QCOMPARE(model->selectedBundleId(), u"org.gnome.TextEditor"_s);
        QVERIFY(add->property("enabled").toBool());
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_VERIFY(!sheet->property("visible").toBool());
        QVERIFY(f.settings.smartPauseSettings().deepFocusApps.isEmpty());

        // A new showing starts without a selection; Down and Return add.
        emitSignal(addApp, "clicked");
        QTRY_VERIFY(sheet->property("opened").toBool());
        QVERIFY(!model->canAdd());
        QTRY_COMPARE(model->filteredApps().size(), 1);
        QTest::keyClick(window, Qt::Key_Tab);
        QTest::keyClick(window, Qt::Key_Down);
        QTest::keyClick(window, Qt::Key_Return);
        QTRY_VERIFY(!sheet->property("visible").toBool());
        QCOMPARE(f.settings.smartPauseSettings().deepFocusApps.size(), 1);
        QVERIFY(!isShown(pane->findChild<QObject*>(u"noFocusApps"_s)));
        emitSignal(named(pane, u"removeFocusApp"_s).value(0), "clicked");
        QVERIFY(f.settings.smartPauseSettings().deepFocusApps.isEmpty());
        QVERIFY(isShown(pane->findChild<QObject*>(u"noFocusApps"_s)));

        // The button adds the chosen application.
        emitSignal(addApp, "clicked");
        QTRY_VERIFY(sheet->property("opened").toBool());
        QTRY_COMPARE(model->filteredApps().size(), 1);
        model->setSelectedBundleId(u"org.gnome.TextEditor"_s);
        emitSignal(add, "clicked");
        QTRY_VERIFY(!sheet->property("visible").toBool());
        QCOMPARE(f.settings.smartPauseSettings().deepFocusApps.size(), 1);
    }

    void whatThisDesktopCannotSeeIsToldWhereItMatters()
    {
        Fixture f;
        f.detectionSources = {{u"windows"_s, u"x11"_s}, {u"typing"_s, u"x11-xinput2"_s}};
        const QString typingNote =
            u"Pauses the work timer while you're typing so a break is less likely to interrupt you."_s;
        QQuickWindow* window = f.open();
        QVERIFY(!isShown(f.pane(2)->findChild<QObject*>(u"detectionNotice"_s)));
        QCOMPARE(f.pane(1)->findChild<QObject*>(u"typingFootnote"_s)->property("text").toString(), typingNote);

        // Asked again at the next opening.
        window->close();
        f.detectionSources = {{u"windows"_s, u"none"_s}, {u"typing"_s, u"input-activity"_s}};
        f.open();
        QObject* notice = f.pane(2)->findChild<QObject*>(u"detectionNotice"_s);
        QVERIFY(isShown(notice));
        QCOMPARE(notice->property("text").toString(), detectionCoverage(f.detectionSources, u"GNOME"_s).notice);
        QCOMPARE(f.pane(1)->findChild<QObject*>(u"typingFootnote"_s)->property("text").toString(),
                 typingNote + u" Any keyboard or pointer input counts on this desktop."_s);
    }

    void gnomeExtensionIsToldAndEnabledOnTheSmartPausePane()
    {
        Fixture f;
        f.detectionSources = {{u"windows"_s, u"none"_s}, {u"typing"_s, u"none"_s}};
        const auto shown = [&f](const char* name) {
            return isShown(f.pane(2)->findChild<QObject*>(QLatin1StringView(name)));
        };
        const auto text = [&f](const char* name) {
            return f.pane(2)->findChild<QObject*>(QLatin1StringView(name))->property("text").toString();
        };

        // No GNOME Shell: no line, and the notice says what the windows need.
        f.gnomeExtension.found = GnomeExtensionFacts();
        QQuickWindow* window = f.open();
        QTRY_VERIFY(f.gnomeExtension.facts().has_value());
        QVERIFY(!shown("gnomeExtension"));
        QCOMPARE(text("detectionNotice"), detectionCoverage(f.detectionSources, u"GNOME"_s).notice);
        window->close();

        // Installed, not enabled: the state, why it matters and the button; the notice leaves the windows to it.
        GnomeExtensionFacts off;
        off.shellRunning = off.installed = off.settingsReadable = true;
        GnomeExtensionFacts running = off;
        running.serving = true;
        f.gnomeExtension.found = off;
        f.gnomeExtension.afterEnabling = running;
        window = f.open();
        QTRY_VERIFY(shown("gnomeExtension"));
        QCOMPARE(text("gnomeExtensionState"), u"GNOME extension: installed, not enabled"_s);
        QCOMPARE(text("gnomeExtensionExplanation"),
                 u"Without it, Smart Pause cannot see which window is in front on GNOME."_s);
        QVERIFY(shown("enableGnomeExtension"));
        QCOMPARE(text("detectionNotice"), detectionCoverage({{u"typing"_s, u"none"_s}}, u"GNOME"_s).notice);
        emitSignal(f.pane(2)->findChild<QObject*>(u"enableGnomeExtension"_s), "clicked");
        QTRY_COMPARE(text("gnomeExtensionState"), u"GNOME extension: active"_s);
        QCOMPARE(f.gnomeExtension.enables, 1);
        QVERIFY(!shown("enableGnomeExtension"));
        QVERIFY(!shown("gnomeExtensionExplanation"));
        window->close();

        // A refusal is told in place of the explanation; the button stays, to try again.
        f.gnomeExtension.found = off;
        f.gnomeExtension.enableError = u"the settings are locked"_s;
        window = f.open();
        QTRY_VERIFY(shown("enableGnomeExtension"));
        emitSignal(f.pane(2)->findChild<QObject*>(u"enableGnomeExtension"_s), "clicked");
        QTRY_COMPARE(text("gnomeExtensionExplanation"), u"It could not be enabled: the settings are locked."_s);
        QCOMPARE(text("gnomeExtensionState"), u"GNOME extension: installed, not enabled"_s);
        QVERIFY(shown("enableGnomeExtension"));
        QVERIFY(f.pane(2)->findChild<QObject*>(u"enableGnomeExtension"_s)->property("enabled").toBool());
    }

    // On a real compositor, in the style users get, the General pane's switches stand one under another: the
    // form's card once kept a row's contents where they had been during the first layout, over the next row.
    void formRowsStandOneUnderAnother()
    {
        if (!onSway())
            QSKIP("runs inside headless sway (run_in_compositor)");
        Fixture f;
        QQuickWindow* window = f.open();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QTest::qWait(1000);
        QObject* pane = f.pane(0);
        qreal below = 0;
        for (const char* name : {"isEnabled", "showTimerInMenuBar", "launchAtLogin"}) {
            const auto* row = pane->findChild<QQuickItem*>(QLatin1StringView(name));
            const auto* toggle = row ? row->findChild<QQuickItem*>(u"switch"_s) : nullptr;
            QVERIFY(toggle);
            const qreal top = toggle->mapToScene(QPointF()).y();
            QVERIFY2(top >= below, name);
            below = top + toggle->height();
        }
    }

    // In a language with longer words, with every optional row shown.
    void everyPaneIsInTheUsersLanguageAndItsTextsFit()
    {
        PseudoTranslator translator;
        QCoreApplication::installTranslator(&translator);
        const auto uninstall = qScopeGuard([&] { QCoreApplication::removeTranslator(&translator); });
        Fixture f;
        f.lock.available = false;
        Schedule schedule = f.settings.schedule();
        schedule.isEnabled = true;
        f.settings.setSchedule(schedule);
        BreakConfiguration breaks = f.settings.breakConfiguration();
        breaks.longBreakEnabled = true;
        f.settings.setBreakConfiguration(breaks);
        SmartPauseSettings smartPause = f.settings.smartPauseSettings();
        smartPause.deepFocusApps = {DeepFocusApp{u"Text Editor"_s, u"org.gnome.TextEditor"_s, DeepFocusMode::WhenOpen}};
        f.settings.setSmartPauseSettings(smartPause);
        BreakAppearance appearance = f.settings.breakAppearance();
        appearance.backgroundType = BackgroundType::Gradient;
        f.settings.setBreakAppearance(appearance);
        AppcastItem update;
        update.shortVersionString = u"3.0"_s;
        f.updates.didFindValidUpdate(update);
        f.recordBreaks(3, 1);
        QQuickWindow* window = f.open();
        QStringList data = {u"Velto"_s, u"Text Editor"_s, f.paneModel()->websiteDisplayName(),
                            f.paneModel()->contactAddress()};
        // The weekdays under the chart and the week's marks are the locale's own names.
        const auto* history = window->property("historyModel").value<HistoryPaneModel*>();
        for (const QVariantList& days : {history->week(), history->chartEntries()}) {
            for (const QVariant& day : days)
                data.append(day.toMap().value(u"label"_s).toString());
        }

        for (int tab = 0; tab < 7; ++tab) {
            if (tab == 5)
                QVERIFY(isShown(f.historyPane()->findChild<QObject*>(u"chart"_s)));
            else
                f.pane(tab);
            checkLanguage(window, data);
        }
        QVERIFY(window->title().startsWith(u'['));

        QObject* historyPane = f.historyPane();
        emitSignal(historyPane->findChild<QObject*>(u"clearHistory"_s), "clicked");
        QTRY_VERIFY(historyPane->findChild<QObject*>(u"clearConfirmation"_s)->property("opened").toBool());
        checkLanguage(window, data);
        QVERIFY(QMetaObject::invokeMethod(historyPane->findChild<QObject*>(u"clearConfirmation"_s), "close"));

        QObject* smartPausePane = f.pane(2);
        emitSignal(smartPausePane->findChild<QObject*>(u"addApp"_s), "clicked");
        QTRY_VERIFY(isShown(smartPausePane->findChild<QObject*>(u"emptyState"_s)));
        checkLanguage(window, data);
        QVERIFY(QMetaObject::invokeMethod(smartPausePane->findChild<QObject*>(u"addFocusAppSheet"_s), "close"));

        toggle(f.pane(1)->findChild<QObject*>(u"lockScreenOnBreak"_s), true);
        QTRY_VERIFY(f.pane(1)->findChild<QObject*>(u"lockScreenAlert"_s)->property("opened").toBool());
        checkLanguage(window, data);
    }

    // From the range buttons the keys go to the chart, from day to day in it, on to the picker and the button;
    // nothing is cleared before the user confirms, and then the pane shows its empty state.
    void historyPaneWorksByKeysAndClearsOnlyOnceConfirmed()
    {
        Fixture f;
        f.recordBreaks(5, 1);
        QQuickWindow* window = f.open();
        window->requestActivate();
        QObject* pane = f.historyPane();
        QVERIFY(pane);
        auto* model = window->property("historyModel").value<HistoryPaneModel*>();
        auto focusedName = [window] {
            QQuickItem* item = window->activeFocusItem();
            return item ? item->objectName() : QString();
        };
        auto spoken = [window] {
            QAccessibleInterface* focused = QAccessible::queryAccessibleInterface(window->activeFocusItem());
            return focused ? focused->text(QAccessible::Name) : QString();
        };
        auto dayText = [model](qsizetype index) {
            return model->chartEntries().at(index).toMap().value(u"accessibleText"_s).toString();
        };

        qobject_cast<QQuickItem*>(named(pane, u"range7"_s).value(0))->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window, Qt::Key_Tab);
        QCOMPARE(focusedName(), u"range30"_s);
        QTest::keyClick(window, Qt::Key_Space);
        QCOMPARE(model->chartDays(), 30);
        QTest::keyClick(window, Qt::Key_Tab);
        QCOMPARE(spoken(), dayText(29));
        QVERIFY(spoken().contains(u"5 taken, 1 skipped"_s));
        QTest::keyClick(window, Qt::Key_Left);
        QCOMPARE(spoken(), dayText(28));
        QTest::keyClick(window, Qt::Key_Home);
        QCOMPARE(spoken(), dayText(0));
        QTest::keyClick(window, Qt::Key_Tab);
        QCOMPARE(focusedName(), u"retention"_s);
        QTest::keyClick(window, Qt::Key_Tab);
        QCOMPARE(focusedName(), u"clearHistory"_s);

        auto* dialog = pane->findChild<QObject*>(u"clearConfirmation"_s);
        QTest::keyClick(window, Qt::Key_Space);
        QTRY_VERIFY(dialog->property("opened").toBool());
        QCOMPARE(focusedName(), u"cancelClear"_s);
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_VERIFY(!dialog->property("visible").toBool());
        QCOMPARE(f.historyStore.allEvents().size(), 6);

        emitSignal(pane->findChild<QObject*>(u"clearHistory"_s), "clicked");
        QTRY_VERIFY(dialog->property("opened").toBool());
        emitSignal(dialog->findChild<QObject*>(u"confirmClear"_s), "clicked");
        QTRY_VERIFY(isShown(pane->findChild<QObject*>(u"emptyState"_s)));
        QVERIFY(f.historyStore.allEvents().isEmpty());
        QVERIFY(!isShown(pane->findChild<QObject*>(u"chart"_s)));
    }

    void aboutPaneChecksQuietlyEachTimeItIsShown()
    {
        Fixture f;
        f.open();
        int silentChecks = 0;
        f.paneModel()->onSilentCheck = [&silentChecks] { ++silentChecks; };
        f.pane(6);
        f.pane(0);
        QObject* about = f.pane(6);
        QCOMPARE(silentChecks, 2);
        QVERIFY(!isShown(about->findChild<QObject*>(u"updateNudge"_s)));
        QVERIFY(!about->findChild<QObject*>(u"versionText"_s)->property("text").toString().isEmpty());
        QVERIFY(isShown(about->findChild<QObject*>(u"checkForUpdates"_s)));
        QVERIFY(!isShown(about->findChild<QObject*>(u"updatedBySystem"_s)));

        // A distribution's package: the package manager updates Velto, and the pane says so instead.
        Fixture packaged;
        packaged.updates.setUpdatedBySystem(true);
        packaged.open();
        about = packaged.pane(6);
        QVERIFY(!isShown(about->findChild<QObject*>(u"checkForUpdates"_s)));
        QVERIFY(isShown(about->findChild<QObject*>(u"updatedBySystem"_s)));
    }
};

QTEST_MAIN(SettingsWindowControllerTest)
#include "tst_settingswindowcontroller.moc"
