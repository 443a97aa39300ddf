#pragma once

#include <QtGlobal>

#include <iterator>

namespace velto {

// The texts of the desktop entry and the AppStream file, which the build writes out in every language Velto
// speaks. Each must stand exactly as it does in those files' templates, on a line of its own.
struct PackageText {
    const char* context;
    struct {
        const char* source;
        const char* comment; // tells translators where the text stands; also tells texts apart
    } text;
};

inline constexpr PackageText packageTexts[] = {
    {"DesktopEntry",
     QT_TRANSLATE_NOOP3("DesktopEntry", "Break Reminder", "the kind of application, in application menus")},
    {"DesktopEntry", QT_TRANSLATE_NOOP3("DesktopEntry", "Reminds you to rest your eyes and take breaks",
                                        "one line under the name in application menus and software centres")},
    {"DesktopEntry",
     QT_TRANSLATE_NOOP3("DesktopEntry", "break;rest;eyes;pause;timer;health;posture;",
                        "search words for application menus: keep the semicolons, add your language's synonyms")},
    {"DesktopEntry",
     QT_TRANSLATE_NOOP3("DesktopEntry", "Take a Break", "an action on the application's icon: start a break now")},
    {"DesktopEntry", QT_TRANSLATE_NOOP3("DesktopEntry", "Pause for 15 Minutes", "an action on the application's icon")},
    {"AppStream",
     QT_TRANSLATE_NOOP3(
         "AppStream",
         "Velto lives in the system tray and counts down your work time. A minute before a break it shows a small "
         "card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, "
         "a calm break screen covers your displays and counts down a short break, or a long one every few breaks.",
         "software centre description, first paragraph")},
    {"AppStream",
     QT_TRANSLATE_NOOP3(
         "AppStream",
         "Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video "
         "plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and "
         "while you are away. Office hours limit reminders to the days and times you work.",
         "software centre description, second paragraph")},
    {"AppStream",
     QT_TRANSLATE_NOOP3(
         "AppStream",
         "Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.",
         "software centre description; the commands stay in English")},
    {"AppStream",
     QT_TRANSLATE_NOOP3("AppStream", "A short break covers the screen and counts down", "screenshot caption")},
    {"AppStream",
     QT_TRANSLATE_NOOP3("AppStream", "A minute before a break, a card offers to take it now, put it off or skip it",
                        "screenshot caption")},
    {"AppStream", QT_TRANSLATE_NOOP3("AppStream", "The tray menu", "screenshot caption")},
    {"AppStream", QT_TRANSLATE_NOOP3("AppStream", "Smart Pause holds breaks during calls, videos, recordings and games",
                                     "screenshot caption")},
    {"AppStream",
     QT_TRANSLATE_NOOP3("AppStream", "On GNOME without a tray, Velto shows in the top bar", "screenshot caption")},
    {"AppStream", QT_TRANSLATE_NOOP3("AppStream", "The first release.", "release notes")},
    {"AppStream",
     QT_TRANSLATE_NOOP3("AppStream",
                        "A tray countdown, a pre-break card, and short and long break screens on every display",
                        "release notes")},
    {"AppStream",
     QT_TRANSLATE_NOOP3("AppStream",
                        "Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on "
                        "GNOME through Velto's own Shell extension",
                        "release notes")},
    {"AppStream",
     QT_TRANSLATE_NOOP3("AppStream", "Office hours, presets, chimes, screen lock, launch at login and a command line",
                        "release notes")},
};

} // namespace velto
