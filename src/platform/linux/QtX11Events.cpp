#include "QtX11Events.h"

#include <QGuiApplication>

using namespace Qt::Literals::StringLiterals;

namespace velto {

xcb_connection_t* qtX11Connection()
{
    auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (!app || QGuiApplication::platformName() != u"xcb"_s)
        return nullptr;
    auto* x11 = app->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

QtX11EventFilter::QtX11EventFilter(uint8_t responseType, std::function<void(const xcb_generic_event_t*)> onEvent)
    : m_responseType(responseType)
    , m_onEvent(std::move(onEvent))
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

QtX11EventFilter::~QtX11EventFilter()
{
    if (QCoreApplication::instance())
        QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool QtX11EventFilter::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & 0x7f) == m_responseType)
        m_onEvent(event);
    return false;
}

} // namespace velto
