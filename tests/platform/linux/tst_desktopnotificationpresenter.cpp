// The card as a desktop notification, against a real notification server (mako) inside headless sway, started
// around this test by run_in_compositor.
#include "DesktopNotificationPresenter.h"
#include "notification/PreBreakNotificationDisplayModel.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

bool makoctl(const QStringList& arguments, QByteArray* out = nullptr)
{
    QProcess process;
    process.start(u"makoctl"_s, arguments);
    const bool ok = process.waitForFinished(5000) && process.exitCode() == 0;
    if (out)
        *out = process.readAllStandardOutput();
    return ok;
}

// The summaries of the notifications the server shows now.
QStringList shownSummaries()
{
    QByteArray json;
    makoctl({u"list"_s}, &json);
    QStringList summaries;
    for (const QJsonValue& group : QJsonDocument::fromJson(json).object().value(u"data"_s).toArray()) {
        for (const QJsonValue& notification : group.toArray())
            summaries.append(notification.toObject().value(u"summary"_s).toObject().value(u"data"_s).toString());
    }
    return summaries;
}

} // namespace

class TestDesktopNotificationPresenter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (qEnvironmentVariable("VELTO_TEST_COMPOSITOR") != u"sway"_s ||
            QStandardPaths::findExecutable(u"mako"_s).isEmpty())
            QSKIP("runs inside headless sway (run_in_compositor), with mako installed");
        // No server yet: no presenter, and the card is shown instead.
        QVERIFY(!DesktopNotificationPresenter::create(QDBusConnection::sessionBus()));
        m_server.start(u"mako"_s, {});
        QVERIFY(m_server.waitForStarted(5000));
        QTRY_VERIFY(QDBusConnection::sessionBus().interface()->isServiceRegistered(u"org.freedesktop.Notifications"_s));
    }

    void cleanupTestCase()
    {
        m_server.terminate();
        m_server.waitForFinished(3000);
    }

    // The card's four actions reach its callbacks; the user's dismissal is the close button's; our own hide
    // takes it away without telling anyone.
    void actionsAndDismissalReachTheCallbacks()
    {
        auto presenter = DesktopNotificationPresenter::create(QDBusConnection::sessionBus());
        QVERIFY(presenter);
        QStringList calls;
        const auto show = [&] {
            presenter->show(
                std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Short, 60),
                [&] { calls.append(u"breakNow"_s); }, [&](double s) { calls.append(u"pause %1"_s.arg(s)); },
                [&] { calls.append(u"skip"_s); }, [&] { calls.append(u"dismiss"_s); });
            return presenter->shownId();
        };
        const QString title = PreBreakNotificationDisplayModel::titleFor(BreakType::Short);
        for (const auto& [action, expected] :
             {std::pair{u"pause-180"_s, u"pause 180"_s}, std::pair{u"break-now"_s, u"breakNow"_s},
              std::pair{u"skip"_s, u"skip"_s}}) {
            const quint32 id = show();
            QVERIFY(id != 0);
            QTRY_COMPARE(shownSummaries(), QStringList{title});
            QVERIFY(makoctl({u"invoke"_s, u"-n"_s, QString::number(id), action}));
            QTRY_COMPARE(calls, QStringList{expected});
            calls.clear();
            makoctl({u"dismiss"_s, u"-a"_s});
        }

        const quint32 id = show();
        QVERIFY(makoctl({u"dismiss"_s, u"-n"_s, QString::number(id)}));
        QTRY_COMPARE(calls, QStringList{u"dismiss"_s});

        calls.clear();
        show();
        QTRY_COMPARE(shownSummaries(), QStringList{title});
        presenter->hide();
        QTRY_VERIFY(shownSummaries().isEmpty());
        QTest::qWait(200);
        QVERIFY(calls.isEmpty());
    }

private:
    QProcess m_server;
};

QTEST_GUILESS_MAIN(TestDesktopNotificationPresenter)
#include "tst_desktopnotificationpresenter.moc"
