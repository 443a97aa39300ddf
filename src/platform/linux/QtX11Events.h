#pragma once

#include <QAbstractNativeEventFilter>

#include <functional>
#include <xcb/xcb.h>

namespace velto {

// Qt's own X connection when the application runs on X11; null otherwise (Wayland, offscreen, no application).
xcb_connection_t* qtX11Connection();

// Hands each event of one type that arrives on Qt's X connection to onEvent, for as long as it exists; the
// events go on to Qt as well.
class QtX11EventFilter final : public QAbstractNativeEventFilter {
public:
    QtX11EventFilter(uint8_t responseType, std::function<void(const xcb_generic_event_t*)> onEvent);
    ~QtX11EventFilter() override;

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    uint8_t m_responseType;
    std::function<void(const xcb_generic_event_t*)> m_onEvent;
};

} // namespace velto
