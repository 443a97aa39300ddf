#include "LoopbackHttpServer.h"
#include "UpdateWindow.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QStandardPaths>
#include <QTest>
#include <QTextBrowser>

using namespace Qt::Literals::StringLiterals;
using namespace velto;

namespace {

AppcastItem releaseWithNotes(const QUrl& notes)
{
    AppcastItem item;
    item.version = u"120"_s;
    item.shortVersionString = u"1.2"_s;
    item.releaseNotesUrl = notes;
    item.enclosureUrl = QUrl(u"https://velto.app/dl/velto-1.2.tar.gz"_s);
    return item;
}

QAbstractButton* buttonTitled(QWidget* window, const QString& title)
{
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>())
        if (button->text() == title)
            return button;
    return nullptr;
}

QString allLabelText(QWidget* window)
{
    QStringList texts;
    for (QLabel* label : window->findChildren<QLabel*>())
        texts.append(label->text());
    return texts.join(u'\n');
}

} // namespace

class TestUpdateWindow : public QObject {
    Q_OBJECT
    LoopbackHttpServer m_server;

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(m_server.listen());
        m_server.route(u"/notes.html"_s,
                       {200, QByteArray("<h3>What's new</h3><ul><li>Breaks wait for the end of a call.</li>"
                                        "<li>Fixed the tray icon on dark panels.</li></ul>")});
        m_server.route(u"/huge-notes.html"_s, {200, QByteArray(64 * 1024, 'x')});
        m_server.route(u"/notes-elsewhere.html"_s, {301, {}, false, QByteArray("http://velto.app/notes.html")});
    }

    // Each button answers once with its choice, and closing the window answers "Remind Me Later".
    void buttonsAnswerWithTheirChoice_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<UpdateChoice>("choice");
        QTest::newRow("skip") << u"Skip This Version"_s << UpdateChoice::Skip;
        QTest::newRow("later") << u"Remind Me Later"_s << UpdateChoice::Dismiss;
        QTest::newRow("download") << u"Download"_s << UpdateChoice::Install;
        QTest::newRow("window closed") << QString() << UpdateChoice::Dismiss;
    }
    void buttonsAnswerWithTheirChoice()
    {
        QFETCH(QString, button);
        QFETCH(UpdateChoice, choice);
        UpdateWindowDriver driver(u"1.0"_s, 512 * 1024, std::chrono::seconds(30), QStringLiteral(VELTO_FETCH_PROGRAM));
        QList<UpdateChoice> answers;
        driver.showUpdateFound(releaseWithNotes(QUrl()), [&](UpdateChoice c) { answers.append(c); });
        QPointer<QDialog> window = driver.currentWindow();
        QVERIFY(window && window->isVisible());
        QVERIFY(allLabelText(window).contains(u"Velto 1.2 is available; you have 1.0"_s));
        // No notes link, no notes area.
        QVERIFY(!window->findChild<QTextBrowser*>());
        if (button.isEmpty()) {
            window->close();
        } else {
            QAbstractButton* target = buttonTitled(window, button);
            QVERIFY(target);
            target->click();
        }
        QTRY_VERIFY(!window);                           // closed windows are deleted
        QCOMPARE(answers, QList<UpdateChoice>{choice}); // once, even after the close that follows
    }

    // Release notes linked from the feed are fetched and shown; a failure says so instead.
    void showsReleaseNotes()
    {
        UpdateWindowDriver driver(u"1.0"_s, 512 * 1024, std::chrono::seconds(30), QStringLiteral(VELTO_FETCH_PROGRAM));
        driver.showUpdateFound(releaseWithNotes(m_server.url(u"/notes.html"_s)), [](UpdateChoice) {});
        auto* notes = driver.currentWindow()->findChild<QTextBrowser*>(u"releaseNotes"_s);
        QVERIFY(notes);
        QTRY_VERIFY(notes->toPlainText().contains(u"Breaks wait for the end of a call."_s));

        const QString screenshot = QDir::currentPath() + u"/update-found.png"_s;
        driver.currentWindow()->resize(480, 360);
        QVERIFY(driver.currentWindow()->grab().save(screenshot));
        qInfo("window rendered to %s", qPrintable(screenshot));
    }

    void releaseNotesFailures_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("404") << u"/missing.html"_s;
        QTest::newRow("too large") << u"/huge-notes.html"_s;
        QTest::newRow("redirect off the machine") << u"/notes-elsewhere.html"_s;
    }
    void releaseNotesFailures()
    {
        QFETCH(QString, path);
        UpdateWindowDriver driver(u"1.0"_s, 16 * 1024, std::chrono::seconds(30), QStringLiteral(VELTO_FETCH_PROGRAM));
        driver.showUpdateFound(releaseWithNotes(m_server.url(path)), [](UpdateChoice) {});
        auto* notes = driver.currentWindow()->findChild<QTextBrowser*>(u"releaseNotes"_s);
        QVERIFY(notes);
        QTRY_VERIFY(notes->placeholderText().contains(u"could not be loaded"_s));
    }

    // Up to date and failures get a message window; a newer answer replaces the window before it.
    void messagesReplaceTheWindow()
    {
        UpdateWindowDriver driver(u"1.0"_s, 512 * 1024, std::chrono::seconds(30), QStringLiteral(VELTO_FETCH_PROGRAM));
        QList<UpdateChoice> answers;
        driver.showUpdateFound(releaseWithNotes(QUrl()), [&](UpdateChoice c) { answers.append(c); });
        QPointer<QDialog> found = driver.currentWindow();

        UpdateError upToDate{UpdaterErrors::domain.toString(),
                             UpdaterErrors::NoUpdateFound,
                             {{UpdaterErrors::noUpdateFoundReasonKey.toString(), 1}},
                             {}};
        driver.showUpdateNotFound(upToDate);
        QVERIFY(!found);
        QCOMPARE(answers, QList<UpdateChoice>{UpdateChoice::Dismiss});
        QVERIFY(allLabelText(driver.currentWindow()).contains(u"Velto 1.0 is the newest version available."_s));

        driver.showUpdaterError({UpdaterErrors::domain.toString(),
                                 UpdaterErrors::TimedOut,
                                 {},
                                 u"The update server did not answer in time."_s});
        QVERIFY(allLabelText(driver.currentWindow()).contains(u"The update server did not answer in time."_s));
    }
};

QTEST_MAIN(TestUpdateWindow)
#include "tst_updatewindow.moc"
