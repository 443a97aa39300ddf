#include "DesktopNotificationPresenter.h"

#include "notification/PreBreakNotificationDisplayModel.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusReply>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {
const QString service = u"org.freedesktop.Notifications"_s;
const QString path = u"/org/freedesktop/Notifications"_s;
const QString interface = u"org.freedesktop.Notifications"_s;
constexpr int callTimeout = 1000;
// The server's reason when the user closed it (1 is expiry, 3 our own CloseNotification).
constexpr quint32 dismissedByUser = 2;
} // namespace

DesktopNotificationPresenter::DesktopNotificationPresenter(QDBusConnection bus)
    : m_bus(std::move(bus))
{}

std::unique_ptr<DesktopNotificationPresenter> DesktopNotificationPresenter::create(QDBusConnection bus)
{
    if (!bus.isConnected())
        return nullptr;
    const QDBusMessage capabilities = bus.call(
        QDBusMessage::createMethodCall(service, path, interface, u"GetCapabilities"_s), QDBus::Block, callTimeout);
    if (capabilities.type() != QDBusMessage::ReplyMessage ||
        !capabilities.arguments().value(0).toStringList().contains(u"actions"_s))
        return nullptr;
    std::unique_ptr<DesktopNotificationPresenter> presenter(new DesktopNotificationPresenter(bus));
    bus.connect(service, path, interface, u"ActionInvoked"_s, presenter.get(), SLOT(actionInvoked(quint32, QString)));
    bus.connect(service, path, interface, u"NotificationClosed"_s, presenter.get(), SLOT(closed(quint32, quint32)));
    return presenter;
}

void DesktopNotificationPresenter::show(std::shared_ptr<PreBreakNotificationDisplayModel> displayModel,
                                        std::function<void()> onBreakNow, std::function<void(double)> onPause,
                                        std::function<void()> onSkip, std::function<void()> onDismiss)
{
    if (!displayModel)
        return;
    m_model = std::move(displayModel);
    m_onBreakNow = std::move(onBreakNow);
    m_onPause = std::move(onPause);
    m_onSkip = std::move(onSkip);
    m_onDismiss = std::move(onDismiss);
    const QStringList actions = {
        u"break-now"_s, QCoreApplication::translate("InAppNotificationView", "Break now"),
        u"pause-60"_s,  QCoreApplication::translate("InAppNotificationView", "1 min"),
        u"pause-180"_s, QCoreApplication::translate("InAppNotificationView", "3 min"),
        u"skip"_s,      QCoreApplication::translate("InAppNotificationView", "Skip"),
    };
    const QVariantMap hints = {
        {u"desktop-entry"_s, u"com.velto.app"_s},
        {u"urgency"_s, QVariant::fromValue(uchar(1))}, // normal
        {u"category"_s, u"presence"_s},
    };
    auto notify = QDBusMessage::createMethodCall(service, path, interface, u"Notify"_s);
    notify << u"Velto"_s         // app_name
           << m_id               // replaces_id
           << u"com.velto.app"_s // app_icon
           << m_model->title()   // summary
           << m_model->message() // body
           << actions            // actions
           << hints              // hints
           << qint32(-1);        // expire_timeout: the server's
    const QDBusReply<quint32> reply = m_bus.call(notify, QDBus::Block, callTimeout);
    m_id = reply.isValid() ? reply.value() : 0;
}

void DesktopNotificationPresenter::hide()
{
    if (m_id == 0)
        return;
    auto close = QDBusMessage::createMethodCall(service, path, interface, u"CloseNotification"_s);
    close << std::exchange(m_id, 0); // id
    m_bus.asyncCall(close);
    m_model.reset();
}

void DesktopNotificationPresenter::actionInvoked(quint32 id, const QString& action)
{
    if (id == 0 || id != m_id)
        return;
    m_id = 0;
    if (action == u"break-now"_s && m_onBreakNow)
        m_onBreakNow();
    else if (action == u"pause-60"_s && m_onPause)
        m_onPause(60);
    else if (action == u"pause-180"_s && m_onPause)
        m_onPause(180);
    else if (action == u"skip"_s && m_onSkip)
        m_onSkip();
}

void DesktopNotificationPresenter::closed(quint32 id, quint32 reason)
{
    if (id == 0 || id != m_id)
        return;
    m_id = 0;
    m_model.reset();
    if (reason == dismissedByUser && m_onDismiss)
        m_onDismiss();
}

} // namespace velto
