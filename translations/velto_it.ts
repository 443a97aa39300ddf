<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Velto è un piccolo compagno nell&apos;area di notifica per una concentrazione sostenibile e pause regolari.</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>Sito web %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>Invia un commento a %1</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Invia un commento</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>È disponibile una versione più recente</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>Esamina l&apos;aggiornamento</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Controlla aggiornamenti…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>Gli aggiornamenti arrivano dal gestore di pacchetti del sistema.</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>Aggiungi app di concentrazione</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>Cerca app…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Cerca app</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>App in esecuzione</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>Sospendi le pause</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>Aggiungi app</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Velto risiede nell&apos;area di notifica e fa il conto alla rovescia del tuo tempo di lavoro. Un minuto prima di una pausa mostra un piccolo riquadro che ti permette di fare subito la pausa, di rimandarla di uno o tre minuti oppure di saltarla. Allo scadere del tempo, una schermata di pausa rilassante copre i tuoi schermi e scandisce una pausa breve, oppure una pausa lunga dopo alcune pause brevi.</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>Smart Pause ferma il conto alla rovescia quando una pausa sarebbe inopportuna: durante una chiamata o una riunione, mentre guardi un video, mentre lo schermo viene registrato, in un gioco a schermo intero, in un&apos;applicazione su cui hai scelto di concentrarti e mentre sei lontano. L&apos;orario di lavoro limita i promemoria ai giorni e alle ore in cui lavori.</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>Velto si può controllare anche da un terminale o da uno script: velto status, velto break, velto pause e altri comandi.</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>Una pausa breve copre lo schermo e fa il conto alla rovescia</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>Un minuto prima di una pausa, un riquadro propone di farla subito, di rimandarla o di saltarla</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>Il menu nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>Smart Pause sospende le pause durante chiamate, video, registrazioni e giochi</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>Su GNOME senza area di notifica, Velto appare nella barra superiore</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>La prima versione.</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>Un conto alla rovescia nell&apos;area di notifica, un riquadro prima della pausa e schermate di pausa breve e lunga su ogni schermo</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>Smart Pause su X11, su Wayland (sway e altri compositor wlroots, KDE Plasma) e su GNOME tramite l&apos;estensione GNOME Shell di Velto</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>Orario di lavoro, profili, suoni, blocco dello schermo, avvio all&apos;accesso e riga di comando</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>Personalizza la schermata di pausa per rendere ogni pausa un momento consapevole.</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The kind of background: paper, gradient…</extracomment>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>The colours of the gradient background.</extracomment>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Dim level</source>
        <extracomment>How much the break screen&apos;s background is darkened.</extracomment>
        <translation>Livello di oscuramento</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>Schermi</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>Mostra la pausa su</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>Messaggi</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>I tuoi messaggi:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>Messaggio %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>Rimuovi il messaggio %1</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>Aggiungi</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>Carta chiara</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Sfumatura</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>Carta scura</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>Tinta unita</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>Immagine personalizzata</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>Sfondo di sistema</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>Riposa gli occhi e fai un respiro profondo</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>Guarda qualcosa a sei metri di distanza</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>Sbatti lentamente le palpebre e rilassa gli occhi</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>Sciogli le spalle e il collo</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>Ottimo lavoro! Continua così con le buone abitudini</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Distogli lo sguardo, ma non sul telefono</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>Hanno chiamato le tue retine: rivogliono un po&apos; di riposo</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>Occhi in tilt</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>Non scendiamo a patti con la vista</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>Fissa l&apos;orizzonte come un poeta</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>La tua sedia ti sta giudicando</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>Il pavimento ti aspetta</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>La gravità vuole vederti fare stretching</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>L&apos;avventura ti aspetta (in salotto)</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>È ora di toccare l&apos;erba (letteralmente)</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>Equilibrato</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>Concentrazione profonda</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>Cura degli occhi</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>Personalizzato</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>Tutti gli schermi</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>Solo schermo principale</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>Salta</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>Termina pausa</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>Su questo desktop conta qualsiasi uso della tastiera o del mouse.</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>Bilancia concentrazione e riposo con pause brevi e lunghe su misura per te.</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>Pause brevi</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>Intervallo di lavoro</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>Durata della pausa</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>Pause lunghe</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>Attiva le pause lunghe</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>Comportamento delle pause</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>Difficoltà a saltare</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>Consenti di terminare la pausa in anticipo</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>Ritardo durante la digitazione</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>Non mostrare pause durante la digitazione</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>Sospende il timer di lavoro mentre scrivi, così è meno probabile che una pausa ti interrompa.</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Blocco dello schermo</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>Blocca lo schermo all&apos;inizio della pausa</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>Blocca la sessione all&apos;inizio di una pausa, usando il blocco schermo del tuo desktop.</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>Profili</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>Nessun blocco schermo trovato</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Velto non ha trovato un modo per bloccare questa sessione. Installa o attiva un programma di blocco schermo (per esempio il blocco schermo del tuo desktop, light-locker o xsecurelock), poi riattiva questa opzione.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>Mostra il conto alla rovescia, lo stato e le pause di oggi</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>Avvia subito una pausa (una pausa lunga con --long)</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>Sospende i promemoria per MINUTES minuti (%1 se non indicato)</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>Termina una sospensione</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>Salta la prossima pausa</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>Attiva i promemoria</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>Disattiva i promemoria</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>Apre la finestra delle impostazioni</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>Cerca una versione più recente e riferisce il risultato</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Chiude Velto</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>Indica se l&apos;estensione GNOME Shell di Velto è installata, attivata e in esecuzione, oppure la attiva</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shell non ha risposto in tempo</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>non c&apos;è GNOME Shell in questa sessione</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>l&apos;estensione GNOME Shell di Velto non è installata (è inclusa nel pacchetto di Velto)</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>non è stato possibile attivare l&apos;estensione GNOME Shell: </translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>Per attivarla: velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>GNOME Shell mantiene ancora l&apos;estensione disattivata</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shell non è riuscito ad avviare l&apos;estensione; il suo registro potrebbe indicarne il motivo</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argomento inatteso «%1»</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>opzione sconosciuta «%1»</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>comando sconosciuto «%1»</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>gnome-extension richiede «status» o «enable»</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>comando gnome-extension sconosciuto «%1»</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>indicare solo una tra --json e --csv</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>--days richiede un numero di giorni</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days deve essere un numero intero da 1 a %1, non «%2»</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES deve essere un numero intero da 1 a %1, non «%2»</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>opzione sconosciuta «%1» per %2</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>argomento inatteso «%1» per %2</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>Mostra le pause degli ultimi N giorni (%1 se non indicato), una riga al giorno o ogni evento</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>Uso: velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>Senza un comando, avvia Velto; se Velto è già in esecuzione, ne apre invece le impostazioni.</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>Comandi per l&apos;istanza di Velto in esecuzione:</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Comandi che funzionano con o senza Velto in esecuzione:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opzioni:</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Mostra questo aiuto</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Mostra la versione</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>Stato di uscita: 0 in caso di successo, 1 se Velto non è in esecuzione o non risponde (o se il controllo
degli aggiornamenti non è riuscito, se mancano GNOME Shell o l&apos;estensione, o se la sua attivazione non è riuscita), 2 per argomenti non validi.</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Velto non è in esecuzione</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Velto non ha risposto entro %1 secondi</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>nessun bus di sessione, quindi non è possibile raggiungere un Velto in esecuzione</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>la finestra delle impostazioni non può essere mostrata in questa sessione</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>niente da inviare per questo comando</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Velto è già in esecuzione; la finestra delle impostazioni è aperta.</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Velto è già in esecuzione.</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Tempo rimanente:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>Motivo della sospensione:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>Pause di oggi:</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>Promemoria:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>attivati</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivati</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Fatte</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Saltate</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>Rinviate</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>Tratto più lungo</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>Smart Pause</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>Nessun evento registrato in questi giorni.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Dettaglio</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondi</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Break Reminder</source>
        <comment>the kind of application, in application menus</comment>
        <translation>Promemoria per le pause</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>Ti ricorda di riposare gli occhi e di fare delle pause</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>pausa;riposo;occhi;vista;timer;promemoria;salute;postura;ergonomia;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>Fai una pausa</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>Sospendi per 15 minuti</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Su questo desktop non è possibile rilevare le app in primo piano o a schermo intero: attiva l&apos;estensione GNOME Shell di Velto.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Su questo desktop non è possibile rilevare le app in primo piano o a schermo intero: avvia Velto dal menu delle applicazioni affinché KWin condivida il suo elenco delle finestre.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>Su questo desktop non è possibile rilevare le app in primo piano o a schermo intero, perché il suo compositor non condivide alcun elenco delle finestre.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Su questo desktop è possibile rilevare in primo piano o a schermo intero solo le app X11: attiva l&apos;estensione GNOME Shell di Velto.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Su questo desktop è possibile rilevare in primo piano o a schermo intero solo le app X11: avvia Velto dal menu delle applicazioni affinché KWin condivida il suo elenco delle finestre.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>Su questo desktop è possibile rilevare in primo piano o a schermo intero solo le app X11, perché il suo compositor non condivide alcun elenco delle finestre.</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>Su questo desktop non è possibile rilevare la digitazione, quindi il ritardo durante la digitazione non ha effetto.</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>Su questo desktop è possibile rilevare solo la digitazione nelle app X11.</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>Primo piano e schermo intero</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>In primo piano</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>Quando è aperta</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>Quando in primo piano e a schermo intero</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>Quando in primo piano</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>Sospendi le pause per %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>Rimuovi %1</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Controlla il comportamento di base di Velto e come si inserisce nel tuo modo di lavorare.</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>Impostazioni dell&apos;app</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Attiva Velto</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>Mostra il timer nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Avvia all&apos;accesso</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Orari</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>Usa l&apos;orario di lavoro</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>Giorni attivi</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Ripristina i valori predefiniti</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>Estensione GNOME: non installata</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>Estensione GNOME: installata, non attivata</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>Estensione GNOME: attivata, operativa dal prossimo accesso</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>Estensione GNOME: attivata, ma GNOME Shell non è riuscito ad avviarla</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>Estensione GNOME: operativa</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Fino ad allora, Smart Pause non può vedere quale finestra è in primo piano su GNOME.</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Senza di essa, Smart Pause non può vedere quale finestra è in primo piano su GNOME.</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>Mezzanotte</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Oceano</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Tramonto</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Foresta</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>Cosmo</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Essenziale</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>Calore</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Ardesia</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavanda</translation>
    </message>
</context>
<context>
    <name>HistoryPane</name>
    <message>
        <source>See how your breaks went, day by day.</source>
        <translation>Guarda come sono andate le tue pause, giorno per giorno.</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>Caricamento della cronologia</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Nessuna cronologia per ora</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>Ogni pausa che fai o salti comparirà qui.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>Pause fatte</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>Saltate</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>Tratto più lungo senza pause</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>Trattenuto da Smart Pause</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>Pause al giorno</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Ultimi 7 giorni</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Ultimi 30 giorni</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>Fatte</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>Serie</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n giorno di fila con tutte le pause fatte</numerusform>
            <numerusform>%n giorni di fila con tutte le pause fatte</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>Nessuna serie per ora: fai tutte le pause di una giornata per iniziarne una.</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>Questa settimana</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>Tutte le pause fatte</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>Pausa saltata</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>Nessuna pausa</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>Conserva la cronologia per</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>I giorni più vecchi vengono rimossi. La cronologia non lascia mai questo computer.</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Cancella cronologia…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>Cancellare la cronologia delle pause?</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>Tutte le pause, le sospensioni e i periodi di Smart Pause registrati vengono rimossi. L’operazione non si può annullare.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Cancella cronologia</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>PROSSIMA PAUSA</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>PAUSA TRA</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>Pausa ora</translation>
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
        <translation>Salta</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>Salta la pausa</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>Torna al lavoro e salta questa pausa, se le impostazioni lo consentono.</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>Scorri per chiudere</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Impossibile rimuovere %1: %2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>Impossibile creare la cartella di avvio automatico %1</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>Impossibile aggiornare l&apos;avvio all&apos;accesso: %1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>Scegli come Velto ti tiene informato senza essere d&apos;intralcio.</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>Preavviso</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>Avvisa prima delle pause</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>Mostra la notifica</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Suono</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>Suono all&apos;inizio della pausa</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>Suono alla fine della pausa</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>Volume del suono</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>Sospeso · riprende tra %n min</numerusform>
            <numerusform>Sospeso · riprende tra %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sospeso</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>Fuori dall&apos;orario di lavoro</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>Pause disattivate</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Smart Pause in azione</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>Impossibile salvare le modifiche. Restano valide fino alla chiusura di Velto.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifiche</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>Smart Pause</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Impostazioni di Velto</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>Barra laterale</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>Mostra o nasconde l&apos;elenco delle categorie delle impostazioni</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>Categorie delle impostazioni</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>Aggiornamento disponibile</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>Cronologia</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>Flessibile</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Moderato</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>Rigoroso</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>%1 è in primo piano</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>%1 è in esecuzione</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>App di concentrazione attiva</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>Lascia che Velto si adatti a ciò che fai e sospenda le pause quando serve.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>Rilevamento attività</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>Sospendi durante riunioni o chiamate</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>Sospende quando probabilmente sei in una chiamata o in una riunione, non quando stai solo navigando sul web.</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>Sospendi durante la riproduzione di video</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>Modalità di rilevamento video</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>«Solo in primo piano» controlla solo l&apos;app attiva. «Anche in secondo piano» sospende anche quando un lettore supportato riproduce dietro un&apos;altra finestra.</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>Sospendi durante la registrazione dello schermo</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>Sospendi durante i giochi a schermo intero</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>Rilevamento inattività</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>Rileva il tempo di inattività</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>Azzera il timer dopo un&apos;inattività di</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>Attesa</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>Ritardo dopo la fine dell&apos;attività</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>Attende questo tempo dopo che un motivo di Smart Pause è venuto meno, prima che il timer di lavoro riprenda il conto alla rovescia.</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>App di concentrazione</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>Sospendi le pause quando un&apos;app specifica è attiva o aperta. Ogni app può agire solo in primo piano, in primo piano a schermo intero o ogni volta che è in esecuzione.</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>Nessuna app di concentrazione configurata</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>Aggiungi app…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>nessun bus di sessione; in esecuzione, ma impossibile verificare che non sia attiva un&apos;altra istanza di Velto</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>nessun display trovato; in esecuzione senza icona nell&apos;area di notifica</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, ore</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, minuti</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>Nessun timer attivo</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>Tempo rimanente: %1</translation>
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
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minuti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n ora</numerusform>
            <numerusform>%n ore</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes together, such as &quot;2 h 5 min&quot;: %1 is the hours, %2 the minutes.</extracomment>
        <translation>%1 e %2</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Ready</source>
        <extracomment>Nothing is counted yet; shown in the tray menu and as the tray&apos;s title.</extracomment>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Until next break</source>
        <extracomment>The tray menu&apos;s status line after the countdown, as in &quot;24:59 Until next break&quot;.</extracomment>
        <translation>Alla prossima pausa</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>Pausa in corso</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>%n pausa oggi</numerusform>
            <numerusform>%n pause oggi</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Disattiva Velto</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Attiva Velto</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>Fai una pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>Termina pausa</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>Fai una pausa lunga</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>Sospendi per 15 minuti</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Esci da Velto</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Esiste una versione più recente di Velto, ma richiede un sistema più recente di questo.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 è la versione più recente disponibile.</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>Velto è aggiornato</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Velto non è riuscito a controllare gli aggiornamenti</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>Solo in primo piano</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>Anche in secondo piano</translation>
    </message>
</context>
<context>
    <name>Weekday</name>
    <message>
        <source>Sun</source>
        <extracomment>Sunday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Dom</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Monday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Lun</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Tuesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Wednesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Mer</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Thursday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Gio</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Ven</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Saturday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Sab</translation>
    </message>
</context>
<context>
    <name>velto::ActivityDetector</name>
    <message>
        <source>In %1</source>
        <extracomment>Why breaks wait: the user is in a call; %1 is the meeting application&apos;s name, such as Zoom.</extracomment>
        <translation>In chiamata su %1</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>App per riunioni attiva</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>Fotocamera e microfono in uso</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>Fotocamera in uso</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>Microfono in uso</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>Rilevata attività di riunione</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>Video in riproduzione</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>Registrazione dello schermo</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>Gioco in corso</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>Lontano dalla scrivania</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Smart Pause in azione</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>Ripresa a breve…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>App sconosciuta</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>Nessun&apos;altra app è in esecuzione</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Nessuna app corrispondente</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>area di notifica non ancora trovata; le pause funzionano comunque, `velto settings` apre le impostazioni e l&apos;icona comparirà quando ci sarà un&apos;area di notifica</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>questa versione di Velto non cerca aggiornamenti; ci pensa il gestore di pacchetti del sistema</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>Il tuo corpo ti cerca</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>I tuoi occhi hanno bisogno di te</translation>
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
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>1 month</source>
        <extracomment>How long the break history is kept: an option of the &quot;Keep history for&quot; picker.</extracomment>
        <translation>1 mese</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 mesi</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 mesi</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 anno</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>Per sempre</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: ancora da venire</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: una pausa saltata</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: tutte le pause fatte</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: nessuna pausa</translation>
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
            <numerusform>%n fatta</numerusform>
            <numerusform>%n fatte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n saltata</numerusform>
            <numerusform>%n saltate</numerusform>
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
        <translation>In arrivo un riposo profondo</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>In arrivo una pausa breve</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>Concludi o metti da parte ciò che stai facendo. Tra poco avrai l&apos;occasione di staccare più a lungo.</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>Segna il punto in cui sei e completa il pensiero che hai in mente. Tra poco un momento per ricaricarti.</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Pausa tra %n secondo</numerusform>
            <numerusform>Pausa tra %n secondi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Pausa tra %n minuto</numerusform>
            <numerusform>Pausa tra %n minuti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minuti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n secondo</numerusform>
            <numerusform>%n secondi</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>Pausa tra %1 e %2</translation>
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
        <translation>Mostra la pausa su tutti gli schermi collegati</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>Mostra la pausa solo sullo schermo principale</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>Installala quando hai un momento.</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>La versione %1 è pronta quando vuoi.</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>Non è stato possibile attivarla: %1.</translation>
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
            <numerusform>%n s</numerusform>
            <numerusform>%n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n short breaks</source>
        <extracomment>An option of the long-break frequency picker: a long break takes the place of every n-th short one.</extracomment>
        <translation>
            <numerusform>A ogni pausa breve</numerusform>
            <numerusform>Ogni %n pause brevi</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>Nessun ritardo</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n min prima</numerusform>
            <numerusform>%n min prima</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto non è riuscito ad avviare il suo programma di download (%1).</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>Impossibile leggere qui le impostazioni di GNOME Shell</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>Le impostazioni delle estensioni di GNOME Shell sono bloccate su questo sistema</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>Impossibile scrivere le impostazioni di GNOME Shell</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>È disponibile una nuova versione di Velto</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 è disponibile; tu hai la %2. Scaricala dal sito web per aggiornare.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Caricamento delle note di rilascio…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>Impossibile caricare le note di rilascio.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Salta questa versione</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Ricordamelo più tardi</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>Scarica</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Aggiornamento software</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Il server degli aggiornamenti non ha risposto in tempo.</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>L&apos;indirizzo del feed degli aggiornamenti non è sicuro.</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>Il feed degli aggiornamenti è stato reindirizzato a un indirizzo non sicuro.</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>Il feed degli aggiornamenti è troppo grande.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>Il server degli aggiornamenti ha risposto con lo stato %1.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>Impossibile leggere il feed degli aggiornamenti.</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>Velto è aggiornato.</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Esiste una versione più recente di Velto, ma richiede un sistema più recente di questo.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 è la versione più recente disponibile.</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Velto %1 è disponibile; tu hai la %2. Scaricala da %3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 è disponibile; tu hai la %2.</translation>
    </message>
</context>
</TS>
