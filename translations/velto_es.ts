<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Velto es un pequeño compañero en la bandeja del sistema para mantener la concentración y descansar de forma sostenible.</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>Sitio web %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>Enviar comentarios a %1</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>Hay una versión más reciente disponible</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>Revisar actualización</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>Las actualizaciones llegan a través del gestor de paquetes del sistema.</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>Añadir app de concentración</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>Buscar apps…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Buscar apps</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>Apps en ejecución</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>Pausar descansos</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>Añadir app</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Velto vive en la bandeja del sistema y lleva la cuenta atrás de tu tiempo de trabajo. Un minuto antes de cada descanso muestra una pequeña tarjeta que te permite descansar ya, aplazarlo uno o tres minutos, u omitirlo. Cuando llega la hora, una tranquila pantalla de descanso cubre tus monitores y lleva la cuenta atrás de un descanso corto o, cada pocos descansos, de uno largo.</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>La Pausa inteligente detiene la cuenta atrás cuando un descanso sería inoportuno: durante una llamada o una reunión, mientras se reproduce un vídeo, mientras se graba la pantalla, en un juego a pantalla completa, en una aplicación en la que has elegido concentrarte y mientras estás ausente. El horario laboral limita los recordatorios a los días y las horas en que trabajas.</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>Velto también se puede controlar desde un terminal o un script: velto status, velto break, velto pause y más.</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>Un descanso corto cubre la pantalla y lleva la cuenta atrás</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>Un minuto antes de un descanso, una tarjeta ofrece empezarlo ya, aplazarlo u omitirlo</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>El menú de la bandeja del sistema</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>La Pausa inteligente retiene los descansos durante llamadas, vídeos, grabaciones y juegos</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>En GNOME sin bandeja del sistema, Velto aparece en la barra superior</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>La primera versión.</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>Una cuenta atrás en la bandeja del sistema, una tarjeta previa al descanso y pantallas de descanso corto y largo en cada monitor</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>Pausa inteligente en X11, en Wayland (sway y otros compositores wlroots, KDE Plasma) y en GNOME mediante la propia extensión de Shell de Velto</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>Horario laboral, preajustes, avisos sonoros, bloqueo de pantalla, inicio automático con la sesión y línea de comandos</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>Personaliza tu pantalla de descanso para que cada pausa tenga sentido.</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The kind of background: paper, gradient…</extracomment>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>The colours of the gradient background.</extracomment>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Dim level</source>
        <extracomment>How much the break screen&apos;s background is darkened.</extracomment>
        <translation>Nivel de oscurecimiento</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>Mostrar el descanso en</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>Tus mensajes:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>Mensaje %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>Quitar mensaje %1</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>Añadir</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>Papel claro</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Degradado</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>Papel oscuro</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>Color sólido</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>Imagen personalizada</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>Fondo de escritorio</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>Descansa la vista y respira hondo</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>Mira algo que esté a unos 6 metros</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>Parpadea despacio y relaja la vista</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>Estira los hombros y el cuello</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>¡Lo estás haciendo genial! Sigue con esos hábitos saludables</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Aparta la vista, y no hacia el móvil</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>Han llamado tus retinas: quieren su descanso</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>Ojos en modo brrrr</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>Con la vista no se juega</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>Mira a lo lejos como un poeta</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Tu silla te está juzgando</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>El suelo te espera</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>La gravedad quiere verte estirarte</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>La aventura te espera (en tu salón)</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>Hora de que te dé el aire (literalmente)</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>Equilibrado</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>Concentración profunda</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>Cuidado de la vista</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>Personalizado</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>Todas las pantallas</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>Solo la pantalla principal</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>Terminar descanso</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>En este escritorio cuenta cualquier pulsación de teclado o movimiento del puntero.</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>Equilibra el trabajo concentrado y el reposo con descansos cortos y largos a tu medida.</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>Descansos cortos</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>Intervalo de trabajo</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>Duración del descanso</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>Descansos largos</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>Activar descansos largos</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>Comportamiento de los descansos</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>Dificultad para omitir</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>Permitir terminar el descanso antes de tiempo</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>Retraso al escribir</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>No mostrar descansos mientras escribes</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>Pausa el temporizador de trabajo mientras escribes, para que sea menos probable que un descanso te interrumpa.</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Bloqueo de pantalla</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>Bloquear la pantalla al empezar el descanso</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>Bloquea tu sesión cuando empieza un descanso, con el bloqueo de pantalla de tu escritorio.</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>Preajustes</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>No se ha encontrado ningún bloqueo de pantalla</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Velto no ha encontrado ninguna forma de bloquear esta sesión. Instala o activa un bloqueador de pantalla (por ejemplo, el bloqueo de pantalla de tu escritorio, light-locker o xsecurelock) y vuelve a activar esta opción.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>Mostrar la cuenta atrás, el estado y los descansos de hoy</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>Tomar un descanso ahora (uno largo con --long)</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>Pausar los recordatorios durante MINUTES minutos (%1 si no se indica)</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>Terminar una pausa</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>Omitir el próximo descanso</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>Activar los recordatorios</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>Desactivar los recordatorios</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>Abrir la ventana de configuración</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>Buscar una versión más reciente e informar del resultado</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Salir de Velto</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>Indicar si la extensión de GNOME Shell de Velto está instalada, activada y en ejecución, o activarla</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shell no ha respondido a tiempo</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>no hay ningún GNOME Shell en esta sesión</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>la extensión de GNOME Shell de Velto no está instalada (viene con el paquete de Velto)</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>no se ha podido activar la extensión de GNOME Shell: </translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>Actívala con: velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>GNOME Shell sigue teniendo la extensión desactivada</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shell no ha podido iniciar la extensión; puede que su registro indique el motivo</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argumento inesperado «%1»</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>opción desconocida «%1»</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>comando desconocido «%1»</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>gnome-extension necesita «status» o «enable»</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>comando de gnome-extension desconocido «%1»</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>indique solo una de las opciones --json y --csv</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>--days necesita un número de días</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days debe ser un número entero de 1 a %1, no «%2»</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES debe ser un número entero de 1 a %1, no «%2»</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>opción desconocida «%1» para %2</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>argumento inesperado «%1» para %2</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>Mostrar los descansos de los últimos N días (%1 si no se indica), una línea por día o cada evento</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>Uso: velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>Sin comando, inicia Velto; si Velto ya se está ejecutando, abre su configuración.</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>Comandos para el Velto en ejecución:</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Comandos que funcionan con o sin Velto en ejecución:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Mostrar esta ayuda</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Mostrar la versión</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>Estado de salida: 0 si todo va bien, 1 si Velto no se está ejecutando o no responde (o ha fallado la búsqueda
de actualizaciones, o no hay GNOME Shell o extensión, o no se ha podido activar), 2 si los argumentos no son válidos.</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Velto no se está ejecutando</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Velto no ha respondido en %1 segundos</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>no hay bus de sesión, así que no se puede contactar con ningún Velto en ejecución</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>la ventana de configuración no se puede mostrar en esta sesión</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>no hay nada que enviar para este comando</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Velto ya se está ejecutando; su ventana de configuración está abierta.</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Velto ya se está ejecutando.</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Tiempo restante:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>Motivo de la pausa:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>Descansos hoy:</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>Recordatorios:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activados</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivados</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>Día</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Tomados</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Omitidos</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>Pospuestos</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>Mayor tramo</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>Pausa inteligente</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>No hay eventos registrados en estos días.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Descanso</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalle</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Break Reminder</source>
        <comment>the kind of application, in application menus</comment>
        <translation>Recordatorio de descansos</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>Te recuerda que descanses la vista y te tomes un respiro</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>descanso;pausa;respiro;ojos;vista;temporizador;salud;postura;ergonomía;recordatorio;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>Tomar un descanso</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>Pausar 15 minutos</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>En este escritorio no se pueden detectar las apps en primer plano o a pantalla completa: activa la extensión de GNOME Shell de Velto.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>En este escritorio no se pueden detectar las apps en primer plano o a pantalla completa: inicia Velto desde el menú de aplicaciones para que KWin comparta su lista de ventanas.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>En este escritorio no se pueden detectar las apps en primer plano o a pantalla completa, porque su compositor no comparte ninguna lista de ventanas.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>En este escritorio solo se pueden detectar en primer plano o a pantalla completa las apps X11: activa la extensión de GNOME Shell de Velto.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>En este escritorio solo se pueden detectar en primer plano o a pantalla completa las apps X11: inicia Velto desde el menú de aplicaciones para que KWin comparta su lista de ventanas.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>En este escritorio solo se pueden detectar en primer plano o a pantalla completa las apps X11, porque su compositor no comparte ninguna lista de ventanas.</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>En este escritorio no se puede detectar la escritura, así que el retraso al escribir no tiene efecto.</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>En este escritorio solo se puede detectar la escritura en apps X11.</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>Primer plano y pantalla completa</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>En primer plano</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>Cuando está abierta</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>Cuando está en primer plano y a pantalla completa</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>Cuando está en primer plano</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>Pausar descansos con %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>Quitar %1</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Controla el comportamiento básico de Velto y cómo encaja en tu forma de trabajar.</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>Configuración de la app</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Activar Velto</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>Mostrar el temporizador en el panel</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Horario</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>Usar horario laboral</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>Días activos</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restablecer valores predeterminados</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>Extensión de GNOME: no instalada</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>Extensión de GNOME: instalada, no activada</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>Extensión de GNOME: activada, funcionará tras el próximo inicio de sesión</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>Extensión de GNOME: activada, pero GNOME Shell no ha podido iniciarla</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>Extensión de GNOME: en funcionamiento</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Hasta entonces, la Pausa inteligente no puede ver qué ventana está en primer plano en GNOME.</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Sin ella, la Pausa inteligente no puede ver qué ventana está en primer plano en GNOME.</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>Medianoche</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Océano</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Atardecer</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Bosque</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>Cosmos</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Minimalista</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>Calidez</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Pizarra</translation>
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
        <translation>Mira cómo fueron tus descansos, día a día.</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>Cargando el historial</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Aún no hay historial</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>Cada descanso que tomes u omitas aparecerá aquí.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>Descansos tomados</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>Omitidos</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>Mayor tramo sin descanso</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>Retenido por la Pausa inteligente</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>Descansos por día</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Últimos 7 días</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Últimos 30 días</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>Tomados</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>Racha</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n día seguido con todos los descansos tomados</numerusform>
            <numerusform>%n días seguidos con todos los descansos tomados</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>Aún no hay racha: toma todos los descansos de un día para empezar una.</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>Esta semana</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>Todos los descansos tomados</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>Descanso omitido</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>Sin descansos</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>Conservar el historial durante</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>Los días más antiguos se eliminan. El historial nunca sale de este equipo.</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Borrar historial…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>¿Borrar el historial de descansos?</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>Se eliminarán todos los descansos, pausas y retenciones de la Pausa inteligente registrados. No se puede deshacer.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Borrar historial</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>PRÓXIMO DESCANSO</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>DESCANSO EN</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>Descansar ya</translation>
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
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>Omitir descanso</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>Vuelve al trabajo y omite este descanso si la dificultad para omitir lo permite.</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>Desliza para cerrar</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>No se ha podido eliminar %1: %2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>No se ha podido crear la carpeta de inicio automático %1</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>No se ha podido escribir %1: %2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>No se ha podido cambiar el inicio automático: %1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>Elige cómo te mantiene informado Velto sin estorbar.</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>Aviso previo</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>Avisar antes de los descansos</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>Mostrar aviso</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>Sonar al empezar el descanso</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>Sonar al terminar el descanso</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>Volumen del aviso sonoro</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>En pausa · se reanuda en %n min</numerusform>
            <numerusform>En pausa · se reanuda en %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>Fuera del horario laboral</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>Descansos desactivados</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Pausa inteligente activa</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>No se han podido guardar los cambios. Se aplicarán hasta que se cierre Velto.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>Descansos</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>General</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>Pausa inteligente</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Configuración de Velto</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>Mostrar u ocultar la lista de categorías de configuración</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>Categorías de configuración</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>Historial</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>Flexible</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Moderada</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>Estricta</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>%1 está en primer plano</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>%1 está en ejecución</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>App de concentración activa</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>Deja que Velto se adapte a lo que haces y pause los descansos cuando importa.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>Detección de actividad</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>Pausar durante reuniones o llamadas</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>Pausa cuando probablemente estás en una llamada o una reunión, no cuando solo navegas por la web.</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>Pausar durante la reproducción de vídeo</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>Modo de detección de vídeo</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>«Solo en primer plano» comprueba únicamente la app activa. «También en segundo plano» pausa además cuando un reproductor compatible está reproduciendo detrás de otra ventana.</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>Pausar durante la grabación de pantalla</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>Pausar durante juegos a pantalla completa</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>Detección de inactividad</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>Detectar tiempo de inactividad</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>Reiniciar el temporizador tras una inactividad de</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>Margen de espera</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>Espera tras terminar la actividad</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>Espera este tiempo después de que desaparezca un motivo de la Pausa inteligente, antes de que el temporizador de trabajo vuelva a contar.</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>Apps de concentración</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>Pausa los descansos cuando una app concreta está activa o abierta. Cada app puede pausarlos solo en primer plano, en primer plano a pantalla completa o siempre que esté en ejecución.</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>No hay apps de concentración configuradas</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>Añadir app…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>no hay bus de sesión; en ejecución, pero sin poder comprobar que no se esté ejecutando otro Velto</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>no se ha encontrado ninguna pantalla; en ejecución sin icono en la bandeja del sistema</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1: hora</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1: minutos</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>Ningún temporizador activo</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>Tiempo restante: %1</translation>
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
            <numerusform>%n min</numerusform>
            <numerusform>%n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n h</numerusform>
            <numerusform>%n h</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes together, such as &quot;2 h 5 min&quot;: %1 is the hours, %2 the minutes.</extracomment>
        <translation>%1 y %2</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Ready</source>
        <extracomment>Nothing is counted yet; shown in the tray menu and as the tray&apos;s title.</extracomment>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Until next break</source>
        <extracomment>The tray menu&apos;s status line after the countdown, as in &quot;24:59 Until next break&quot;.</extracomment>
        <translation>Hasta el próximo descanso</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>Descanso en curso</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>%n descanso hoy</numerusform>
            <numerusform>%n descansos hoy</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Desactivar Velto</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Activar Velto</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>Tomar un descanso</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>Terminar descanso</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>Tomar un descanso largo</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>Pausar 15 minutos</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Salir de Velto</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Existe una versión más reciente de Velto, pero requiere un sistema más nuevo que este.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 es la versión más reciente disponible.</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>Velto está actualizado</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Velto no ha podido buscar actualizaciones</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>Solo en primer plano</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>También en segundo plano</translation>
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
        <translation>Mié</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Thursday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Jue</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Vie</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Saturday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Sáb</translation>
    </message>
</context>
<context>
    <name>velto::ActivityDetector</name>
    <message>
        <source>In %1</source>
        <extracomment>Why breaks wait: the user is in a call; %1 is the meeting application&apos;s name, such as Zoom.</extracomment>
        <translation>En %1</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>App de reuniones activa</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>Cámara y micrófono en uso</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>Cámara en uso</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>Micrófono en uso</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>Actividad de reunión detectada</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>Viendo un vídeo</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>Grabando la pantalla</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>Jugando</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Pausa inteligente activa</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>Un momento más…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>App desconocida</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>No hay otras apps en ejecución</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Ninguna app coincide</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>aún no se ha encontrado ninguna bandeja del sistema; los descansos siguen funcionando, `velto settings` abre la configuración y el icono aparecerá cuando haya una bandeja</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>este Velto no busca actualizaciones; lo actualiza el gestor de paquetes del sistema</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>Tu cuerpo te echa de menos</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>Tus ojos te necesitan</translation>
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
        <translation>1 mes</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 meses</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 meses</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 año</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>Siempre</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: por llegar</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: un descanso omitido</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: todos los descansos tomados</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: sin descansos</translation>
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
            <numerusform>%n tomado</numerusform>
            <numerusform>%n tomados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n omitido</numerusform>
            <numerusform>%n omitidos</numerusform>
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
        <translation>Se acerca un descanso largo</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>Se acerca un descanso breve</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>Termina o aparca tu tarea. Ya casi tienes una ocasión más larga para desconectar.</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>Guarda por dónde vas y termina la idea. Se acerca un pequeño respiro.</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Descanso en %n segundo</numerusform>
            <numerusform>Descanso en %n segundos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Descanso en %n minuto</numerusform>
            <numerusform>Descanso en %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>Descanso en %1 y %2</translation>
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
        <translation>Mostrar el descanso en todas las pantallas conectadas</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>Mostrar el descanso solo en tu pantalla principal</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>Instálala cuando tengas un momento.</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>La versión %1 está lista cuando quieras.</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>No se ha podido activar: %1.</translation>
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
            <numerusform>En cada descanso corto</numerusform>
            <numerusform>Cada %n descansos cortos</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>Sin espera</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n min antes</numerusform>
            <numerusform>%n min antes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto no pudo iniciar su programa auxiliar de descarga (%1).</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>No se puede leer aquí la configuración de GNOME Shell</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>La configuración de extensiones de GNOME Shell está bloqueada en este sistema</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>No se ha podido escribir la configuración de GNOME Shell</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>Hay una nueva versión de Velto disponible</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 está disponible; tienes la %2. Descárgalo del sitio web para actualizar.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Cargando las notas de la versión…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>No se han podido cargar las notas de la versión.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>Descargar</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>El servidor de actualizaciones no ha respondido a tiempo.</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>La dirección del canal de actualizaciones no es segura.</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>El canal de actualizaciones se ha redirigido a una dirección que no es segura.</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>El canal de actualizaciones es demasiado grande.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>El servidor de actualizaciones ha respondido con el estado %1.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>No se ha podido leer el canal de actualizaciones.</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>Velto está actualizado.</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Existe una versión más reciente de Velto, pero requiere un sistema más nuevo que este.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 es la versión más reciente disponible.</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Velto %1 está disponible; tienes la %2. Descárgalo desde %3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 está disponible; tienes la %2.</translation>
    </message>
</context>
</TS>
