<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Velto is een kleine helper in het systeemvak voor duurzame focus en echte pauzes.</translation>
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
        <translation>Feedback sturen naar %1</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Feedback sturen</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>Versie</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>Er is een nieuwere versie beschikbaar</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>Update bekijken</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Controleren op updates…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>Updates komen via het pakketbeheer van je systeem.</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>Focus-app toevoegen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>Apps zoeken…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Apps zoeken</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>Geopende apps</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>Pauzes uitstellen</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>App toevoegen</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Velto zit in het systeemvak en telt je werktijd af. Een minuut voor een pauze verschijnt een kleine kaart waarmee je de pauze meteen kunt nemen, een of drie minuten kunt uitstellen of kunt overslaan. Als de tijd om is, bedekt een rustig pauzescherm je beeldschermen en telt het een korte pauze af, of om de paar pauzes een lange.</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>Smart Pause houdt het aftellen tegen zolang een pauze ongelegen zou komen: tijdens een gesprek of vergadering, terwijl er een video speelt, terwijl het scherm wordt opgenomen, in een game op volledig scherm, in een app waarop je je wilt concentreren en terwijl je niet achter je computer zit. Met werktijden herinnert Velto je alleen op de dagen en tijden waarop je werkt.</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>Velto is ook te bedienen vanuit een terminal of script: velto status, velto break, velto pause en meer.</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>Een korte pauze bedekt het scherm en telt af</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>Een minuut voor een pauze biedt een kaart aan om die meteen te nemen, uit te stellen of over te slaan</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>Het menu in het systeemvak</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>Smart Pause stelt pauzes uit tijdens gesprekken, video’s, opnames en games</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>In GNOME zonder systeemvak verschijnt Velto in de bovenbalk</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>De eerste uitgave.</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>Een aftelling in het systeemvak, een kaart vóór elke pauze, en schermen voor korte en lange pauzes op elk beeldscherm</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>Smart Pause op X11, op Wayland (sway en andere wlroots-compositors, KDE Plasma) en op GNOME via Velto’s eigen Shell-uitbreiding</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>Werktijden, voorinstellingen, geluidssignalen, schermvergrendeling, starten bij aanmelden en een opdrachtregel</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>Geef je pauzescherm een persoonlijk tintje, zodat elke pauze bewust aanvoelt.</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>Achtergrond</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The kind of background: paper, gradient…</extracomment>
        <translation>Stijl</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>The colours of the gradient background.</extracomment>
        <translation>Kleurenthema</translation>
    </message>
    <message>
        <source>Dim level</source>
        <extracomment>How much the break screen&apos;s background is darkened.</extracomment>
        <translation>Dimniveau</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>Beeldscherm</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>Pauze tonen op</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>Berichten</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>Je eigen berichten:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>Bericht %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>Bericht %1 verwijderen</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>Toevoegen</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>Papier licht</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Kleurverloop</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>Papier donker</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>Effen kleur</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>Eigen afbeelding</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>Systeemachtergrond</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>Laat je ogen rusten en haal diep adem</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>Kijk naar iets op zes meter afstand</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>Knipper langzaam en ontspan je ogen</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>Rek je schouders en nek</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>Goed bezig! Houd die gezonde gewoontes vol</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Kijk weg, en niet naar je telefoon</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>Je netvliezen hebben gebeld</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>Ogen gaan brrrr</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>Met je ogen valt niet te onderhandelen</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>Staar in de verte als een dichter</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Je bureaustoel kijkt je al afkeurend aan</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>De vloer wacht op je</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>De zwaartekracht wil je zien stretchen</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>Avontuur lonkt (in je woonkamer)</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>Tijd om gras aan te raken (letterlijk)</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>Gebalanceerd</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>Diepe focus</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>Oogzorg</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>Aangepast</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>Alle schermen</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>Alleen hoofdscherm</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>Overslaan</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>Pauze beëindigen</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>Op deze desktop telt elke invoer via toetsenbord of aanwijsapparaat.</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>Breng focus en rust in balans met korte en lange pauzes die bij je passen.</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>Korte pauzes</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>Werkinterval</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>Pauzeduur</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>Lange pauzes</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>Lange pauzes inschakelen</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>Duur</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>Frequentie</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>Pauzegedrag</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>Strengheid bij overslaan</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>Pauze eerder beëindigen toestaan</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>Typvertraging</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>Geen pauzes tonen tijdens het typen</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>Pauzeert de werktimer terwijl je typt, zodat een pauze je minder snel onderbreekt.</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Schermvergrendeling</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>Scherm vergrendelen als een pauze begint</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>Vergrendelt je sessie wanneer een pauze begint, met de schermvergrendeling van je desktop.</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>Voorinstellingen</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>Geen schermvergrendeling gevonden</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Velto kon geen manier vinden om deze sessie te vergrendelen. Installeer of activeer een schermvergrendeling (bijvoorbeeld die van je desktop, light-locker of xsecurelock) en schakel deze optie daarna opnieuw in.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>De aftelling, de status en de pauzes van vandaag tonen</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>Nu een pauze nemen (een lange pauze met --long)</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>Herinneringen MINUTES minuten pauzeren (%1 indien niet opgegeven)</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>Het pauzeren beëindigen</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>De komende pauze overslaan</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>Herinneringen inschakelen</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>Herinneringen uitschakelen</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>Het instellingenvenster openen</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>Op een nieuwere versie controleren en het resultaat melden</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Velto afsluiten</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>Tonen of Velto’s GNOME Shell-uitbreiding geïnstalleerd, ingeschakeld en actief is, of deze inschakelen</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shell antwoordde niet op tijd</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>er is geen GNOME Shell in deze sessie</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>Velto’s GNOME Shell-uitbreiding is niet geïnstalleerd (deze wordt meegeleverd in het pakket van Velto)</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>de GNOME Shell-uitbreiding kon niet worden ingeschakeld: </translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>Inschakelen met: velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>GNOME Shell heeft de uitbreiding nog steeds uitgeschakeld</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shell kon de uitbreiding niet starten; het logboek vermeldt mogelijk waarom</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>onverwacht argument ‘%1’</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>onbekende optie ‘%1’</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>onbekende opdracht ‘%1’</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>gnome-extension verwacht ‘status’ of ‘enable’</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>onbekende gnome-extension-opdracht ‘%1’</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>geef slechts één van --json en --csv op</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>--days vraagt een aantal dagen</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days moet een geheel getal van 1 tot en met %1 zijn, niet ‘%2’</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES moet een geheel getal van 1 tot en met %1 zijn, niet ‘%2’</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>onbekende optie ‘%1’ voor %2</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>onverwacht argument ‘%1’ voor %2</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>De pauzes van de laatste N dagen tonen (%1 indien niet opgegeven), een regel per dag of elke gebeurtenis</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>Gebruik: velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>Zonder opdracht start Velto; als Velto al draait, worden in plaats daarvan de instellingen geopend.</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>Opdrachten voor de draaiende Velto:</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Opdrachten die met of zonder draaiende Velto werken:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opties:</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Deze hulp tonen</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>De versie tonen</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>Afsluitstatus: 0 bij succes, 1 als Velto niet draait of niet antwoordt (of de updatecontrole
mislukte, of er geen GNOME Shell of uitbreiding is, of het inschakelen mislukte), 2 bij ongeldige argumenten.</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Velto draait niet</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Velto antwoordde niet binnen %1 seconden</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>geen sessiebus, dus er is geen draaiende Velto bereikbaar</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>het instellingenvenster kan in deze sessie niet worden getoond</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>niets te versturen voor deze opdracht</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Velto draait al; het instellingenvenster is geopend.</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Velto draait al.</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Resterende tijd:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>Pauzereden:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>geen</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>Pauzes vandaag:</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>Herinneringen:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>aan</translation>
    </message>
    <message>
        <source>off</source>
        <translation>uit</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>Dag</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Genomen</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Overgeslagen</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>Uitgesteld</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Werk</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>Langste tijd</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>Smart Pause</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>Geen gebeurtenissen vastgelegd in deze dagen.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Gebeurtenis</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pauze</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Seconden</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Break Reminder</source>
        <comment>the kind of application, in application menus</comment>
        <translation>Pauzeherinnering</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>Herinnert je eraan je ogen rust te geven en pauzes te nemen</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>pauze;rust;ogen;pauzeren;timer;gezondheid;houding;beeldschermpauze;herinnering;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>Pauze nemen</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>15 minuten pauzeren</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Apps op de voorgrond of op volledig scherm zijn op deze desktop niet te herkennen: schakel Velto’s GNOME Shell-uitbreiding in.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Apps op de voorgrond of op volledig scherm zijn op deze desktop niet te herkennen: start Velto vanuit het toepassingsmenu, zodat KWin zijn vensterlijst deelt.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>Apps op de voorgrond of op volledig scherm zijn op deze desktop niet te herkennen, omdat de compositor geen vensterlijst deelt.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Op deze desktop zijn alleen X11-apps op de voorgrond of op volledig scherm te herkennen: schakel Velto’s GNOME Shell-uitbreiding in.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Op deze desktop zijn alleen X11-apps op de voorgrond of op volledig scherm te herkennen: start Velto vanuit het toepassingsmenu, zodat KWin zijn vensterlijst deelt.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>Op deze desktop zijn alleen X11-apps op de voorgrond of op volledig scherm te herkennen, omdat de compositor geen vensterlijst deelt.</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>Typen is op deze desktop niet te herkennen, dus de typvertraging heeft geen effect.</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>Op deze desktop is alleen typen in X11-apps te herkennen.</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>Voorgrond &amp; volledig scherm</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>Op voorgrond</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>Wanneer geopend</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>Wanneer op voorgrond &amp; volledig scherm</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>Wanneer op voorgrond</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>Pauzes uitstellen voor %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>%1 verwijderen</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Bepaal het basisgedrag van Velto en hoe het in je werkwijze past.</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>App-instellingen</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Velto inschakelen</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>Timer in het systeemvak tonen</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Starten bij aanmelden</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Planning</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>Werktijden gebruiken</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>Actieve dagen</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>Begin</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>Einde</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Standaardwaarden herstellen</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>GNOME-uitbreiding: niet geïnstalleerd</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>GNOME-uitbreiding: geïnstalleerd, niet ingeschakeld</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>GNOME-uitbreiding: ingeschakeld, actief na de volgende aanmelding</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>GNOME-uitbreiding: ingeschakeld, maar GNOME Shell kon deze niet starten</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>GNOME-uitbreiding: actief</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Tot die tijd kan Smart Pause in GNOME niet zien welk venster op de voorgrond staat.</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Zonder deze uitbreiding kan Smart Pause in GNOME niet zien welk venster op de voorgrond staat.</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>Middernacht</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Noorderlicht</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Oceaan</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zonsondergang</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Bos</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>Kosmos</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Minimaal</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Roze</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>Warmte</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Leisteen</translation>
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
        <translation>Zie hoe je pauzes gingen, dag na dag.</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>Geschiedenis laden</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Nog geen geschiedenis</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>Elke pauze die je neemt of overslaat, verschijnt hier.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>Pauzes genomen</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>Overgeslagen</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>Langste tijd zonder pauze</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>Vastgehouden door Smart Pause</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>Pauzes per dag</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Afgelopen 7 dagen</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Afgelopen 30 dagen</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>Genomen</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>Reeks</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n dag op rij met alle pauzes genomen</numerusform>
            <numerusform>%n dagen op rij met alle pauzes genomen</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>Nog geen reeks: neem alle pauzes van een dag om er een te beginnen.</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>Deze week</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>Alle pauzes genomen</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>Pauze overgeslagen</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>Geen pauzes</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>Geschiedenis bewaren gedurende</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>Oudere dagen worden verwijderd. De geschiedenis verlaat deze computer nooit.</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Geschiedenis wissen…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>Pauzegeschiedenis wissen?</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>Alle vastgelegde pauzes, onderbrekingen en Smart Pause-momenten worden verwijderd. Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Geschiedenis wissen</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>VOLGENDE PAUZE</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>PAUZE OVER</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>Nu pauze</translation>
    </message>
    <message>
        <source>1 min</source>
        <extracomment>A small button of the card: put the break off by one minute. Keep it short.</extracomment>
        <translation>1 min</translation>
    </message>
    <message>
        <source>3 min</source>
        <extracomment>A small button of the card: put the break off by three minutes. Keep it short.</extracomment>
        <translation>3 min</translation>
    </message>
    <message>
        <source>Skip</source>
        <extracomment>A small button of the card: skip the coming break.</extracomment>
        <translation>Overslaan</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>Pauze overslaan</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>Slaat deze pauze over en brengt je terug naar je werk, als je instellingen voor overslaan dat toestaan.</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>Veeg om te sluiten</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Kan %1 niet verwijderen: %2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>Kan de autostartmap %1 niet aanmaken</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Kan %1 niet schrijven: %2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>Starten bij aanmelden bijwerken mislukt: %1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>Kies hoe Velto je op de hoogte houdt zonder in de weg te zitten.</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>Vooraankondiging</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>Melden vóór pauzes</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>Melding tonen</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Geluid</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>Geluidssignaal bij begin van pauze</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>Geluidssignaal bij einde van pauze</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>Volume van geluidssignaal</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>Gepauzeerd · hervat over %n min</numerusform>
            <numerusform>Gepauzeerd · hervat over %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>Buiten werktijd</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>Pauzes uitgeschakeld</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Smart Pause actief</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>Je wijzigingen konden niet worden opgeslagen. Ze blijven gelden tot Velto wordt afgesloten.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Uiterlijk</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>Pauzes</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>Smart Pause</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Velto-instellingen</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>Zijbalk</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>De lijst met instellingscategorieën tonen of verbergen</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>Instellingscategorieën</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>Update beschikbaar</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>Geschiedenis</translation>
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
        <translation>Mild</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>Consequent</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>%1 is actief</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>%1 is geopend</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>Focus-app actief</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>Laat Velto zich aanpassen aan wat je doet en pauzes uitstellen wanneer het ertoe doet.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Inschakelen</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>Activiteitsdetectie</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>Pauzeren tijdens vergaderingen of gesprekken</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>Pauzeert als je waarschijnlijk in een gesprek of vergadering zit – niet als je alleen op het web surft.</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>Pauzeren tijdens het afspelen van video</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>Videodetectie</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>‘Alleen op voorgrond’ controleert alleen de actieve app. ‘Ook op achtergrond’ pauzeert ook wanneer een ondersteunde speler achter een ander venster afspeelt.</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>Pauzeren tijdens schermopname</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>Pauzeren tijdens games op volledig scherm</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>Inactiviteitsdetectie</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>Inactiviteit detecteren</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>Timer resetten na inactiviteit van</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>Afkoeltijd</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>Vertraging na einde van activiteit</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>Wacht zo lang nadat een reden voor Smart Pause is vervallen, voordat je werktimer weer gaat aftellen.</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>Focus-apps</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>Pauzes uitstellen als een bepaalde app actief of geopend is. Per app kun je kiezen: alleen op de voorgrond, op de voorgrond en op volledig scherm, of zolang de app draait.</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>Geen focus-apps ingesteld</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>App toevoegen…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>geen sessiebus; Velto draait, maar kan niet garanderen dat er geen andere Velto draait</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>geen beeldscherm gevonden; Velto draait zonder pictogram in het systeemvak</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, uur</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, minuut</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>Geen actieve timer</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>Nog %1</translation>
    </message>
    <message>
        <source>Velto, %1</source>
        <extracomment>What a screen reader says for the tray icon; %1 is the status line, such as &quot;Until next break&quot;.</extracomment>
        <translation>Velto, %1</translation>
    </message>
    <message>
        <source>%1h</source>
        <extracomment>Hours left, drawn inside the small tray icon from 100 minutes on: keep it to the number and a letter.</extracomment>
        <translation>%1u</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n minuut</numerusform>
            <numerusform>%n minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n uur</numerusform>
            <numerusform>%n uur</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes together, such as &quot;2 h 5 min&quot;: %1 is the hours, %2 the minutes.</extracomment>
        <translation>%1 en %2</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Ready</source>
        <extracomment>Nothing is counted yet; shown in the tray menu and as the tray&apos;s title.</extracomment>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Until next break</source>
        <extracomment>The tray menu&apos;s status line after the countdown, as in &quot;24:59 Until next break&quot;.</extracomment>
        <translation>Tot de volgende pauze</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>Pauze bezig</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>%n pauze vandaag</numerusform>
            <numerusform>%n pauzes vandaag</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Velto uitschakelen</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Velto inschakelen</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>Pauze nemen</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>Pauze beëindigen</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>Lange pauze nemen</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>15 minuten pauzeren</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Instellingen…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Velto afsluiten</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Er is een nieuwere versie van Velto, maar die vereist een nieuwer systeem dan dit.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 is de nieuwste beschikbare versie.</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>Velto is up-to-date</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Velto kon niet controleren op updates</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>Alleen op voorgrond</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>Ook op achtergrond</translation>
    </message>
</context>
<context>
    <name>Weekday</name>
    <message>
        <source>Sun</source>
        <extracomment>Sunday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Zo</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Monday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Ma</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Tuesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Di</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Wednesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Thursday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Do</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Vr</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Saturday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Za</translation>
    </message>
</context>
<context>
    <name>velto::ActivityDetector</name>
    <message>
        <source>In %1</source>
        <extracomment>Why breaks wait: the user is in a call; %1 is the meeting application&apos;s name, such as Zoom.</extracomment>
        <translation>In gesprek via %1</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>Vergaderapp actief</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>Camera en microfoon in gebruik</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>Camera in gebruik</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>Microfoon in gebruik</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>Vergaderactiviteit gedetecteerd</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>Video speelt af</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>Scherm wordt opgenomen</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>Game wordt gespeeld</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>Niet achter de computer</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Smart Pause actief</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>Even nawachten…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>Onbekende app</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>Er draaien momenteel geen andere apps</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Geen overeenkomende apps</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>nog geen systeemvak gevonden; pauzes werken gewoon, `velto settings` opent de instellingen en het pictogram verschijnt zodra er een systeemvak is</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>deze Velto controleert zelf niet op updates; het pakketbeheer van het systeem werkt Velto bij</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>Je lichaam mist je</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>Je ogen hebben je nodig</translation>
    </message>
</context>
<context>
    <name>velto::HistoryPaneModel</name>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration of the History pane: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n min</numerusform>
            <numerusform>%n min</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>A duration of the History pane, such as &quot;1 h 05 min&quot;: %1 is the hours, %2 the minutes (two digits).</extracomment>
        <translation>%1 u %2 min</translation>
    </message>
    <message>
        <source>1 month</source>
        <extracomment>How long the break history is kept: an option of the &quot;Keep history for&quot; picker.</extracomment>
        <translation>1 maand</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 maanden</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 maanden</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 jaar</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>Altijd</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: komt nog</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: een pauze overgeslagen</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: alle pauzes genomen</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: geen pauzes</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <extracomment>How a day of the History chart is spoken, as a Qt date format (ddd: weekday, d: day, MMM: month); put them in your language&apos;s order, such as &quot;ddd, MMM d&quot;.</extracomment>
        <translation>ddd d MMM</translation>
    </message>
    <message numerus="yes">
        <source>%n taken</source>
        <extracomment>Breaks taken on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n genomen</numerusform>
            <numerusform>%n genomen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n overgeslagen</numerusform>
            <numerusform>%n overgeslagen</numerusform>
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
        <translation>Diepe rust in aantocht</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>Korte pauze in aantocht</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>Rond je taak af of parkeer hem. Zo meteen krijg je de kans om er langer tussenuit te gaan.</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>Onthoud waar je was en maak je gedachte af. Zo meteen volgt een kort rustmoment.</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Pauze over %n seconde</numerusform>
            <numerusform>Pauze over %n seconden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Pauze over %n minuut</numerusform>
            <numerusform>Pauze over %n minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n minuut</numerusform>
            <numerusform>%n minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n seconde</numerusform>
            <numerusform>%n seconden</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>Pauze over %1 en %2</translation>
    </message>
</context>
<context>
    <name>velto::SettingsPaneModel</name>
    <message>
        <source>%1%</source>
        <extracomment>The dim level as a percentage beside its slider; %1 is a whole number from 50 to 100.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Show break on all connected displays</source>
        <translation>Pauze tonen op alle aangesloten beeldschermen</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>Pauze alleen tonen op je hoofdbeeldscherm</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>Installeer de update als je even tijd hebt.</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>Versie %1 staat voor je klaar.</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>Inschakelen is niet gelukt: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>An option of a picker of durations: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n min</numerusform>
            <numerusform>%n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec</source>
        <extracomment>An option of the short-break duration picker: a number of seconds, abbreviated.</extracomment>
        <translation>
            <numerusform>%n sec</numerusform>
            <numerusform>%n sec</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n short breaks</source>
        <extracomment>An option of the long-break frequency picker: a long break takes the place of every n-th short one.</extracomment>
        <translation>
            <numerusform>Bij elke korte pauze</numerusform>
            <numerusform>Om de %n korte pauzes</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>Geen vertraging</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n min vooraf</numerusform>
            <numerusform>%n min vooraf</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto kon zijn downloadhulpprogramma niet starten (%1).</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>GNOME Shell-instellingen kunnen hier niet worden gelezen</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>GNOME Shell-instellingen voor uitbreidingen zijn op dit systeem vergrendeld</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>GNOME Shell-instellingen konden niet worden geschreven</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Software-update</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>Er is een nieuwe versie van Velto beschikbaar</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 is beschikbaar; je hebt %2. Download de nieuwe versie van de website om bij te werken.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Uitgaveopmerkingen laden…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>De uitgaveopmerkingen konden niet worden geladen.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Deze versie overslaan</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Later herinneren</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>Downloaden</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Software-update</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>De updateserver antwoordde niet op tijd.</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>Het adres van de updatefeed is niet veilig.</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>De updatefeed werd omgeleid naar een adres dat niet veilig is.</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>De updatefeed is te groot.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>De updateserver antwoordde met status %1.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>De updatefeed kon niet worden gelezen.</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>Velto is up-to-date.</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Er is een nieuwere versie van Velto, maar die vereist een nieuwer systeem dan dit.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 is de nieuwste beschikbare versie.</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Velto %1 is beschikbaar; je hebt %2. Download de nieuwe versie via %3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 is beschikbaar; je hebt %2.</translation>
    </message>
</context>
</TS>
