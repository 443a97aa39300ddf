<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Velto ist ein kleiner Begleiter in der Systemleiste für nachhaltige Konzentration und erholsame Pausen.</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>Website %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>Feedback an %1 senden</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>Version</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>Eine neuere Version ist verfügbar</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>Update ansehen</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>Aktualisierungen kommen über die Paketverwaltung deines Systems.</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>Fokus-App hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>Apps suchen …</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Apps suchen</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>Laufende Apps</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>Pausen aussetzen</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>App hinzufügen</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Velto sitzt in der Systemleiste und zählt deine Arbeitszeit herunter. Eine Minute vor einer Pause erscheint eine kleine Karte, mit der du die Pause sofort beginnen, um eine oder drei Minuten verschieben oder überspringen kannst. Ist die Zeit um, legt sich ein ruhiger Pausenbildschirm über deine Bildschirme und zählt eine kurze Pause herunter – oder alle paar Pausen eine lange.</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>Smart Pause hält den Countdown an, solange eine Pause unpassend wäre: während eines Anrufs oder Meetings, während ein Video läuft, während der Bildschirm aufgezeichnet wird, in einem Spiel im Vollbild, in einer Anwendung, auf die du dich konzentrieren willst, und während du nicht am Platz bist. Mit Arbeitszeiten erinnert Velto dich nur an den Tagen und zu den Zeiten, an denen du arbeitest.</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>Velto lässt sich auch aus einem Terminal oder Skript steuern: velto status, velto break, velto pause und mehr.</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>Eine kurze Pause füllt den Bildschirm und zählt herunter</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>Eine Minute vor einer Pause bietet eine Karte an, sie sofort zu beginnen, zu verschieben oder zu überspringen</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>Das Menü in der Systemleiste</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>Smart Pause setzt Pausen bei Anrufen, Videos, Aufnahmen und Spielen aus</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>Unter GNOME ohne Systemleiste erscheint Velto in der oberen Leiste</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>Die erste Veröffentlichung.</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>Ein Countdown in der Systemleiste, eine Karte vor jeder Pause sowie Bildschirme für kurze und lange Pausen auf jedem Display</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>Smart Pause unter X11, unter Wayland (sway und andere wlroots-Compositoren, KDE Plasma) und unter GNOME über Veltos eigene Shell-Erweiterung</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>Arbeitszeiten, Voreinstellungen, Signaltöne, Bildschirmsperre, Start bei der Anmeldung und eine Befehlszeile</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>Gestalte deinen Pausenbildschirm so, dass sich jede Pause bewusst anfühlt.</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The kind of background: paper, gradient…</extracomment>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>The colours of the gradient background.</extracomment>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>Dim level</source>
        <extracomment>How much the break screen&apos;s background is darkened.</extracomment>
        <translation>Abdunklung</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>Pause anzeigen auf</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>Deine Nachrichten:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>Nachricht %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>Nachricht %1 entfernen</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>Papier hell</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Farbverlauf</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>Papier dunkel</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>Eigenes Bild</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>System-Hintergrundbild</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>Entspanne deine Augen und atme tief durch</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>Schau auf etwas, das sechs Meter entfernt ist</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>Blinzle langsam und entspanne deine Augen</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>Dehne Schultern und Nacken</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>Du machst das super! Bleib bei deinen gesunden Gewohnheiten</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Schau weg – aber nicht aufs Handy</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>Deine Netzhaut hat angerufen</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>Augen machen brrrr</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>Mit den Augen verhandelt man nicht</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>Starr in die Ferne wie ein Dichter</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Dein Bürostuhl schaut dich schon schief an</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>Der Boden wartet auf dich</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>Die Schwerkraft will sehen, wie du dich streckst</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>Das Abenteuer wartet (in deinem Wohnzimmer)</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>Zeit, mal wieder Gras anzufassen (wörtlich)</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>Ausgewogen</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>Tiefer Fokus</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>Augenschonend</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>Benutzerdefiniert</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>Alle Bildschirme</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>Nur Hauptbildschirm</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>Pause beenden</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>Auf diesem Desktop zählt jede Eingabe über Tastatur oder Zeigegerät.</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>Bring Konzentration und Erholung ins Gleichgewicht – mit kurzen und langen Pausen, die zu dir passen.</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>Kurze Pausen</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>Arbeitsintervall</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>Pausendauer</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>Lange Pausen</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>Lange Pausen aktivieren</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>Häufigkeit</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>Pausenverhalten</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>Strenge beim Überspringen</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>Vorzeitiges Beenden erlauben</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>Tippverzögerung</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>Keine Pausen während des Tippens</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>Hält den Arbeitstimer an, während du tippst, damit dich eine Pause seltener unterbricht.</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Bildschirmsperre</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>Bildschirm bei Pausenbeginn sperren</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>Sperrt deine Sitzung zu Beginn einer Pause mit der Bildschirmsperre deines Desktops.</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>Keine Bildschirmsperre gefunden</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Velto hat keine Möglichkeit gefunden, diese Sitzung zu sperren. Installiere oder aktiviere eine Bildschirmsperre (zum Beispiel die deines Desktops, light-locker oder xsecurelock) und schalte diese Option dann erneut ein.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>Countdown, Status und heutige Pausen anzeigen</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>Jetzt eine Pause machen (mit --long eine lange Pause)</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>Erinnerungen für MINUTES Minuten pausieren (ohne Angabe %1)</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>Pausieren beenden</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>Die nächste Pause überspringen</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>Erinnerungen einschalten</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>Erinnerungen ausschalten</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>Einstellungsfenster öffnen</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>Nach einer neueren Version suchen und das Ergebnis melden</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Velto beenden</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>Anzeigen, ob Veltos GNOME-Shell-Erweiterung installiert, aktiviert und aktiv ist, oder sie aktivieren</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shell hat nicht rechtzeitig geantwortet</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>in dieser Sitzung gibt es keine GNOME Shell</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>Veltos GNOME-Shell-Erweiterung ist nicht installiert (sie ist im Paket von Velto enthalten)</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>die GNOME-Shell-Erweiterung konnte nicht aktiviert werden: </translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>Aktivieren mit: velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>die Erweiterung ist in GNOME Shell weiterhin ausgeschaltet</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shell konnte die Erweiterung nicht starten; das Protokoll nennt eventuell den Grund</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>unbekannte Option „%1“</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>unbekannter Befehl „%1“</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>gnome-extension erwartet „status“ oder „enable“</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>unbekannter gnome-extension-Befehl „%1“</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>nur eine der Optionen --json und --csv angeben</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>--days braucht eine Anzahl von Tagen</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days muss eine ganze Zahl von 1 bis %1 sein, nicht „%2“</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES muss eine ganze Zahl von 1 bis %1 sein, nicht „%2“</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>unbekannte Option „%1“ für %2</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>unerwartetes Argument „%1“ für %2</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>Die Pausen der letzten N Tage zeigen (ohne Angabe %1), eine Zeile pro Tag oder jedes Ereignis</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>Aufruf: velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>Ohne Befehl wird Velto gestartet; läuft Velto bereits, werden stattdessen seine Einstellungen geöffnet.</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>Befehle für das laufende Velto:</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Befehle, die mit oder ohne laufendes Velto funktionieren:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Diese Hilfe anzeigen</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Version anzeigen</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>Exit-Status: 0 bei Erfolg, 1 wenn Velto nicht läuft oder nicht antwortet (oder die Update-Suche
fehlgeschlagen ist, es keine GNOME Shell oder Erweiterung gibt oder das Aktivieren fehlschlug), 2 bei ungültigen Argumenten.</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Velto läuft nicht</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Velto hat nicht innerhalb von %1 Sekunden geantwortet</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>kein Sitzungsbus, daher ist kein laufendes Velto erreichbar</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>das Einstellungsfenster kann in dieser Sitzung nicht angezeigt werden</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>für diesen Befehl gibt es nichts zu senden</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Velto läuft bereits; das Einstellungsfenster ist geöffnet.</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Velto läuft bereits.</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Restzeit:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>Pausengrund:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>Pausen heute:</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>Erinnerungen:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Gemacht</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Übersprungen</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>Verschoben</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>Längste Zeit</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>Smart Pause</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>Keine Ereignisse in diesen Tagen aufgezeichnet.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Break Reminder</source>
        <comment>the kind of application, in application menus</comment>
        <translation>Pausenerinnerung</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>Erinnert dich daran, deine Augen auszuruhen und Pausen zu machen</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>Pause;Erholung;Ruhe;Augen;pausieren;Timer;Gesundheit;Haltung;Bildschirmpause;Erinnerung;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>Pause machen</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>15 Minuten pausieren</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Apps im Vordergrund oder im Vollbild können auf diesem Desktop nicht erkannt werden: Aktiviere Veltos GNOME-Shell-Erweiterung.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Apps im Vordergrund oder im Vollbild können auf diesem Desktop nicht erkannt werden: Starte Velto über das Anwendungsmenü, damit KWin seine Fensterliste freigibt.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>Apps im Vordergrund oder im Vollbild können auf diesem Desktop nicht erkannt werden, da sein Compositor keine Fensterliste bereitstellt.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Auf diesem Desktop können nur X11-Apps im Vordergrund oder im Vollbild erkannt werden: Aktiviere Veltos GNOME-Shell-Erweiterung.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Auf diesem Desktop können nur X11-Apps im Vordergrund oder im Vollbild erkannt werden: Starte Velto über das Anwendungsmenü, damit KWin seine Fensterliste freigibt.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>Auf diesem Desktop können nur X11-Apps im Vordergrund oder im Vollbild erkannt werden, da sein Compositor keine Fensterliste bereitstellt.</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>Tippen kann auf diesem Desktop nicht erkannt werden, daher hat die Tippverzögerung keine Wirkung.</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>Auf diesem Desktop kann nur Tippen in X11-Apps erkannt werden.</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>Vordergrund &amp; Vollbild</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>Im Vordergrund</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>Wenn geöffnet</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>Wenn im Vordergrund &amp; Vollbild</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>Wenn im Vordergrund</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>Pausen aussetzen für %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Steuere das grundlegende Verhalten von Velto und wie es sich in deinen Arbeitsablauf einfügt.</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>App-Einstellungen</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Velto aktivieren</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>Timer in der Systemleiste anzeigen</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Zeitplan</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>Arbeitszeiten verwenden</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>Aktive Tage</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Auf Standardwerte zurücksetzen</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>GNOME-Erweiterung: nicht installiert</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>GNOME-Erweiterung: installiert, nicht aktiviert</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>GNOME-Erweiterung: aktiviert, aktiv nach der nächsten Anmeldung</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>GNOME-Erweiterung: aktiviert, aber GNOME Shell konnte sie nicht starten</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>GNOME-Erweiterung: aktiv</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Bis dahin kann Smart Pause unter GNOME nicht erkennen, welches Fenster im Vordergrund ist.</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Ohne sie kann Smart Pause unter GNOME nicht erkennen, welches Fenster im Vordergrund ist.</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>Mitternacht</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Polarlicht</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Ozean</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Sonnenuntergang</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Wald</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>Kosmos</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Schlicht</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rosé</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>Wärme</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Schiefer</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavendel</translation>
    </message>
</context>
<context>
    <name>HistoryPane</name>
    <message>
        <source>See how your breaks went, day by day.</source>
        <translation>So liefen deine Pausen, Tag für Tag.</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>Verlauf wird geladen</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Noch kein Verlauf</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>Jede Pause, die du machst oder überspringst, erscheint hier.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>Pausen gemacht</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>Übersprungen</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>Längste Zeit ohne Pause</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>Von Smart Pause angehalten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>Pausen pro Tag</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>Gemacht</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>Serie</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n Tag in Folge mit allen Pausen</numerusform>
            <numerusform>%n Tage in Folge mit allen Pausen</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>Noch keine Serie: Mach an einem Tag alle Pausen, um eine zu beginnen.</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>Diese Woche</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>Alle Pausen gemacht</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>Pause übersprungen</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>Keine Pausen</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>Verlauf aufbewahren für</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>Ältere Tage werden entfernt. Der Verlauf verlässt diesen Computer nie.</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Verlauf löschen …</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>Pausenverlauf löschen?</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>Alle aufgezeichneten Pausen, Unterbrechungen und Smart-Pause-Zeiten werden entfernt. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Verlauf löschen</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>NÄCHSTE PAUSE</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>PAUSE IN</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>Jetzt Pause</translation>
    </message>
    <message>
        <source>1 min</source>
        <extracomment>A small button of the card: put the break off by one minute. Keep it short.</extracomment>
        <translation>1 Min.</translation>
    </message>
    <message>
        <source>3 min</source>
        <extracomment>A small button of the card: put the break off by three minutes. Keep it short.</extracomment>
        <translation>3 Min.</translation>
    </message>
    <message>
        <source>Skip</source>
        <extracomment>A small button of the card: skip the coming break.</extracomment>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>Pause überspringen</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>Überspringt diese Pause und führt zurück zur Arbeit, sofern deine Einstellungen zum Überspringen es erlauben.</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>Zum Schließen wischen</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>%1 konnte nicht entfernt werden: %2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>Der Autostart-Ordner %1 konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>Start bei der Anmeldung konnte nicht geändert werden: %1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>Lege fest, wie Velto dich auf dem Laufenden hält, ohne zu stören.</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>Vorwarnung</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>Vor Pausen benachrichtigen</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>Benachrichtigung anzeigen</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>Signalton bei Pausenbeginn</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>Signalton bei Pausenende</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>Lautstärke des Signaltons</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>Pausiert · weiter in %n Min.</numerusform>
            <numerusform>Pausiert · weiter in %n Min.</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>Außerhalb der Arbeitszeit</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>Pausen deaktiviert</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Smart Pause aktiv</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>Deine Änderungen konnten nicht gespeichert werden. Sie gelten, bis Velto beendet wird.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>Pausen</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>Smart Pause</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Velto-Einstellungen</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>Liste der Einstellungskategorien ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>Einstellungskategorien</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>Verlauf</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>Flexibel</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Sanft</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>Konsequent</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>%1 ist aktiv</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>%1 ist geöffnet</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>Fokus-App aktiv</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>Lass Velto sich an deine Tätigkeit anpassen und Pausen aussetzen, wenn es darauf ankommt.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>Aktivitätserkennung</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>Bei Meetings oder Anrufen pausieren</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>Pausiert, wenn du vermutlich in einem Anruf oder Meeting bist – nicht, wenn du nur im Web surfst.</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>Bei Videowiedergabe pausieren</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>Videoerkennung</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>„Nur im Vordergrund“ prüft nur die aktive App. „Auch im Hintergrund“ pausiert zusätzlich, wenn ein unterstützter Player hinter einem anderen Fenster abspielt.</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>Bei Bildschirmaufnahme pausieren</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>Bei Spielen im Vollbild pausieren</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>Inaktivitätserkennung</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>Inaktivität erkennen</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>Timer zurücksetzen nach Inaktivität von</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>Abklingzeit</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>Verzögerung nach Ende der Aktivität</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>So lange wird nach dem Wegfall eines Smart-Pause-Grundes gewartet, bevor dein Arbeitstimer wieder herunterzählt.</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>Fokus-Apps</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>Pausen aussetzen, wenn eine bestimmte App aktiv oder geöffnet ist. Für jede App lässt sich wählen: nur im Vordergrund, im Vordergrund und im Vollbild oder immer, solange sie läuft.</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>Keine Fokus-Apps eingerichtet</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>App hinzufügen …</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>kein Sitzungsbus; Velto läuft, kann aber nicht sicherstellen, dass kein anderes Velto läuft</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>kein Display gefunden; Velto läuft ohne Symbol in der Systemleiste</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, Stunde</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, Minute</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>Kein aktiver Timer</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>Noch %1</translation>
    </message>
    <message>
        <source>Velto, %1</source>
        <extracomment>What a screen reader says for the tray icon; %1 is the status line, such as &quot;Until next break&quot;.</extracomment>
        <translation>Velto, %1</translation>
    </message>
    <message>
        <source>%1h</source>
        <extracomment>Hours left, drawn inside the small tray icon from 100 minutes on: keep it to the number and a letter.</extracomment>
        <translation>%1h</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n Stunde</numerusform>
            <numerusform>%n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes together, such as &quot;2 h 5 min&quot;: %1 is the hours, %2 the minutes.</extracomment>
        <translation>%1 und %2</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Ready</source>
        <extracomment>Nothing is counted yet; shown in the tray menu and as the tray&apos;s title.</extracomment>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Until next break</source>
        <extracomment>The tray menu&apos;s status line after the countdown, as in &quot;24:59 Until next break&quot;.</extracomment>
        <translation>Bis zur nächsten Pause</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>Pause läuft</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>%n Pause heute</numerusform>
            <numerusform>%n Pausen heute</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Velto deaktivieren</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Velto aktivieren</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>Pause machen</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>Pause beenden</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>Lange Pause machen</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>15 Minuten pausieren</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Velto beenden</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Es gibt eine neuere Version von Velto, sie erfordert aber ein neueres System als dieses.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 ist die neueste verfügbare Version.</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>Velto ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Velto konnte nicht nach Updates suchen</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>Nur im Vordergrund</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>Auch im Hintergrund</translation>
    </message>
</context>
<context>
    <name>Weekday</name>
    <message>
        <source>Sun</source>
        <extracomment>Sunday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>So</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Monday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Mo</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Tuesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Di</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Wednesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Thursday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Do</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Saturday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Sa</translation>
    </message>
</context>
<context>
    <name>velto::ActivityDetector</name>
    <message>
        <source>In %1</source>
        <extracomment>Why breaks wait: the user is in a call; %1 is the meeting application&apos;s name, such as Zoom.</extracomment>
        <translation>Gespräch in %1</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>Meeting-App aktiv</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>Kamera und Mikrofon in Benutzung</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>Kamera in Benutzung</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>Mikrofon in Benutzung</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>Meeting-Aktivität erkannt</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>Video läuft</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>Bildschirm wird aufgenommen</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>Spiel läuft</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>Nicht am Platz</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Smart Pause aktiv</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>Klingt aus …</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>Unbekannte App</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>Derzeit laufen keine anderen Apps</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Keine passenden Apps</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>noch keine Systemleiste gefunden; Pausen laufen trotzdem, `velto settings` öffnet die Einstellungen, und das Symbol erscheint, sobald es eine Systemleiste gibt</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>dieses Velto sucht nicht selbst nach Updates; es wird über die Paketverwaltung des Systems aktualisiert</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>Dein Körper vermisst dich</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>Deine Augen brauchen dich</translation>
    </message>
</context>
<context>
    <name>velto::HistoryPaneModel</name>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration of the History pane: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n Min.</numerusform>
            <numerusform>%n Min.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>A duration of the History pane, such as &quot;1 h 05 min&quot;: %1 is the hours, %2 the minutes (two digits).</extracomment>
        <translation>%1 Std. %2 Min.</translation>
    </message>
    <message>
        <source>1 month</source>
        <extracomment>How long the break history is kept: an option of the &quot;Keep history for&quot; picker.</extracomment>
        <translation>1 Monat</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 Monate</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 Monate</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 Jahr</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>Für immer</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: kommt noch</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: eine Pause übersprungen</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: alle Pausen gemacht</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: keine Pausen</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <extracomment>How a day of the History chart is spoken, as a Qt date format (ddd: weekday, d: day, MMM: month); put them in your language&apos;s order, such as &quot;ddd, MMM d&quot;.</extracomment>
        <translation>ddd, d. MMM</translation>
    </message>
    <message numerus="yes">
        <source>%n taken</source>
        <extracomment>Breaks taken on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n gemacht</numerusform>
            <numerusform>%n gemacht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n übersprungen</numerusform>
            <numerusform>%n übersprungen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <extracomment>Spoken for a bar of the History chart, such as &quot;Mon 3 Nov: 5 taken, 1 skipped&quot;: %1 is the day, %2 the breaks taken, %3 those skipped.</extracomment>
        <translation>%1: %2, %3</translation>
    </message>
</context>
<context>
    <name>velto::PreBreakNotificationDisplayModel</name>
    <message>
        <source>Deep rest coming up</source>
        <extracomment>The title of the notice shown shortly before a break.</extracomment>
        <translation>Ausgiebige Erholung in Sicht</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>Kurze Pause in Sicht</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>Bring deine Aufgabe zu Ende oder leg sie beiseite. Gleich kannst du dir eine längere Auszeit nehmen.</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>Merk dir, wo du stehst, und bring den Gedanken zu Ende. Gleich gibt es eine kurze Verschnaufpause.</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Pause in %n Sekunde</numerusform>
            <numerusform>Pause in %n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Pause in %n Minute</numerusform>
            <numerusform>Pause in %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>Pause in %1 und %2</translation>
    </message>
</context>
<context>
    <name>velto::SettingsPaneModel</name>
    <message>
        <source>%1%</source>
        <extracomment>The dim level as a percentage beside its slider; %1 is a whole number from 50 to 100.</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Show break on all connected displays</source>
        <translation>Pause auf allen angeschlossenen Bildschirmen anzeigen</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>Pause nur auf dem Hauptbildschirm anzeigen</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>Installiere sie, wenn du einen Moment Zeit hast.</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>Version %1 steht bereit, wann immer du willst.</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>Sie konnte nicht aktiviert werden: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>An option of a picker of durations: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n Min.</numerusform>
            <numerusform>%n Min.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec</source>
        <extracomment>An option of the short-break duration picker: a number of seconds, abbreviated.</extracomment>
        <translation>
            <numerusform>%n Sek.</numerusform>
            <numerusform>%n Sek.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n short breaks</source>
        <extracomment>An option of the long-break frequency picker: a long break takes the place of every n-th short one.</extracomment>
        <translation>
            <numerusform>Bei jeder kurzen Pause</numerusform>
            <numerusform>Alle %n kurzen Pausen</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>Keine Verzögerung</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n Min. vorher</numerusform>
            <numerusform>%n Min. vorher</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto konnte sein Hilfsprogramm zum Herunterladen nicht starten (%1).</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>GNOME-Shell-Einstellungen können hier nicht gelesen werden</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>GNOME-Shell-Einstellungen für Erweiterungen sind auf diesem System gesperrt</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>GNOME-Shell-Einstellungen konnten nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>Eine neue Version von Velto ist verfügbar</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 ist verfügbar; du hast %2. Lade die neue Version zum Aktualisieren von der Website herunter.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Versionshinweise werden geladen …</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>Die Versionshinweise konnten nicht geladen werden.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>Herunterladen</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Der Update-Server hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>Die Adresse des Update-Feeds ist nicht sicher.</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>Der Update-Feed wurde an eine unsichere Adresse umgeleitet.</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>Der Update-Feed ist zu groß.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>Der Update-Server hat mit Status %1 geantwortet.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>Der Update-Feed konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>Velto ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Es gibt eine neuere Version von Velto, sie erfordert aber ein neueres System als dieses.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 ist die neueste verfügbare Version.</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Velto %1 ist verfügbar; du hast %2. Herunterladen unter %3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 ist verfügbar; du hast %2.</translation>
    </message>
</context>
</TS>
