<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk_UA">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Velto — невеликий помічник на панелі для стійкої зосередженості та регулярних перерв.</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>Вебсайт %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Вебсайт</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>Надіслати відгук на %1</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Надіслати відгук</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>Версія</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>Версія %1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>Доступна новіша збірка</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>Переглянути оновлення</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Перевірити оновлення…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>Оновлення надходять через менеджер пакунків системи.</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>Додати застосунок для фокусу</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>Пошук застосунків…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Пошук застосунків</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>Запущені застосунки</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>Відкладати перерви</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>Додати застосунок</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Velto живе в системному лотку й відлічує ваш робочий час. За хвилину до перерви він показує невелику картку, з якої можна почати перерву одразу, відкласти її на одну чи три хвилини або пропустити. Коли час спливає, спокійний екран перерви закриває ваші дисплеї та відлічує коротку перерву — або довгу, раз на кілька перерв.</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>«Розумна пауза» стримує відлік, коли перерва була б недоречною: під час дзвінка чи зустрічі, коли відтворюється відео, коли записується екран, у повноекранній грі, у застосунку, який ви обрали для зосередженої роботи, і поки вас немає за комп’ютером. Робочі години обмежують нагадування днями й годинами, коли ви працюєте.</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>Керувати Velto можна також із термінала чи скрипту: velto status, velto break, velto pause та інші команди.</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>Коротка перерва закриває екран і веде зворотний відлік</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>За хвилину до перерви картка пропонує почати її зараз, відкласти або пропустити</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>Меню в системному лотку</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>«Розумна пауза» відкладає перерви під час дзвінків, відео, запису екрана та ігор</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>У GNOME без системного лотка Velto показується на верхній панелі</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>Перший випуск.</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>Зворотний відлік у системному лотку, картка перед перервою, екрани короткої й довгої перерви на всіх дисплеях</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>«Розумна пауза» в X11, у Wayland (sway та інші композитори на wlroots, KDE Plasma) і в GNOME — через власне розширення Velto для GNOME Shell</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>Робочі години, готові набори налаштувань, звукові сигнали, блокування екрана, запуск під час входу в систему та командний рядок</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>Налаштуйте екран перерви, щоб кожна пауза була усвідомленою.</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The kind of background: paper, gradient…</extracomment>
        <translation>Стиль</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>The colours of the gradient background.</extracomment>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Dim level</source>
        <extracomment>How much the break screen&apos;s background is darkened.</extracomment>
        <translation>Затемнення</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>Дисплей</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>Де показувати перерву</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>Повідомлення</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>Ваші повідомлення:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Повідомлення</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>Повідомлення %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>Видалити повідомлення %1</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>Додати</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>Світлий папір</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Градієнт</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>Темний папір</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>Суцільний колір</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>Власне зображення</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>Системні шпалери</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>Дайте очам відпочити й глибоко вдихніть</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>Погляньте на щось за шість метрів від вас</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>Повільно покліпайте й розслабте очі</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>Розімніть плечі та шию</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>Ви молодець! Не кидайте корисних звичок</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Відведіть погляд — тільки не в телефон</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>Дзвонила ваша сітківка: просить відпочинку</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>Очі вже гудуть</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>Не торгуймося з власним зором</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>Дивіться вдалечінь, як поет</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Ваше крісло вас засуджує</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>Підлога чекає на вас</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>Гравітація хоче побачити, як ви потягуєтеся</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>Пригоди чекають (у вашій вітальні)</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>Час торкнутися трави (буквально)</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>Збалансований</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>Глибока зосередженість</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>Турбота про очі</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>Власний</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>Усі екрани</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>Лише основний екран</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>Пропустити</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>Завершити перерву</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>У цьому середовищі враховується будь-яке введення з клавіатури чи миші.</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>Знайдіть баланс між зосередженістю та відпочинком завдяки коротким і довгим перервам, що підходять саме вам.</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>Короткі перерви</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>Час роботи</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>Тривалість перерви</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>Довгі перерви</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>Увімкнути довгі перерви</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>Тривалість</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>Поведінка перерв</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>Режим пропуску</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>Дозволити завершувати перерву достроково</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>Затримка під час набору тексту</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>Не показувати перерви під час набору тексту</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>Призупиняє робочий таймер, поки ви друкуєте, щоб перерва рідше переривала вас на півслові.</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Блокування екрана</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>Блокувати екран на початку перерви</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>Блокує сеанс на початку перерви за допомогою блокувальника екрана вашого середовища.</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>Готові набори</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>Блокувальник екрана не знайдено</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Velto не вдалося знайти спосіб заблокувати цей сеанс. Установіть або увімкніть блокувальник екрана (наприклад, екран блокування вашого середовища, light-locker чи xsecurelock), а потім знову увімкніть цей параметр.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>Показати зворотний відлік, стан і сьогоднішні перерви</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>Почати перерву зараз (довгу — з --long)</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>Призупинити нагадування на MINUTES хвилин (типово %1)</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>Завершити паузу</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>Пропустити найближчу перерву</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>Увімкнути нагадування</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>Вимкнути нагадування</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>Відкрити вікно налаштувань</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>Перевірити наявність нової версії та повідомити результат</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Вийти з Velto</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>Повідомити, чи встановлено, увімкнено й запущено розширення Velto для GNOME Shell, або увімкнути його</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shell не відповів вчасно</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>у цьому сеансі немає GNOME Shell</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>розширення Velto для GNOME Shell не встановлено (воно постачається в пакунку Velto)</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>не вдалося увімкнути розширення GNOME Shell: </translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>Увімкніть його командою: velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>у GNOME Shell розширення досі вимкнене</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shell не зміг запустити розширення; причину може бути вказано в його журналі</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>неочікуваний аргумент «%1»</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>невідомий параметр «%1»</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>невідома команда «%1»</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>для gnome-extension потрібна команда «status» або «enable»</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>невідома команда gnome-extension «%1»</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>вкажіть лише одне з --json і --csv</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>для --days потрібна кількість днів</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days має бути цілим числом від 1 до %1, а не «%2»</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES має бути цілим числом від 1 до %1, а не «%2»</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>невідомий параметр «%1» для %2</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>неочікуваний аргумент «%1» для %2</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>Показати перерви за останні N днів (типово %1), рядок на день або кожну подію</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>Використання: velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>Без команди запускає Velto; якщо Velto вже запущено, відкриває його налаштування.</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>Команди для запущеного Velto:</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Команди, що працюють і без запущеного Velto:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Параметри:</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Показати цю довідку</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Показати версію</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>Код завершення: 0 у разі успіху, 1, якщо Velto не запущено або він не відповідає (чи не вдалася перевірка
оновлень, чи немає GNOME Shell або розширення, чи не вдалося його увімкнути), 2 у разі неправильних аргументів.</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Velto не запущено</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Velto не відповів протягом %1 с</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>немає сеансової шини, тож зв’язатися із запущеним Velto неможливо</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>у цьому сеансі неможливо показати вікно налаштувань</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>для цієї команди нічого надсилати</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Velto вже запущено; його вікно налаштувань відкрито.</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Velto вже запущено.</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Залишилося:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Стан:</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>Причина паузи:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>немає</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>Перерв сьогодні:</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>Нагадування:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>увімкнено</translation>
    </message>
    <message>
        <source>off</source>
        <translation>вимкнено</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>День</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Зроблено</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Пропущено</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>Відкладено</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Робота</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>Найдовше</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>Розумна пауза</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>За ці дні подій не записано.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>Час</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Подія</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Перерва</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Подробиці</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Секунди</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Break Reminder</source>
        <comment>the kind of application, in application menus</comment>
        <translation>Нагадування про перерви</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>Нагадує дати очам відпочити й робити перерви</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>перерва;відпочинок;очі;зір;пауза;таймер;нагадування;здоров’я;постава;break;rest;eyes;pause;timer;health;posture;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>Зробити перерву</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>Призупинити на 15 хвилин</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>У цьому середовищі не видно, які застосунки на передньому плані чи в повноекранному режимі: увімкніть розширення Velto для GNOME Shell.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>У цьому середовищі не видно, які застосунки на передньому плані чи в повноекранному режимі: запустіть Velto з меню застосунків, щоб KWin передавав йому список вікон.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>У цьому середовищі не видно, які застосунки на передньому плані чи в повноекранному режимі: його композитор не надає списку вікон.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>У цьому середовищі на передньому плані чи в повноекранному режимі видно лише застосунки X11: увімкніть розширення Velto для GNOME Shell.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>У цьому середовищі на передньому плані чи в повноекранному режимі видно лише застосунки X11: запустіть Velto з меню застосунків, щоб KWin передавав йому список вікон.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>У цьому середовищі на передньому плані чи в повноекранному режимі видно лише застосунки X11: його композитор не надає списку вікон.</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>У цьому середовищі набір тексту не відстежується, тож затримка під час набору не діє.</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>У цьому середовищі відстежується лише набір тексту в застосунках X11.</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>Передній план і весь екран</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>На передньому плані</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>Коли відкрито</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>Коли на передньому плані й на весь екран</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>Коли на передньому плані</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>Відкладати перерви для %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>Видалити %1</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Налаштуйте основну поведінку Velto і те, як він впишеться у ваш робочий процес.</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>Налаштування застосунку</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Увімкнути Velto</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>Показувати таймер на панелі</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Запускати під час входу в систему</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Розклад</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>Враховувати робочі години</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>Робочі дні</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>Початок</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>Кінець</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Відновити типові</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>Розширення GNOME: не встановлено</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>Розширення GNOME: встановлено, але не увімкнено</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>Розширення GNOME: увімкнено, запрацює після наступного входу в систему</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>Розширення GNOME: увімкнено, але GNOME Shell не зміг його запустити</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>Розширення GNOME: активне</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Доти «Розумна пауза» не бачить, яке вікно на передньому плані в GNOME.</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Без нього «Розумна пауза» не бачить, яке вікно на передньому плані в GNOME.</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>Північ</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Полярне сяйво</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Океан</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Захід сонця</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Ліс</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>Космос</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Мінімалізм</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Троянда</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>Тепло</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Графіт</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>Лаванда</translation>
    </message>
</context>
<context>
    <name>HistoryPane</name>
    <message>
        <source>See how your breaks went, day by day.</source>
        <translation>Як минали ваші перерви, день за днем.</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>Завантаження історії</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Історії ще немає</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>Тут з’являтиметься кожна зроблена чи пропущена перерва.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>Сьогодні</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>Зроблено перерв</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>Пропущено</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>Найдовше без перерви</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>Утримано «Розумною паузою»</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>Перерви за днями</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Останні 7 днів</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Останні 30 днів</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>Зроблено</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>Серія</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n день поспіль без пропущених перерв</numerusform>
            <numerusform>%n дні поспіль без пропущених перерв</numerusform>
            <numerusform>%n днів поспіль без пропущених перерв</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>Серії ще немає: зробіть усі перерви за день, щоб її почати.</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>Цей тиждень</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>Усі перерви зроблено</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>Перерву пропущено</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>Без перерв</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>Зберігати історію</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>Давніші дні видаляються. Історія ніколи не залишає цей комп’ютер.</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Очистити історію…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>Очистити історію перерв?</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>Усі записані перерви, паузи й утримання «Розумної паузи» буде видалено. Цю дію не можна скасувати.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Очистити історію</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>Закрити</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>СКОРО ПЕРЕРВА</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>ПЕРЕРВА ЧЕРЕЗ</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>Перерва зараз</translation>
    </message>
    <message>
        <source>1 min</source>
        <extracomment>A small button of the card: put the break off by one minute. Keep it short.</extracomment>
        <translation>1 хв</translation>
    </message>
    <message>
        <source>3 min</source>
        <extracomment>A small button of the card: put the break off by three minutes. Keep it short.</extracomment>
        <translation>3 хв</translation>
    </message>
    <message>
        <source>Skip</source>
        <extracomment>A small button of the card: skip the coming break.</extracomment>
        <translation>Пропустити</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>Пропустити перерву</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>Повертає до роботи й пропускає цю перерву, якщо це дозволяють налаштування пропуску.</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>Змахніть, щоб закрити</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Не вдалося видалити %1: %2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>Не вдалося створити теку автозапуску %1</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Не вдалося записати %1: %2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>Не вдалося змінити запуск під час входу в систему: %1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>Виберіть, як Velto триматиме вас у курсі, не заважаючи роботі.</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>Попередження</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>Попереджати про перерви</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>Показувати сповіщення</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>Сигнал на початку перерви</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>Сигнал наприкінці перерви</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Гучність</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>Гучність сигналу</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>Пауза · продовження через %n хв</numerusform>
            <numerusform>Пауза · продовження через %n хв</numerusform>
            <numerusform>Пауза · продовження через %n хв</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Призупинено</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>Поза робочими годинами</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>Перерви вимкнено</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Розумна пауза активна</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>Не вдалося зберегти зміни. Вони діятимуть до виходу з Velto.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Вигляд</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>Перерви</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>Загальні</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Сповіщення</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>Розумна пауза</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Налаштування Velto</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>Бічна панель</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>Показати або сховати список категорій налаштувань</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>Категорії налаштувань</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>Доступне оновлення</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>Історія</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>Гнучкий</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>М’який</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>Суворий</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>Активний застосунок %1</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>Відкрито застосунок %1</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>Активний застосунок для фокусу</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>Дозвольте Velto підлаштовуватися під ваші справи й відкладати перерви, коли це важливо.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Увімкнути</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>Визначення активності</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>Пауза під час зустрічей і дзвінків</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>Спрацьовує, коли ви, найімовірніше, на дзвінку чи зустрічі, — але не тоді, коли ви просто переглядаєте сайти.</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>Пауза під час відтворення відео</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>Режим визначення відео</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>«Лише на передньому плані» перевіряє тільки активний застосунок. «Також у фоні» ставить на паузу й тоді, коли підтримуваний програвач відтворює відео за іншим вікном.</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>Пауза під час запису екрана</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>Пауза в повноекранних іграх</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>Визначення бездіяльності</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>Відстежувати час бездіяльності</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>Скидати таймер після бездіяльності протягом</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>Очікування</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>Затримка після завершення активності</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>Стільки Velto чекає після того, як причина «Розумної паузи» зникла, перш ніж робочий таймер знову почне зворотний відлік.</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>Застосунки для фокусу</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>Відкладати перерви, коли певний застосунок активний або відкритий. Для кожного застосунку можна вибрати: лише на передньому плані, на передньому плані в повноекранному режимі або весь час, поки він запущений.</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>Застосунки для фокусу не додано</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>Додати застосунок…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>немає сеансової шини; Velto працює, але не може переконатися, що інший Velto не запущено</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>дисплей не знайдено; Velto працює без значка в системному лотку</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, години</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, хвилини</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>Немає активного таймера</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>Залишилося %1</translation>
    </message>
    <message>
        <source>Velto, %1</source>
        <extracomment>What a screen reader says for the tray icon; %1 is the status line, such as &quot;Until next break&quot;.</extracomment>
        <translation>Velto, %1</translation>
    </message>
    <message>
        <source>%1h</source>
        <extracomment>Hours left, drawn inside the small tray icon from 100 minutes on: keep it to the number and a letter.</extracomment>
        <translation>%1г</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n хвилина</numerusform>
            <numerusform>%n хвилини</numerusform>
            <numerusform>%n хвилин</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n година</numerusform>
            <numerusform>%n години</numerusform>
            <numerusform>%n годин</numerusform>
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
        <translation>Готово</translation>
    </message>
    <message>
        <source>Until next break</source>
        <extracomment>The tray menu&apos;s status line after the countdown, as in &quot;24:59 Until next break&quot;.</extracomment>
        <translation>До наступної перерви</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>Триває перерва</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>Сьогодні %n перерва</numerusform>
            <numerusform>Сьогодні %n перерви</numerusform>
            <numerusform>Сьогодні %n перерв</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Вимкнути Velto</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Увімкнути Velto</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>Зробити перерву</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>Продовжити</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>Завершити перерву</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>Зробити довгу перерву</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>Призупинити на 15 хвилин</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Налаштування…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Вийти з Velto</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Є новіша версія Velto, але їй потрібна новіша система.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 — найновіша доступна версія.</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>У вас найновіша версія Velto</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Velto не вдалося перевірити наявність оновлень</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>Лише на передньому плані</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>Також у фоні</translation>
    </message>
</context>
<context>
    <name>Weekday</name>
    <message>
        <source>Sun</source>
        <extracomment>Sunday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Нд</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Monday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Пн</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Tuesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Вт</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Wednesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Ср</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Thursday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Чт</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Пт</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Saturday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Сб</translation>
    </message>
</context>
<context>
    <name>velto::ActivityDetector</name>
    <message>
        <source>In %1</source>
        <extracomment>Why breaks wait: the user is in a call; %1 is the meeting application&apos;s name, such as Zoom.</extracomment>
        <translation>Дзвінок у %1</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>Активний застосунок для зустрічей</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>Використовуються камера й мікрофон</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>Використовується камера</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>Використовується мікрофон</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>Схоже, триває зустріч</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>Перегляд відео</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>Запис екрана</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>Триває гра</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>Не за комп’ютером</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Розумна пауза активна</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>Вихід із паузи…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>Невідомий застосунок</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>Інших запущених застосунків немає</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Відповідних застосунків немає</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>системний лоток поки не знайдено; перерви працюють, `velto settings` відкриває налаштування, а значок з’явиться разом із лотком</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>ця збірка Velto не перевіряє оновлення: її оновлює системний менеджер пакунків</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>Ваше тіло сумує за вами</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>Очам потрібна ваша турбота</translation>
    </message>
</context>
<context>
    <name>velto::HistoryPaneModel</name>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration of the History pane: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n хв</numerusform>
            <numerusform>%n хв</numerusform>
            <numerusform>%n хв</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>A duration of the History pane, such as &quot;1 h 05 min&quot;: %1 is the hours, %2 the minutes (two digits).</extracomment>
        <translation>%1 год %2 хв</translation>
    </message>
    <message>
        <source>1 month</source>
        <extracomment>How long the break history is kept: an option of the &quot;Keep history for&quot; picker.</extracomment>
        <translation>1 місяць</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 місяці</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 місяців</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 рік</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>Завжди</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: ще попереду</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: перерву пропущено</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: усі перерви зроблено</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: без перерв</translation>
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
            <numerusform>зроблено: %n</numerusform>
            <numerusform>зроблено: %n</numerusform>
            <numerusform>зроблено: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>пропущено: %n</numerusform>
            <numerusform>пропущено: %n</numerusform>
            <numerusform>пропущено: %n</numerusform>
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
        <translation>Скоро довга перерва</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>Скоро коротка перерва</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>Завершіть або відкладіть завдання. Скоро можна буде відійти надовше.</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>Запам’ятайте, де зупинилися, і завершіть думку. Короткий перепочинок уже близько.</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Перерва через %n секунду</numerusform>
            <numerusform>Перерва через %n секунди</numerusform>
            <numerusform>Перерва через %n секунд</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Перерва через %n хвилину</numerusform>
            <numerusform>Перерва через %n хвилини</numerusform>
            <numerusform>Перерва через %n хвилин</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n хвилину</numerusform>
            <numerusform>%n хвилини</numerusform>
            <numerusform>%n хвилин</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n секунду</numerusform>
            <numerusform>%n секунди</numerusform>
            <numerusform>%n секунд</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>Перерва через %1 %2</translation>
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
        <translation>Показувати перерву на всіх під’єднаних дисплеях</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>Показувати перерву лише на основному дисплеї</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>Установіть її, коли матимете хвилинку.</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>Версія %1 чекає, коли вам буде зручно.</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>Увімкнути його не вийшло: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>An option of a picker of durations: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n хв</numerusform>
            <numerusform>%n хв</numerusform>
            <numerusform>%n хв</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec</source>
        <extracomment>An option of the short-break duration picker: a number of seconds, abbreviated.</extracomment>
        <translation>
            <numerusform>%n с</numerusform>
            <numerusform>%n с</numerusform>
            <numerusform>%n с</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n short breaks</source>
        <extracomment>An option of the long-break frequency picker: a long break takes the place of every n-th short one.</extracomment>
        <translation>
            <numerusform>Раз на %n коротку перерву</numerusform>
            <numerusform>Раз на %n короткі перерви</numerusform>
            <numerusform>Раз на %n коротких перерв</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>Без затримки</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>за %n хв</numerusform>
            <numerusform>за %n хв</numerusform>
            <numerusform>за %n хв</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto не вдалося запустити допоміжну програму завантаження (%1).</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>тут неможливо прочитати налаштування GNOME Shell</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>налаштування розширень GNOME Shell у цій системі заблоковано</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>не вдалося записати налаштування GNOME Shell</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Оновлення програми</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>Доступна нова версія Velto</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Доступна версія Velto %1, у вас встановлено %2. Щоб оновитися, завантажте її з вебсайту.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Завантаження приміток до випуску…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>Не вдалося завантажити примітки до випуску.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустити цю версію</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Нагадати пізніше</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>Завантажити</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Оновлення програми</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Сервер оновлень не відповів вчасно.</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>Адреса каналу оновлень небезпечна.</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>Канал оновлень переспрямовано на небезпечну адресу.</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>Канал оновлень завеликий.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>Сервер оновлень відповів із кодом стану %1.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>Не вдалося прочитати канал оновлень.</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>У вас найновіша версія Velto.</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Є новіша версія Velto, але їй потрібна новіша система.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 — найновіша доступна версія.</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Доступна версія Velto %1, у вас встановлено %2. Завантажити її можна тут: %3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Доступна версія Velto %1, у вас встановлено %2.</translation>
    </message>
</context>
</TS>
