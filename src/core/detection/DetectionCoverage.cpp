#include "DetectionCoverage.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace velto {

namespace {

enum Desktop { Gnome, Kde, OtherDesktop };

Desktop desktopOf(const QString& desktop)
{
    // Derivatives name themselves first and the desktop they build on after, as in "ubuntu:GNOME".
    const QStringList names = desktop.split(u':', Qt::SkipEmptyParts);
    auto named = [&names](QStringView name) {
        return std::any_of(names.cbegin(), names.cend(),
                           [name](const QString& n) { return n.compare(name, Qt::CaseInsensitive) == 0; });
    };
    if (named(u"GNOME"))
        return Gnome;
    if (named(u"KDE"))
        return Kde;
    return OtherDesktop;
}

// By desktop: what is missing, then what would bring it.
constexpr const char* noWindows[] = {
    QT_TRANSLATE_NOOP("DetectionCoverage",
                      "Apps in front or fullscreen cannot be seen on this desktop: enable Velto's GNOME Shell "
                      "extension."),
    QT_TRANSLATE_NOOP("DetectionCoverage",
                      "Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application "
                      "menu so KWin shares its window list."),
    QT_TRANSLATE_NOOP("DetectionCoverage",
                      "Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window "
                      "list."),
};
constexpr const char* x11WindowsOnly[] = {
    QT_TRANSLATE_NOOP("DetectionCoverage",
                      "Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto's GNOME Shell "
                      "extension."),
    QT_TRANSLATE_NOOP("DetectionCoverage",
                      "Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the "
                      "application menu so KWin shares its window list."),
    QT_TRANSLATE_NOOP("DetectionCoverage",
                      "Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no "
                      "window list."),
};

QString translated(const char* text)
{
    return QCoreApplication::translate("DetectionCoverage", text);
}

} // namespace

DetectionCoverage detectionCoverage(const QVariantMap& sources, const QString& desktop)
{
    QStringList missing;
    const QString windows = sources.value(u"windows"_s).toString();
    if (windows == u"none"_s)
        missing.append(translated(noWindows[desktopOf(desktop)]));
    else if (windows == u"xwayland"_s)
        missing.append(translated(x11WindowsOnly[desktopOf(desktop)]));

    const QString typing = sources.value(u"typing"_s).toString();
    if (typing == u"none"_s) {
        missing.append(translated(QT_TRANSLATE_NOOP("DetectionCoverage",
                                                    "Typing cannot be seen on this desktop, so the typing delay has no "
                                                    "effect.")));
    } else if (typing == u"xwayland-xinput2"_s) {
        missing.append(translated(
            QT_TRANSLATE_NOOP("DetectionCoverage", "Only typing into X11 apps can be seen on this desktop.")));
    }

    return {missing.join(u' '), typing == u"input-activity"_s};
}

} // namespace velto
