<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Break</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Break now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip break</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
