<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Velto est un petit compagnon logé dans la zone de notification, pour une concentration durable et des pauses régulières.</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>Site web %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>Envoyer vos commentaires à %1</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Envoyer des commentaires</translation>
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
        <translation>Une nouvelle version est disponible</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>Voir la mise à jour</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>Les mises à jour sont fournies par le gestionnaire de paquets du système.</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>Ajouter une application de concentration</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>Rechercher des applications…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Rechercher des applications</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>Applications en cours d’exécution</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>Suspendre les pauses</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>Ajouter l’application</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Velto se loge dans la zone de notification et décompte votre temps de travail. Une minute avant une pause, il affiche un petit encart qui vous permet de prendre la pause tout de suite, de la repousser d’une ou de trois minutes, ou de la passer. Le moment venu, un écran de pause apaisant recouvre vos écrans et décompte une pause courte, ou une pause longue après plusieurs pauses courtes.</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>Smart Pause met le compte à rebours en attente quand une pause serait malvenue&#xa0;: pendant un appel ou une réunion, pendant la lecture d’une vidéo, pendant un enregistrement de l’écran, dans un jeu en plein écran, dans une application sur laquelle vous avez choisi de vous concentrer, et pendant votre absence. Les heures de bureau limitent les rappels aux jours et aux heures où vous travaillez.</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>Velto se pilote aussi depuis un terminal ou un script&#xa0;: velto status, velto break, velto pause, etc.</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>Une pause courte recouvre l’écran et décompte le temps</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>Une minute avant une pause, un encart propose de la prendre tout de suite, de la repousser ou de la passer</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>Le menu de la zone de notification</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>Smart Pause met les pauses en attente pendant les appels, les vidéos, les enregistrements et les jeux</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>Sous GNOME sans zone de notification, Velto s’affiche dans la barre supérieure</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>Première version.</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>Un compte à rebours dans la zone de notification, un encart avant la pause, et des écrans de pause courte et longue sur chaque moniteur</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>Smart Pause sous X11, sous Wayland (sway et autres compositeurs wlroots, KDE Plasma) et sous GNOME grâce à l’extension GNOME Shell de Velto</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>Heures de bureau, préréglages, sons, verrouillage de l’écran, lancement à l’ouverture de session et ligne de commande</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>Personnalisez votre écran de pause pour que chaque pause soit un moment choisi.</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The kind of background: paper, gradient…</extracomment>
        <translation>Style</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>The colours of the gradient background.</extracomment>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Dim level</source>
        <extracomment>How much the break screen&apos;s background is darkened.</extracomment>
        <translation>Niveau d’assombrissement</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>Afficher la pause sur</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>Vos messages&#xa0;:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>Message %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>Supprimer le message %1</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>Ajouter</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>Papier clair</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>Papier sombre</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>Couleur unie</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>Image personnalisée</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>Fond d’écran du système</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>Reposez vos yeux et respirez profondément</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>Regardez un point situé à six mètres</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>Clignez lentement des yeux et détendez-les</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>Étirez vos épaules et votre nuque</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>Bravo&#x202f;! Gardez ces bonnes habitudes</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Regardez ailleurs, et pas votre téléphone</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>Vos rétines ont appelé&#xa0;: elles veulent des vacances</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>Yeux en surchauffe</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>Ne marchandons pas avec notre vue</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>Fixez l’horizon comme un poète</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Votre chaise de bureau vous juge</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>Le sol vous attend</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>La gravité veut vous voir vous étirer</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>L’aventure vous attend (dans votre salon)</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>Il est temps d’aller toucher l’herbe (pour de vrai)</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>Équilibré</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>Concentration profonde</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>Soin des yeux</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>Personnalisé</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>Tous les écrans</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>Écran principal uniquement</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>Passer</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>Terminer la pause</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>Sur ce bureau, toute action au clavier ou à la souris est prise en compte.</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>Équilibrez concentration et repos avec des pauses courtes et longues adaptées à votre rythme.</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>Pauses courtes</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>Intervalle de travail</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>Durée de la pause</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>Pauses longues</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>Activer les pauses longues</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>Comportement des pauses</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>Difficulté pour passer</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>Permettre de terminer la pause plus tôt</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>Délai de saisie</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>Ne pas afficher de pause pendant la saisie</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>Suspend le minuteur de travail pendant que vous tapez, pour qu’une pause risque moins de vous interrompre.</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Verrouillage de l’écran</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>Verrouiller l’écran au début de la pause</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>Verrouille votre session au début d’une pause, à l’aide de l’outil de verrouillage d’écran de votre bureau.</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>Aucun outil de verrouillage d’écran trouvé</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Velto n’a trouvé aucun moyen de verrouiller cette session. Installez ou activez un outil de verrouillage d’écran (par exemple l’écran de verrouillage de votre bureau, light-locker ou xsecurelock), puis réactivez cette option.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>Afficher le compte à rebours, l’état et les pauses du jour</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>Prendre une pause maintenant (une pause longue avec --long)</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>Suspendre les rappels pendant MINUTES minutes (%1 par défaut)</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>Mettre fin à une suspension</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>Passer la prochaine pause</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>Activer les rappels</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>Désactiver les rappels</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>Ouvrir la fenêtre des paramètres</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>Rechercher une nouvelle version et indiquer le résultat</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Quitter Velto</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>Indiquer si l’extension GNOME Shell de Velto est installée, activée et en cours d’exécution, ou l’activer</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shell n’a pas répondu à temps</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>il n’y a pas de GNOME Shell dans cette session</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>l’extension GNOME Shell de Velto n’est pas installée (elle est fournie avec le paquet de Velto)</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>l’extension GNOME Shell n’a pas pu être activée&#xa0;: </translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>Activez-la avec&#xa0;: velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>GNOME Shell laisse toujours l’extension désactivée</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shell n’a pas pu démarrer l’extension&#x202f;; son journal en indique peut-être la raison</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argument inattendu «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>option inconnue «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>commande inconnue «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>gnome-extension attend «&#x202f;status&#x202f;» ou «&#x202f;enable&#x202f;»</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>commande gnome-extension inconnue «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>indiquer une seule des options --json et --csv</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>--days attend un nombre de jours</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days doit être un nombre entier de 1 à %1, et non «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES doit être un nombre entier de 1 à %1, et non «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>option inconnue «&#x202f;%1&#x202f;» pour %2</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>argument inattendu «&#x202f;%1&#x202f;» pour %2</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>Afficher les pauses des N derniers jours (%1 par défaut), une ligne par jour ou chaque événement</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>Utilisation&#xa0;: velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>Sans commande, lance Velto&#x202f;; si Velto est déjà lancé, ouvre plutôt ses paramètres.</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>Commandes pour l’instance de Velto en cours d’exécution&#xa0;:</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Commandes qui fonctionnent avec ou sans Velto en cours d’exécution&#x202f;:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Afficher cette aide</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Afficher la version</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>Code de sortie&#xa0;: 0 en cas de succès, 1 si Velto n’est pas lancé ou ne répond pas (ou si la recherche
de mises à jour a échoué, sans GNOME Shell ou sans extension, ou si son activation a échoué), 2 si les arguments sont invalides.</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Velto n’est pas lancé</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Velto n’a pas répondu dans les %1&#xa0;secondes</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>pas de bus de session&#xa0;: impossible de joindre une instance de Velto en cours d’exécution</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>la fenêtre des paramètres ne peut pas être affichée dans cette session</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>rien à envoyer pour cette commande</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Velto est déjà lancé&#x202f;; sa fenêtre de paramètres est ouverte.</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Velto est déjà lancé.</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Temps restant&#xa0;:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>État&#xa0;:</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>Motif de la suspension&#xa0;:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>Pauses du jour&#xa0;:</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>Rappels&#xa0;:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activés</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivés</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Prises</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Sautées</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>Reportées</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>Plus longue période</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>Smart Pause</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>Aucun événement enregistré ces jours-là.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Détail</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Break Reminder</source>
        <comment>the kind of application, in application menus</comment>
        <translation>Rappel de pause</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>Vous rappelle de reposer vos yeux et de faire des pauses</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>pause;repos;détente;yeux;vue;minuteur;rappel;santé;posture;ergonomie;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>Faire une pause</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>Suspendre 15&#xa0;minutes</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Les applications au premier plan ou en plein écran ne peuvent pas être détectées sur ce bureau&#xa0;: activez l’extension GNOME Shell de Velto.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Les applications au premier plan ou en plein écran ne peuvent pas être détectées sur ce bureau&#xa0;: lancez Velto depuis le menu des applications pour que KWin partage sa liste de fenêtres.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>Les applications au premier plan ou en plein écran ne peuvent pas être détectées sur ce bureau, car son compositeur ne partage aucune liste de fenêtres.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Sur ce bureau, seules les applications X11 peuvent être détectées au premier plan ou en plein écran&#xa0;: activez l’extension GNOME Shell de Velto.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Sur ce bureau, seules les applications X11 peuvent être détectées au premier plan ou en plein écran&#xa0;: lancez Velto depuis le menu des applications pour que KWin partage sa liste de fenêtres.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>Sur ce bureau, seules les applications X11 peuvent être détectées au premier plan ou en plein écran, car son compositeur ne partage aucune liste de fenêtres.</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>La saisie au clavier ne peut pas être détectée sur ce bureau&#xa0;: le délai de saisie est donc sans effet.</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>Sur ce bureau, seule la saisie dans les applications X11 peut être détectée.</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>Premier plan et plein écran</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>Au premier plan</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>Quand elle est ouverte</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>Quand au premier plan et en plein écran</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>Quand au premier plan</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>Suspendre les pauses pour %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>Retirer %1</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Réglez le comportement de base de Velto et son intégration à votre façon de travailler.</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>Paramètres de l’application</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Activer Velto</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>Afficher le minuteur dans la zone de notification</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Horaires</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>Utiliser les heures de bureau</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>Jours actifs</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>Extension GNOME&#xa0;: non installée</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>Extension GNOME&#xa0;: installée, non activée</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>Extension GNOME&#xa0;: activée, active à la prochaine ouverture de session</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>Extension GNOME&#xa0;: activée, mais GNOME Shell n’a pas pu la démarrer</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>Extension GNOME&#xa0;: active</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>D’ici là, Smart Pause ne peut pas voir quelle fenêtre est au premier plan sous GNOME.</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Sans elle, Smart Pause ne peut pas voir quelle fenêtre est au premier plan sous GNOME.</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>Minuit</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Aurore</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Océan</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Coucher de soleil</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Forêt</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>Cosmos</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Épuré</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>Chaleur</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Ardoise</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Lavande</translation>
    </message>
</context>
<context>
    <name>HistoryPane</name>
    <message>
        <source>See how your breaks went, day by day.</source>
        <translation>Voyez comment se sont passées vos pauses, jour après jour.</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>Chargement de l’historique</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Pas encore d’historique</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>Chaque pause prise ou sautée apparaîtra ici.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>Pauses prises</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>Sautées</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>Plus longue période sans pause</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>Retenu par Smart Pause</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>Pauses par jour</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>7 derniers jours</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>30 derniers jours</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>Prises</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>Série</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n&#xa0;jour d’affilée avec toutes les pauses prises</numerusform>
            <numerusform>%n&#xa0;jours d’affilée avec toutes les pauses prises</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>Pas encore de série&#xa0;: prenez toutes les pauses d’une journée pour en commencer une.</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>Cette semaine</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>Toutes les pauses prises</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>Pause sautée</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>Aucune pause</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>Conserver l’historique pendant</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>Les jours plus anciens sont supprimés. L’historique ne quitte jamais cet ordinateur.</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Effacer l’historique…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>Effacer l’historique des pauses&#x202f;?</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>Toutes les pauses, suspensions et retenues de Smart Pause enregistrées sont supprimées. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Effacer l’historique</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>PROCHAINE PAUSE</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>PAUSE DANS</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>Pause maintenant</translation>
    </message>
    <message>
        <source>1 min</source>
        <extracomment>A small button of the card: put the break off by one minute. Keep it short.</extracomment>
        <translation>1&#xa0;min</translation>
    </message>
    <message>
        <source>3 min</source>
        <extracomment>A small button of the card: put the break off by three minutes. Keep it short.</extracomment>
        <translation>3&#xa0;min</translation>
    </message>
    <message>
        <source>Skip</source>
        <extracomment>A small button of the card: skip the coming break.</extracomment>
        <translation>Passer</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>Passer la pause</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>Reprend le travail et passe cette pause si vos réglages le permettent.</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>Balayez pour fermer</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Impossible de supprimer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>Impossible de créer le dossier de démarrage automatique %1</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Impossible d’écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>Échec de la mise à jour du lancement à l’ouverture de session&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>Choisissez comment Velto vous tient informé sans vous déranger.</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>Préavis</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>Prévenir avant les pauses</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>Afficher une notification</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>Son au début de la pause</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>Son à la fin de la pause</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>Volume du son</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>Suspendu · reprise dans %n&#xa0;min</numerusform>
            <numerusform>Suspendu · reprise dans %n&#xa0;min</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Suspendu</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>En dehors des heures de bureau</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>Pauses désactivées</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Smart Pause en cours</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>Vos modifications n’ont pas pu être enregistrées. Elles s’appliquent jusqu’à la fermeture de Velto.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>Pauses</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>Général</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>Smart Pause</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Paramètres de Velto</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>Barre latérale</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>Afficher ou masquer la liste des catégories de paramètres</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>Catégories de paramètres</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>Historique</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>Souple</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Modéré</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>Strict</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>%1 est au premier plan</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>%1 est en cours d’exécution</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>Application de concentration active</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>Laissez Velto s’adapter à ce que vous faites et suspendre les pauses quand il le faut.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>Détection d’activité</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>Suspendre pendant les réunions ou les appels</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>Suspend les pauses quand vous êtes probablement en appel ou en réunion, et non quand vous naviguez simplement sur le Web.</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>Suspendre pendant la lecture de vidéos</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>Mode de détection vidéo</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>«&#x202f;Premier plan uniquement&#x202f;» ne vérifie que l’application active. «&#x202f;Aussi en arrière-plan&#x202f;» suspend également les pauses quand un lecteur pris en charge joue derrière une autre fenêtre.</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>Suspendre pendant l’enregistrement de l’écran</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>Suspendre pendant les jeux en plein écran</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>Détection d’inactivité</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>Détecter l’inactivité</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>Réinitialiser le minuteur après une inactivité de</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>Délai de reprise</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>Délai après la fin de l’activité</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>Attend ce délai après la disparition d’un motif de Smart Pause avant que votre minuteur de travail ne reprenne son décompte.</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>Applications de concentration</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>Suspendre les pauses quand une application précise est active ou ouverte. Chaque application peut agir au premier plan seulement, au premier plan en plein écran, ou dès qu’elle est lancée.</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>Aucune application de concentration configurée</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>Ajouter une application…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>pas de bus de session&#x202f;; Velto fonctionne, mais ne peut pas s’assurer qu’aucune autre instance de Velto n’est lancée</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>aucun affichage trouvé&#x202f;; fonctionnement sans icône dans la zone de notification</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, heures</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, minutes</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>Aucun minuteur actif</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>Temps restant&#xa0;: %1</translation>
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
            <numerusform>%n&#xa0;minute</numerusform>
            <numerusform>%n&#xa0;minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n&#xa0;heure</numerusform>
            <numerusform>%n&#xa0;heures</numerusform>
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
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Until next break</source>
        <extracomment>The tray menu&apos;s status line after the countdown, as in &quot;24:59 Until next break&quot;.</extracomment>
        <translation>Avant la prochaine pause</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>Pause en cours</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>%n&#xa0;pause aujourd’hui</numerusform>
            <numerusform>%n&#xa0;pauses aujourd’hui</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Désactiver Velto</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Activer Velto</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>Faire une pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>Terminer la pause</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>Faire une pause longue</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>Suspendre 15&#xa0;minutes</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Quitter Velto</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Une version plus récente de Velto existe, mais elle nécessite un système plus récent que celui-ci.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 est la version la plus récente disponible.</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>Velto est à jour</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Velto n’a pas pu rechercher de mises à jour</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>Premier plan uniquement</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>Aussi en arrière-plan</translation>
    </message>
</context>
<context>
    <name>Weekday</name>
    <message>
        <source>Sun</source>
        <extracomment>Sunday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Dim</translation>
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
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Ven</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Saturday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Sam</translation>
    </message>
</context>
<context>
    <name>velto::ActivityDetector</name>
    <message>
        <source>In %1</source>
        <extracomment>Why breaks wait: the user is in a call; %1 is the meeting application&apos;s name, such as Zoom.</extracomment>
        <translation>En appel sur %1</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>Application de réunion active</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>Caméra et micro utilisés</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>Caméra utilisée</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>Micro utilisé</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>Activité de réunion détectée</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>Vidéo en cours</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>Enregistrement de l’écran</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>Jeu en cours</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>Absent du poste</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Smart Pause en cours</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>Reprise en douceur…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>Application inconnue</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>Aucune autre application n’est en cours d’exécution</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Aucune application correspondante</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>pas encore de zone de notification&#x202f;; les pauses fonctionnent quand même, `velto settings` ouvre les paramètres, et l’icône apparaîtra avec la zone de notification</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>cette version de Velto ne recherche pas de mises à jour&#x202f;; c’est le gestionnaire de paquets du système qui la met à jour</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>Votre corps vous réclame</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>Vos yeux ont besoin de vous</translation>
    </message>
</context>
<context>
    <name>velto::HistoryPaneModel</name>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration of the History pane: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n&#xa0;min</numerusform>
            <numerusform>%n&#xa0;min</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>A duration of the History pane, such as &quot;1 h 05 min&quot;: %1 is the hours, %2 the minutes (two digits).</extracomment>
        <translation>%1&#xa0;h %2&#xa0;min</translation>
    </message>
    <message>
        <source>1 month</source>
        <extracomment>How long the break history is kept: an option of the &quot;Keep history for&quot; picker.</extracomment>
        <translation>1&#xa0;mois</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3&#xa0;mois</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6&#xa0;mois</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1&#xa0;an</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>Pour toujours</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1&#xa0;: à venir</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1&#xa0;: une pause sautée</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1&#xa0;: toutes les pauses prises</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1&#xa0;: aucune pause</translation>
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
            <numerusform>%n prise</numerusform>
            <numerusform>%n prises</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n sautée</numerusform>
            <numerusform>%n sautées</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <extracomment>Spoken for a bar of the History chart, such as &quot;Mon 3 Nov: 5 taken, 1 skipped&quot;: %1 is the day, %2 the breaks taken, %3 those skipped.</extracomment>
        <translation>%1&#xa0;: %2, %3</translation>
    </message>
</context>
<context>
    <name>velto::PreBreakNotificationDisplayModel</name>
    <message>
        <source>Deep rest coming up</source>
        <extracomment>The title of the notice shown shortly before a break.</extracomment>
        <translation>Un long repos approche</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>Une petite pause approche</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>Terminez ou mettez de côté votre tâche&#x202f;: une pause plus longue approche.</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>Notez où vous en êtes et terminez votre idée. Un bref moment de répit arrive.</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Pause dans %n&#xa0;seconde</numerusform>
            <numerusform>Pause dans %n&#xa0;secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Pause dans %n&#xa0;minute</numerusform>
            <numerusform>Pause dans %n&#xa0;minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n&#xa0;minute</numerusform>
            <numerusform>%n&#xa0;minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n&#xa0;seconde</numerusform>
            <numerusform>%n&#xa0;secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>Pause dans %1 et %2</translation>
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
        <translation>Afficher la pause sur tous les écrans connectés</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>Afficher la pause uniquement sur votre écran principal</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>Installez-la quand vous aurez un moment.</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>La version %1 est prête quand vous l’êtes.</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>Elle n’a pas pu être activée&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>An option of a picker of durations: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n&#xa0;min</numerusform>
            <numerusform>%n&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec</source>
        <extracomment>An option of the short-break duration picker: a number of seconds, abbreviated.</extracomment>
        <translation>
            <numerusform>%n&#xa0;s</numerusform>
            <numerusform>%n&#xa0;s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n short breaks</source>
        <extracomment>An option of the long-break frequency picker: a long break takes the place of every n-th short one.</extracomment>
        <translation>
            <numerusform>À chaque pause courte</numerusform>
            <numerusform>Toutes les %n&#xa0;pauses courtes</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>Aucun délai</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n&#xa0;min avant</numerusform>
            <numerusform>%n&#xa0;min avant</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto n’a pas pu lancer son programme de téléchargement (%1).</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>Les paramètres de GNOME Shell ne peuvent pas être lus ici</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>Les paramètres d’extensions de GNOME Shell sont verrouillés sur ce système</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>Les paramètres de GNOME Shell n’ont pas pu être écrits</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour logicielle</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>Une nouvelle version de Velto est disponible</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 est disponible&#x202f;; vous avez la version %2. Téléchargez-la depuis le site web pour mettre à jour.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Chargement des notes de version…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>Les notes de version n’ont pas pu être chargées.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>Télécharger</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour logicielle</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Le serveur de mises à jour n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>L’adresse du flux de mises à jour n’est pas sécurisée.</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>Le flux de mises à jour a été redirigé vers une adresse non sécurisée.</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>Le flux de mises à jour est trop volumineux.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>Le serveur de mises à jour a répondu avec le code %1.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>Le flux de mises à jour n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>Velto est à jour.</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Une version plus récente de Velto existe, mais elle nécessite un système plus récent que celui-ci.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 est la version la plus récente disponible.</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Velto %1 est disponible&#x202f;; vous avez la version %2. Téléchargez-la sur %3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 est disponible&#x202f;; vous avez la version %2.</translation>
    </message>
</context>
</TS>
