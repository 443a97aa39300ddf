#include "AppDelegate.h"
#include "BreakWindow.h"
#include "VeltoVersion.h"

#include <QApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

// Without any display Velto still keeps its schedule; Qt would otherwise abort at start. With a display that
// turns out unreachable, Qt tries the offscreen platform after the usual one.
void choosePlatform()
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
        std::fputs("velto: no display found; running without a tray icon\n", stderr);
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return;
    }
    const bool wayland =
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && qEnvironmentVariable("XDG_SESSION_TYPE") == u"wayland"_s;
    qputenv("QT_QPA_PLATFORM", wayland ? "wayland;xcb;offscreen" : "xcb;offscreen");
}

} // namespace

int main(int argc, char* argv[])
{
    choosePlatform();
    QApplication::setApplicationName(u"velto"_s);
    QApplication::setApplicationDisplayName(u"Velto"_s);
    QApplication::setApplicationVersion(QString::fromLatin1(velto::versionString));
    QApplication::setDesktopFileName(u"velto"_s);
    // Velto's windows draw without a GPU driver; see BreakWindow.
    velto::BreakWindow::useSoftwareRendering();
    QApplication application(argc, argv);
    // Closing a settings window or a break overlay must never end the process.
    QApplication::setQuitOnLastWindowClosed(false);

    velto::AppDelegate delegate(velto::AppServices::system());
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
