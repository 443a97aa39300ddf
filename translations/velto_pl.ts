<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Velto to niewielki pomocnik w panelu, który dba o zdrowe skupienie i regularne przerwy.</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>Strona internetowa %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Strona internetowa</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>Wyślij opinię na adres %1</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Wyślij opinię</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>Dostępna jest nowsza wersja</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>Przejrzyj aktualizację</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>Aktualizacje dostarcza menedżer pakietów systemu.</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>Dodaj aplikację skupienia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>Szukaj aplikacji…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Szukaj aplikacji</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>Uruchomione aplikacje</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>Wstrzymuj przerwy</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>Dodaj aplikację</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Velto działa w tacce systemowej i odlicza czas pracy. Na minutę przed przerwą pokazuje małą kartę, na której można zacząć przerwę od razu, odłożyć ją o minutę lub trzy albo ją pominąć. Gdy czas minie, spokojny ekran przerwy zakrywa monitory i odlicza krótką przerwę, a co kilka przerw – długą.</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>Inteligentna pauza wstrzymuje odliczanie, gdy przerwa byłaby nie na miejscu: podczas rozmowy lub spotkania, odtwarzania wideo, nagrywania ekranu, gry na pełnym ekranie, pracy w aplikacji wybranej do skupienia oraz pod Twoją nieobecność. Godziny pracy ograniczają przypomnienia do dni i godzin, w których pracujesz.</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>Velto można też sterować z terminala lub skryptu: velto status, velto break, velto pause i nie tylko.</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>Krótka przerwa zakrywa ekran i odlicza czas</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>Na minutę przed przerwą karta proponuje, by zacząć ją teraz, odłożyć lub pominąć</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>Menu w tacce systemowej</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>Inteligentna pauza wstrzymuje przerwy podczas rozmów, filmów, nagrań i gier</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>W GNOME bez tacki systemowej Velto pojawia się na górnym pasku</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>Pierwsze wydanie.</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>Odliczanie w tacce systemowej, karta przed przerwą oraz ekrany krótkich i długich przerw na każdym monitorze</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>Inteligentna pauza w X11, w Waylandzie (sway i inne kompozytory oparte na wlroots, KDE Plasma) oraz w GNOME dzięki własnemu rozszerzeniu Velto do GNOME Shell</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>Godziny pracy, profile, sygnały dźwiękowe, blokada ekranu, uruchamianie po zalogowaniu i wiersz poleceń</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>Dostosuj ekran przerwy, aby każda przerwa była świadomą chwilą odpoczynku.</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>Tło</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The kind of background: paper, gradient…</extracomment>
        <translation>Styl</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>The colours of the gradient background.</extracomment>
        <translation>Motyw</translation>
    </message>
    <message>
        <source>Dim level</source>
        <extracomment>How much the break screen&apos;s background is darkened.</extracomment>
        <translation>Przyciemnienie</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>Monitory</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>Gdzie pokazywać przerwę</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>Komunikaty</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>Twoje komunikaty:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Komunikat</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>Komunikat %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>Usuń komunikat %1</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>Dodaj</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>Jasny papier</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Gradient</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>Ciemny papier</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>Jednolity kolor</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>Własny obraz</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>Tapeta systemowa</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>Daj odpocząć oczom i weź głęboki oddech</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>Spójrz na coś oddalonego o 6 metrów</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>Mrugaj powoli i rozluźnij oczy</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>Rozciągnij barki i szyję</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>Świetnie Ci idzie! Trzymaj się zdrowych nawyków</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Spójrz w dal, tylko nie na telefon</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>Dzwoniły Twoje siatkówki. Chcą odpocząć</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>Oczy robią brrrr</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>Nie idźmy na układy ze wzrokiem</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>Zapatrz się w dal jak poeta</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Twoje krzesło patrzy na Ciebie z wyrzutem</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>Podłoga czeka</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>Grawitacja chce zobaczyć, jak się rozciągasz</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>Przygoda czeka (w Twoim salonie)</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>Pora dotknąć trawy (dosłownie)</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>Zrównoważony</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>Głębokie skupienie</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>Ochrona oczu</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>Własny</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>Wszystkie ekrany</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>Tylko ekran główny</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>Pomiń</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>Zakończ przerwę</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>Na tym pulpicie liczy się każda aktywność klawiatury i wskaźnika.</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>Zachowaj równowagę między skupieniem a odpoczynkiem dzięki krótkim i długim przerwom dopasowanym do Ciebie.</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>Krótkie przerwy</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>Czas pracy</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>Długość przerwy</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>Długie przerwy</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>Włącz długie przerwy</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>Długość</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>Częstotliwość</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>Zachowanie przerw</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>Trudność pomijania</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>Pozwalaj kończyć przerwę wcześniej</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>Opóźnienie przy pisaniu</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>Nie pokazuj przerw podczas pisania</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>Wstrzymuje licznik czasu pracy podczas pisania, aby przerwa rzadziej wytrącała Cię z rytmu.</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Blokada ekranu</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>Blokuj ekran na początku przerwy</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>Blokuje sesję na początku przerwy za pomocą blokady ekranu Twojego środowiska.</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>Profile</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>Nie znaleziono blokady ekranu</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Velto nie może zablokować tej sesji. Zainstaluj lub włącz blokadę ekranu (na przykład blokadę ekranu swojego środowiska, light-locker lub xsecurelock), a następnie ponownie włącz tę opcję.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>Pokaż odliczanie, stan i dzisiejsze przerwy</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>Rozpocznij przerwę teraz (długą z --long)</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>Wstrzymaj przypomnienia na MINUTES minut (domyślnie %1)</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>Zakończ wstrzymanie</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>Pomiń najbliższą przerwę</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>Włącz przypomnienia</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>Wyłącz przypomnienia</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>Otwórz okno ustawień</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>Sprawdź, czy jest nowsza wersja, i podaj wynik</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Zakończ Velto</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>Sprawdź, czy rozszerzenie Velto do GNOME Shell jest zainstalowane, włączone i działa, albo je włącz</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shell nie odpowiedział na czas</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>w tej sesji nie ma GNOME Shell</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>rozszerzenie Velto do GNOME Shell nie jest zainstalowane (jest dołączone do pakietu Velto)</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>nie udało się włączyć rozszerzenia GNOME Shell: </translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>Włącz je poleceniem: velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>GNOME Shell nadal ma wyłączone to rozszerzenie</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shell nie mógł uruchomić rozszerzenia; przyczynę może podawać jego dziennik</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>nieoczekiwany argument „%1”</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>nieznana opcja „%1”</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>nieznane polecenie „%1”</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>gnome-extension wymaga „status” lub „enable”</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>nieznane polecenie gnome-extension „%1”</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>podaj tylko jedną z opcji --json i --csv</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>--days wymaga liczby dni</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days musi być liczbą całkowitą od 1 do %1, a nie „%2”</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES musi być liczbą całkowitą od 1 do %1, a nie „%2”</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>nieznana opcja „%1” dla %2</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>nieoczekiwany argument „%1” dla %2</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>Pokaż przerwy z ostatnich N dni (domyślnie %1), wiersz na dzień lub każde zdarzenie</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>Użycie: velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>Bez polecenia uruchamia Velto; jeśli Velto już działa, otwiera jego ustawienia.</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>Polecenia dla działającego Velto:</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Polecenia działające z uruchomionym Velto lub bez niego:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opcje:</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Pokaż tę pomoc</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Pokaż wersję</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>Kod wyjścia: 0 w razie powodzenia; 1, gdy Velto nie działa lub nie odpowiada (albo sprawdzanie aktualizacji
się nie powiodło, nie ma GNOME Shell lub rozszerzenia albo nie udało się go włączyć); 2 przy błędnych argumentach.</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Velto nie działa</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Brak odpowiedzi od Velto w ciągu %1 s</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>brak magistrali sesji, więc nie można połączyć się z działającym Velto</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>w tej sesji nie można wyświetlić okna ustawień</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>brak danych do wysłania dla tego polecenia</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Velto już działa; okno ustawień jest otwarte.</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Velto już działa.</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Pozostały czas:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>Powód wstrzymania:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>Przerwy dzisiaj:</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>Przypomnienia:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>włączone</translation>
    </message>
    <message>
        <source>off</source>
        <translation>wyłączone</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Odbyte</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Pominięte</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>Odłożone</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Praca</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>Najdłużej</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>Inteligentna pauza</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>Brak zdarzeń zapisanych w tych dniach.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Zdarzenie</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Przerwa</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekundy</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Break Reminder</source>
        <comment>the kind of application, in application menus</comment>
        <translation>Przypomnienia o przerwach</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>Przypomina o odpoczynku dla oczu i regularnych przerwach</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>przerwa;odpoczynek;oczy;wzrok;pauza;minutnik;zegar;zdrowie;postawa;ergonomia;break;timer;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>Zrób przerwę</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>Wstrzymaj na 15 minut</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Na tym pulpicie nie widać aplikacji na pierwszym planie ani na pełnym ekranie: włącz rozszerzenie Velto do GNOME Shell.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Na tym pulpicie nie widać aplikacji na pierwszym planie ani na pełnym ekranie: uruchom Velto z menu aplikacji, aby KWin udostępnił mu listę okien.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>Na tym pulpicie nie widać aplikacji na pierwszym planie ani na pełnym ekranie, ponieważ jego kompozytor nie udostępnia listy okien.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Na tym pulpicie na pierwszym planie lub na pełnym ekranie widać tylko aplikacje X11: włącz rozszerzenie Velto do GNOME Shell.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Na tym pulpicie na pierwszym planie lub na pełnym ekranie widać tylko aplikacje X11: uruchom Velto z menu aplikacji, aby KWin udostępnił mu listę okien.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>Na tym pulpicie na pierwszym planie lub na pełnym ekranie widać tylko aplikacje X11, ponieważ jego kompozytor nie udostępnia listy okien.</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>Na tym pulpicie nie widać pisania, więc opóźnienie przy pisaniu nie działa.</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>Na tym pulpicie widać tylko pisanie w aplikacjach X11.</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>Pierwszy plan i pełny ekran</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>Na pierwszym planie</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>Gdy jest otwarta</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>Gdy na pierwszym planie i na pełnym ekranie</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>Gdy na pierwszym planie</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>Wstrzymuj przerwy dla %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>Usuń %1</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Ustal podstawowe działanie Velto i to, jak ma się wpasować w Twój sposób pracy.</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>Ustawienia aplikacji</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Włącz Velto</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>Pokazuj licznik na panelu</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Uruchamiaj po zalogowaniu</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Harmonogram</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>Używaj godzin pracy</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>Aktywne dni</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>Początek</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Przywróć domyślne</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>Rozszerzenie GNOME: niezainstalowane</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>Rozszerzenie GNOME: zainstalowane, niewłączone</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>Rozszerzenie GNOME: włączone, aktywne po następnym zalogowaniu</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>Rozszerzenie GNOME: włączone, ale GNOME Shell nie mógł go uruchomić</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>Rozszerzenie GNOME: aktywne</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Do tego czasu Inteligentna pauza nie widzi, które okno w GNOME jest na pierwszym planie.</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Bez niego Inteligentna pauza nie widzi, które okno w GNOME jest na pierwszym planie.</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>Północ</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Zorza</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Ocean</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Zachód słońca</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Las</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>Kosmos</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Minimalny</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Róża</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>Ciepło</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Łupek</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lawenda</translation>
    </message>
</context>
<context>
    <name>HistoryPane</name>
    <message>
        <source>See how your breaks went, day by day.</source>
        <translation>Zobacz, jak wyglądały Twoje przerwy, dzień po dniu.</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>Wczytywanie historii</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Brak historii</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>Tutaj pojawi się każda odbyta lub pominięta przerwa.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>Odbyte przerwy</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>Pominięte</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>Najdłużej bez przerwy</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>Wstrzymane przez Inteligentną pauzę</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>Przerwy dziennie</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Ostatnie 7 dni</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Ostatnie 30 dni</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>Odbyte</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>Seria</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n dzień z rzędu ze wszystkimi przerwami</numerusform>
            <numerusform>%n dni z rzędu ze wszystkimi przerwami</numerusform>
            <numerusform>%n dni z rzędu ze wszystkimi przerwami</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>Brak serii: odbądź wszystkie przerwy jednego dnia, aby ją zacząć.</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>Ten tydzień</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>Wszystkie przerwy odbyte</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>Pominięta przerwa</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>Brak przerw</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>Przechowuj historię przez</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>Starsze dni są usuwane. Historia nigdy nie opuszcza tego komputera.</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Wyczyść historię…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>Wyczyścić historię przerw?</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>Wszystkie zapisane przerwy, wstrzymania i okresy Inteligentnej pauzy zostaną usunięte. Nie można tego cofnąć.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Wyczyść historię</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>NADCHODZĄCA PRZERWA</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>PRZERWA ZA</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>Przerwa teraz</translation>
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
        <translation>Pomiń</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>Pomiń przerwę</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>Wraca do pracy i pomija tę przerwę, jeśli pozwalają na to ustawienia pomijania.</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>Przesuń, aby zamknąć</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Nie można usunąć %1: %2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>Nie można utworzyć katalogu autostartu %1</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Nie można zapisać %1: %2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>Nie udało się zmienić uruchamiania po zalogowaniu: %1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>Wybierz, jak Velto ma Cię informować, nie przeszkadzając Ci.</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>Zapowiedź</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>Powiadamiaj przed przerwami</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>Pokazuj powiadomienie</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>Sygnał na początku przerwy</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>Sygnał na koniec przerwy</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>Głośność sygnału</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>Wstrzymano · wznowienie za %n min</numerusform>
            <numerusform>Wstrzymano · wznowienie za %n min</numerusform>
            <numerusform>Wstrzymano · wznowienie za %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>Poza godzinami pracy</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>Przerwy wyłączone</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Inteligentna pauza aktywna</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>Nie udało się zapisać zmian. Obowiązują do zamknięcia Velto.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>Przerwy</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Powiadomienia</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>Inteligentna pauza</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Ustawienia Velto</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>Panel boczny</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>Pokaż lub ukryj listę kategorii ustawień</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>Kategorie ustawień</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>Dostępna aktualizacja</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>Historia</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>Elastyczna</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Łagodna</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>Stanowcza</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>Aktywna aplikacja: %1</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>Otwarta aplikacja: %1</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>Aktywna aplikacja skupienia</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>Pozwól Velto dopasować się do tego, co robisz, i wstrzymywać przerwy, gdy to ważne.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Włącz</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>Wykrywanie aktywności</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>Wstrzymuj podczas spotkań i rozmów</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>Wstrzymuje, gdy prawdopodobnie rozmawiasz lub uczestniczysz w spotkaniu – ale nie wtedy, gdy tylko przeglądasz internet.</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>Wstrzymuj podczas odtwarzania wideo</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>Tryb wykrywania wideo</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>„Tylko na pierwszym planie” sprawdza jedynie aktywną aplikację. „Także w tle” wstrzymuje przerwy również wtedy, gdy obsługiwany odtwarzacz odtwarza za innym oknem.</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>Wstrzymuj podczas nagrywania ekranu</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>Wstrzymuj podczas gier na pełnym ekranie</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>Wykrywanie bezczynności</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>Wykrywaj bezczynność</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>Zeruj licznik po bezczynności trwającej</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>Odczekanie</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>Opóźnienie po zakończeniu aktywności</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>Po ustaniu powodu Inteligentnej pauzy Velto odczekuje tyle czasu, zanim licznik pracy znów zacznie odliczać.</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>Aplikacje skupienia</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>Wstrzymuj przerwy, gdy wybrana aplikacja jest aktywna lub otwarta. Dla każdej aplikacji można wybrać: tylko na pierwszym planie, na pierwszym planie i na pełnym ekranie albo zawsze, gdy działa.</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>Nie dodano aplikacji skupienia</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>Dodaj aplikację…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>brak magistrali sesji; program działa, ale nie może sprawdzić, czy nie działa inna kopia Velto</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>nie znaleziono ekranu; program działa bez ikony w tacce systemowej</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, godzina</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, minuta</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>Brak aktywnego licznika</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>Pozostało: %1</translation>
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
            <numerusform>%n minuta</numerusform>
            <numerusform>%n minuty</numerusform>
            <numerusform>%n minut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n godzina</numerusform>
            <numerusform>%n godziny</numerusform>
            <numerusform>%n godzin</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes together, such as &quot;2 h 5 min&quot;: %1 is the hours, %2 the minutes.</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Ready</source>
        <extracomment>Nothing is counted yet; shown in the tray menu and as the tray&apos;s title.</extracomment>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Until next break</source>
        <extracomment>The tray menu&apos;s status line after the countdown, as in &quot;24:59 Until next break&quot;.</extracomment>
        <translation>Do następnej przerwy</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>Trwa przerwa</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>Dziś %n przerwa</numerusform>
            <numerusform>Dziś %n przerwy</numerusform>
            <numerusform>Dziś %n przerw</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Wyłącz Velto</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Włącz Velto</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>Zrób przerwę</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>Zakończ przerwę</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>Zrób długą przerwę</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>Wstrzymaj na 15 minut</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Zakończ Velto</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Istnieje nowsza wersja Velto, ale wymaga nowszego systemu niż ten.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 to najnowsza dostępna wersja.</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>Masz najnowszą wersję Velto</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Nie udało się sprawdzić aktualizacji Velto</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>Tylko na pierwszym planie</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>Także w tle</translation>
    </message>
</context>
<context>
    <name>Weekday</name>
    <message>
        <source>Sun</source>
        <extracomment>Sunday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Nd</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Monday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Pn</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Tuesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Wt</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Wednesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Śr</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Thursday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Cz</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Pt</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Saturday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Sb</translation>
    </message>
</context>
<context>
    <name>velto::ActivityDetector</name>
    <message>
        <source>In %1</source>
        <extracomment>Why breaks wait: the user is in a call; %1 is the meeting application&apos;s name, such as Zoom.</extracomment>
        <translation>Spotkanie: %1</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>Aktywna aplikacja do spotkań</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>Kamera i mikrofon w użyciu</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>Kamera w użyciu</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>Mikrofon w użyciu</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>Wykryto spotkanie</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>Oglądanie wideo</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>Nagrywanie ekranu</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>Trwa gra</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>Z dala od biurka</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Inteligentna pauza aktywna</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>Jeszcze chwila…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>Nieznana aplikacja</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>Nie działają żadne inne aplikacje</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Brak pasujących aplikacji</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>nie znaleziono jeszcze tacki systemowej; przerwy nadal działają, `velto settings` otwiera ustawienia, a ikona pojawi się, gdy tacka będzie dostępna</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>ta kopia Velto nie sprawdza aktualizacji; aktualizuje ją systemowy menedżer pakietów</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>Twoje ciało za Tobą tęskni</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>Twoje oczy Cię potrzebują</translation>
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
            <numerusform>%n min</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>A duration of the History pane, such as &quot;1 h 05 min&quot;: %1 is the hours, %2 the minutes (two digits).</extracomment>
        <translation>%1 godz. %2 min</translation>
    </message>
    <message>
        <source>1 month</source>
        <extracomment>How long the break history is kept: an option of the &quot;Keep history for&quot; picker.</extracomment>
        <translation>1 miesiąc</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 miesiące</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 miesięcy</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 rok</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>Zawsze</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: jeszcze przed nami</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: pominięto przerwę</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: wszystkie przerwy odbyte</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: brak przerw</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <extracomment>How a day of the History chart is spoken, as a Qt date format (ddd: weekday, d: day, MMM: month); put them in your language&apos;s order, such as &quot;ddd, MMM d&quot;.</extracomment>
        <translation>ddd, d MMM</translation>
    </message>
    <message numerus="yes">
        <source>%n taken</source>
        <extracomment>Breaks taken on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n odbyta</numerusform>
            <numerusform>%n odbyte</numerusform>
            <numerusform>%n odbytych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n pominięta</numerusform>
            <numerusform>%n pominięte</numerusform>
            <numerusform>%n pominiętych</numerusform>
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
        <translation>Nadchodzi dłuższa przerwa</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>Zbliża się krótka przerwa</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>Dokończ lub odłóż zadanie. Już niedługo dłuższa chwila na oderwanie się od pracy.</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>Zapamiętaj, w którym miejscu jesteś, i dokończ myśl. Krótka przerwa już za chwilę.</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Przerwa za %n sekundę</numerusform>
            <numerusform>Przerwa za %n sekundy</numerusform>
            <numerusform>Przerwa za %n sekund</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Przerwa za %n minutę</numerusform>
            <numerusform>Przerwa za %n minuty</numerusform>
            <numerusform>Przerwa za %n minut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n minutę</numerusform>
            <numerusform>%n minuty</numerusform>
            <numerusform>%n minut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n sekundę</numerusform>
            <numerusform>%n sekundy</numerusform>
            <numerusform>%n sekund</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>Przerwa za %1 %2</translation>
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
        <translation>Pokazuj przerwę na wszystkich podłączonych monitorach</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>Pokazuj przerwę tylko na monitorze głównym</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>Zainstaluj ją, gdy znajdziesz chwilę.</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>Wersja %1 czeka na Ciebie.</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>Nie udało się go włączyć: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>An option of a picker of durations: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n min</numerusform>
            <numerusform>%n min</numerusform>
            <numerusform>%n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec</source>
        <extracomment>An option of the short-break duration picker: a number of seconds, abbreviated.</extracomment>
        <translation>
            <numerusform>%n s</numerusform>
            <numerusform>%n s</numerusform>
            <numerusform>%n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n short breaks</source>
        <extracomment>An option of the long-break frequency picker: a long break takes the place of every n-th short one.</extracomment>
        <translation>
            <numerusform>Co %n krótką przerwę</numerusform>
            <numerusform>Co %n krótkie przerwy</numerusform>
            <numerusform>Co %n krótkich przerw</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>Bez opóźnienia</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n min wcześniej</numerusform>
            <numerusform>%n min wcześniej</numerusform>
            <numerusform>%n min wcześniej</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto nie mógł uruchomić swojego programu pomocniczego do pobierania (%1).</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>Nie można tu odczytać ustawień GNOME Shell</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>Ustawienia rozszerzeń GNOME Shell są w tym systemie zablokowane</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>Nie udało się zapisać ustawień GNOME Shell</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Aktualizacja oprogramowania</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>Dostępna jest nowa wersja Velto</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Dostępna jest wersja Velto %1; masz %2. Aby zaktualizować, pobierz ją ze strony internetowej.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Wczytywanie informacji o wydaniu…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>Nie udało się wczytać informacji o wydaniu.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Przypomnij później</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>Pobierz</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Aktualizacja oprogramowania</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Serwer aktualizacji nie odpowiedział na czas.</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>Adres kanału aktualizacji nie jest bezpieczny.</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>Kanał aktualizacji został przekierowany na adres, który nie jest bezpieczny.</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>Kanał aktualizacji jest za duży.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>Serwer aktualizacji zwrócił kod stanu %1.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>Nie udało się odczytać kanału aktualizacji.</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>Masz najnowszą wersję Velto.</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Istnieje nowsza wersja Velto, ale wymaga nowszego systemu niż ten.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 to najnowsza dostępna wersja.</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Dostępna jest wersja Velto %1; masz %2. Pobierz ją ze strony %3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Dostępna jest wersja Velto %1; masz %2.</translation>
    </message>
</context>
</TS>
