<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Velto — небольшой помощник на панели для устойчивой концентрации и регулярных перерывов.</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>Сайт %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Сайт</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>Отправить отзыв на %1</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Отправить отзыв</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>Доступна новая сборка</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>Посмотреть обновление</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>Обновления приходят через менеджер пакетов системы.</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>Добавить приложение для фокуса</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>Поиск приложений…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Поиск приложений</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>Запущенные приложения</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>Откладывать перерывы</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>Добавить приложение</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Velto живёт в системном лотке и отсчитывает ваше рабочее время. За минуту до перерыва он показывает небольшую карточку, с которой можно начать перерыв сразу, отложить его на одну или три минуты или пропустить. Когда время выходит, спокойный экран перерыва закрывает ваши дисплеи и отсчитывает короткий перерыв — или длинный, раз в несколько перерывов.</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>«Умная пауза» задерживает отсчёт, когда перерыв был бы некстати: во время звонка или встречи, при воспроизведении видео, во время записи экрана, в полноэкранной игре, в приложении, которое вы выбрали для сосредоточенной работы, и пока вас нет за компьютером. Рабочие часы ограничивают напоминания днями и временем, когда вы работаете.</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>Управлять Velto можно также из терминала или скрипта: velto status, velto break, velto pause и другие команды.</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>Короткий перерыв закрывает экран и ведёт обратный отсчёт</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>За минуту до перерыва карточка предлагает начать его сейчас, отложить или пропустить</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>Меню в системном лотке</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>«Умная пауза» откладывает перерывы во время звонков, видео, записи экрана и игр</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>В GNOME без системного лотка Velto отображается на верхней панели</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>Первый выпуск.</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>Обратный отсчёт в системном лотке, карточка перед перерывом, экраны короткого и длинного перерыва на всех дисплеях</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>«Умная пауза» в X11, в Wayland (sway и другие композиторы на wlroots, KDE Plasma) и в GNOME — через собственное расширение Velto для GNOME Shell</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>Рабочие часы, готовые наборы настроек, звуковые сигналы, блокировка экрана, запуск при входе в систему и командная строка</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>Настройте экран перерыва, чтобы каждая пауза была осознанной.</translation>
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
        <translation>Затемнение</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>Дисплей</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>Где показывать перерыв</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>Сообщения</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>Ваши сообщения:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>Сообщение %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>Удалить сообщение %1</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>Добавить</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>Светлая бумага</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Градиент</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>Тёмная бумага</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>Сплошной цвет</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>Своё изображение</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>Системные обои</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>Дайте глазам отдохнуть и сделайте глубокий вдох</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>Посмотрите на что-нибудь в шести метрах от вас</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>Медленно поморгайте и расслабьте глаза</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>Разомните плечи и шею</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>Вы молодец! Не бросайте полезные привычки</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Отведите взгляд — только не в телефон</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>Звонила ваша сетчатка: просит отдыха</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>Глаза уже гудят</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>Не будем торговаться со своим зрением</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>Смотрите вдаль, как поэт</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Ваше кресло вас осуждает</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>Пол ждёт вас</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>Гравитация хочет увидеть, как вы потягиваетесь</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>Приключения ждут (в вашей гостиной)</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>Пора потрогать траву (в прямом смысле)</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>Сбалансированный</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>Глубокая концентрация</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>Забота о глазах</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>Пользовательский</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>Все экраны</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>Только основной экран</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>Завершить перерыв</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>В этом окружении учитывается любой ввод с клавиатуры или мыши.</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>Найдите баланс между сосредоточенностью и отдыхом с помощью коротких и длинных перерывов, которые подходят именно вам.</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>Короткие перерывы</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>Время работы</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>Длительность перерыва</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>Длинные перерывы</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>Включить длинные перерывы</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>Поведение перерывов</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>Режим пропуска</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>Разрешить завершать перерыв досрочно</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>Задержка при наборе текста</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>Не показывать перерывы во время набора текста</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>Приостанавливает рабочий таймер, пока вы печатаете, чтобы перерыв реже прерывал вас на полуслове.</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Блокировка экрана</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>Блокировать экран в начале перерыва</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>Блокирует сеанс в начале перерыва с помощью блокировщика экрана вашего окружения.</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>Готовые наборы</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>Блокировщик экрана не найден</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Velto не удалось найти способ заблокировать этот сеанс. Установите или включите блокировщик экрана (например, экран блокировки вашего окружения, light-locker или xsecurelock), а затем снова включите этот параметр.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>Показать обратный отсчёт, состояние и сегодняшние перерывы</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>Начать перерыв сейчас (длинный — с --long)</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>Приостановить напоминания на MINUTES минут (по умолчанию %1)</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>Завершить паузу</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>Пропустить ближайший перерыв</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>Включить напоминания</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>Выключить напоминания</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>Открыть окно настроек</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>Проверить наличие новой версии и сообщить результат</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Выйти из Velto</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>Сообщить, установлено ли, включено и работает ли расширение Velto для GNOME Shell, или включить его</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shell не ответил вовремя</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>в этом сеансе нет GNOME Shell</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>расширение Velto для GNOME Shell не установлено (оно входит в пакет Velto)</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>не удалось включить расширение GNOME Shell: </translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>Включите его командой: velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>в GNOME Shell расширение всё ещё выключено</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shell не смог запустить расширение; причина может быть указана в его журнале</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>неожиданный аргумент «%1»</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>неизвестный параметр «%1»</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>неизвестная команда «%1»</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>для gnome-extension нужна команда «status» или «enable»</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>неизвестная команда gnome-extension «%1»</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>укажите только одно из --json и --csv</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>для --days нужно число дней</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days должно быть целым числом от 1 до %1, а не «%2»</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES должно быть целым числом от 1 до %1, а не «%2»</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>неизвестный параметр «%1» для %2</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>неожиданный аргумент «%1» для %2</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>Показать перерывы за последние N дней (по умолчанию %1), по строке на день или каждое событие</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>Использование: velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>Без команды запускает Velto; если Velto уже запущен, открывает его настройки.</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>Команды для запущенного Velto:</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Команды, которые работают и без запущенного Velto:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Показать эту справку</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Показать версию</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>Код возврата: 0 при успехе, 1, если Velto не запущен или не отвечает (либо не удалась проверка
обновлений, либо нет GNOME Shell или расширения, либо его не удалось включить), 2 при неверных аргументах.</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Velto не запущен</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Velto не ответил в течение %1 с</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>нет сеансовой шины, поэтому связаться с запущенным Velto невозможно</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>в этом сеансе невозможно показать окно настроек</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>для этой команды нечего отправлять</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Velto уже запущен; окно его настроек открыто.</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Velto уже запущен.</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Осталось:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>Причина паузы:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>Перерывов сегодня:</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>Напоминания:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>включены</translation>
    </message>
    <message>
        <source>off</source>
        <translation>выключены</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>День</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Сделано</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Пропущено</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>Отложено</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Работа</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>Дольше всего</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>Умная пауза</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>За эти дни событий не записано.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>Время</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Событие</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Перерыв</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Секунды</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Break Reminder</source>
        <comment>the kind of application, in application menus</comment>
        <translation>Напоминание о перерывах</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>Напоминает дать глазам отдых и делать перерывы</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>перерыв;отдых;глаза;зрение;пауза;таймер;напоминание;здоровье;осанка;break;rest;eyes;pause;timer;health;posture;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>Сделать перерыв</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>Приостановить на 15 минут</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>В этом окружении не видно, какие приложения находятся на переднем плане или в полноэкранном режиме: включите расширение Velto для GNOME Shell.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>В этом окружении не видно, какие приложения находятся на переднем плане или в полноэкранном режиме: запустите Velto из меню приложений, чтобы KWin передавал ему список окон.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>В этом окружении не видно, какие приложения находятся на переднем плане или в полноэкранном режиме: его композитор не предоставляет список окон.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>В этом окружении на переднем плане или в полноэкранном режиме видны только приложения X11: включите расширение Velto для GNOME Shell.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>В этом окружении на переднем плане или в полноэкранном режиме видны только приложения X11: запустите Velto из меню приложений, чтобы KWin передавал ему список окон.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>В этом окружении на переднем плане или в полноэкранном режиме видны только приложения X11: его композитор не предоставляет список окон.</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>В этом окружении набор текста не отслеживается, поэтому задержка при наборе не действует.</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>В этом окружении отслеживается только набор текста в приложениях X11.</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>Передний план и весь экран</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>На переднем плане</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>Когда открыто</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>Когда на переднем плане и во весь экран</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>Когда на переднем плане</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>Откладывать перерывы для %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>Удалить %1</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Настройте основное поведение Velto и то, как он впишется в ваш рабочий процесс.</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>Настройки приложения</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Включить Velto</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>Показывать таймер на панели</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Запускать при входе в систему</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Расписание</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>Учитывать рабочие часы</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>Рабочие дни</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>Начало</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>Конец</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Сбросить настройки</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>Расширение GNOME: не установлено</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>Расширение GNOME: установлено, но не включено</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>Расширение GNOME: включено, заработает после следующего входа в систему</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>Расширение GNOME: включено, но GNOME Shell не смог его запустить</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>Расширение GNOME: активно</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>До тех пор «Умная пауза» не видит, какое окно находится на переднем плане в GNOME.</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Без него «Умная пауза» не видит, какое окно находится на переднем плане в GNOME.</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>Полночь</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>Северное сияние</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Океан</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Закат</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Лес</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>Космос</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>Минимализм</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Роза</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>Тепло</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Графит</translation>
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
        <translation>Как проходили ваши перерывы, день за днём.</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>Загрузка истории</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Истории пока нет</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>Здесь появится каждый сделанный или пропущенный перерыв.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>Сделано перерывов</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>Пропущено</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>Дольше всего без перерыва</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>Удержано «Умной паузой»</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>Перерывы по дням</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Последние 7 дней</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Последние 30 дней</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>Сделано</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>Серия</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n день подряд без пропущенных перерывов</numerusform>
            <numerusform>%n дня подряд без пропущенных перерывов</numerusform>
            <numerusform>%n дней подряд без пропущенных перерывов</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>Серии пока нет: сделайте все перерывы за день, чтобы её начать.</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>Эта неделя</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>Все перерывы сделаны</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>Перерыв пропущен</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>Без перерывов</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>Хранить историю</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>Более старые дни удаляются. История никогда не покидает этот компьютер.</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Очистить историю…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>Очистить историю перерывов?</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>Все записанные перерывы, паузы и удержания «Умной паузы» будут удалены. Это действие нельзя отменить.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Очистить историю</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>СКОРО ПЕРЕРЫВ</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>ПЕРЕРЫВ ЧЕРЕЗ</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>Перерыв сейчас</translation>
    </message>
    <message>
        <source>1 min</source>
        <extracomment>A small button of the card: put the break off by one minute. Keep it short.</extracomment>
        <translation>1 мин</translation>
    </message>
    <message>
        <source>3 min</source>
        <extracomment>A small button of the card: put the break off by three minutes. Keep it short.</extracomment>
        <translation>3 мин</translation>
    </message>
    <message>
        <source>Skip</source>
        <extracomment>A small button of the card: skip the coming break.</extracomment>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>Пропустить перерыв</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>Возвращает к работе и пропускает этот перерыв, если это позволяют настройки пропуска.</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>Смахните, чтобы закрыть</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Не удалось удалить %1: %2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>Не удалось создать папку автозапуска %1</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Не удалось записать %1: %2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>Не удалось изменить запуск при входе в систему: %1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>Выберите, как Velto будет держать вас в курсе, не мешая работе.</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>Предупреждать о перерывах</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>Показывать уведомление</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>Сигнал в начале перерыва</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>Сигнал в конце перерыва</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>Громкость сигнала</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>Пауза · продолжение через %n мин</numerusform>
            <numerusform>Пауза · продолжение через %n мин</numerusform>
            <numerusform>Пауза · продолжение через %n мин</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>Вне рабочих часов</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>Перерывы отключены</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Умная пауза активна</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>Не удалось сохранить изменения. Они действуют до выхода из Velto.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Внешний вид</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>Перерывы</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>Умная пауза</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Настройки Velto</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>Показать или скрыть список категорий настроек</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>Категории настроек</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>Доступно обновление</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>История</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>Гибкий</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Мягкий</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>Строгий</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>Активно приложение %1</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>Открыто приложение %1</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>Активно приложение для фокуса</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>Позвольте Velto подстраиваться под ваши занятия и откладывать перерывы, когда это важно.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Включить</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>Определение активности</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>Пауза во время встреч и звонков</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>Срабатывает, когда вы, скорее всего, на звонке или встрече, — но не когда вы просто просматриваете сайты.</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>Пауза при воспроизведении видео</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>Режим определения видео</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>«Только на переднем плане» проверяет лишь активное приложение. «Также в фоне» ставит на паузу и тогда, когда поддерживаемый проигрыватель воспроизводит видео за другим окном.</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>Пауза во время записи экрана</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>Пауза в полноэкранных играх</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>Определение бездействия</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>Отслеживать время бездействия</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>Сбрасывать таймер после бездействия в течение</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>Задержка после окончания активности</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>Столько Velto ждёт после того, как причина «Умной паузы» исчезла, прежде чем рабочий таймер снова начнёт обратный отсчёт.</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>Приложения для фокуса</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>Откладывать перерывы, когда определённое приложение активно или открыто. Для каждого приложения можно выбрать: только на переднем плане, на переднем плане в полноэкранном режиме или всё время, пока оно запущено.</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>Приложения для фокуса не добавлены</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>Добавить приложение…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>нет сеансовой шины; Velto работает, но не может убедиться, что другой Velto не запущен</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>дисплей не найден; Velto работает без значка в системном лотке</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, часы</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, минуты</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>Нет активного таймера</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>Осталось %1</translation>
    </message>
    <message>
        <source>Velto, %1</source>
        <extracomment>What a screen reader says for the tray icon; %1 is the status line, such as &quot;Until next break&quot;.</extracomment>
        <translation>Velto, %1</translation>
    </message>
    <message>
        <source>%1h</source>
        <extracomment>Hours left, drawn inside the small tray icon from 100 minutes on: keep it to the number and a letter.</extracomment>
        <translation>%1ч</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n минута</numerusform>
            <numerusform>%n минуты</numerusform>
            <numerusform>%n минут</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n час</numerusform>
            <numerusform>%n часа</numerusform>
            <numerusform>%n часов</numerusform>
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
        <translation>До следующего перерыва</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>Идёт перерыв</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>Сегодня %n перерыв</numerusform>
            <numerusform>Сегодня %n перерыва</numerusform>
            <numerusform>Сегодня %n перерывов</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Выключить Velto</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Включить Velto</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>Сделать перерыв</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>Завершить перерыв</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>Сделать длинный перерыв</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>Приостановить на 15 минут</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Выйти из Velto</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Есть более новая версия Velto, но для неё нужна более новая система.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 — последняя доступная версия.</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>У вас последняя версия Velto</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Velto не удалось проверить наличие обновлений</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>Только на переднем плане</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>Также в фоне</translation>
    </message>
</context>
<context>
    <name>Weekday</name>
    <message>
        <source>Sun</source>
        <extracomment>Sunday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Вс</translation>
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
        <translation>Звонок в %1</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>Активно приложение для встреч</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>Используются камера и микрофон</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>Используется камера</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>Используется микрофон</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>Похоже, идёт встреча</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>Просмотр видео</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>Запись экрана</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>Идёт игра</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>Не за компьютером</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Умная пауза активна</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>Выход из паузы…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>Неизвестное приложение</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>Других запущенных приложений нет</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Подходящих приложений нет</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>системный лоток пока не найден; перерывы работают, `velto settings` открывает настройки, а значок появится вместе с лотком</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>эта сборка Velto не проверяет обновления: её обновляет системный менеджер пакетов</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>Ваше тело скучает по вам</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>Глазам нужна ваша забота</translation>
    </message>
</context>
<context>
    <name>velto::HistoryPaneModel</name>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration of the History pane: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n мин</numerusform>
            <numerusform>%n мин</numerusform>
            <numerusform>%n мин</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>A duration of the History pane, such as &quot;1 h 05 min&quot;: %1 is the hours, %2 the minutes (two digits).</extracomment>
        <translation>%1 ч %2 мин</translation>
    </message>
    <message>
        <source>1 month</source>
        <extracomment>How long the break history is kept: an option of the &quot;Keep history for&quot; picker.</extracomment>
        <translation>1 месяц</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 месяца</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 месяцев</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 год</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>Всегда</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: ещё впереди</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: перерыв пропущен</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: все перерывы сделаны</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: без перерывов</translation>
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
            <numerusform>сделано: %n</numerusform>
            <numerusform>сделано: %n</numerusform>
            <numerusform>сделано: %n</numerusform>
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
        <translation>Скоро полноценный отдых</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>Скоро короткий перерыв</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>Завершите или отложите задачу. Скоро можно будет отойти подольше.</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>Запомните, где остановились, и закончите мысль. Скоро короткая передышка.</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Перерыв через %n секунду</numerusform>
            <numerusform>Перерыв через %n секунды</numerusform>
            <numerusform>Перерыв через %n секунд</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Перерыв через %n минуту</numerusform>
            <numerusform>Перерыв через %n минуты</numerusform>
            <numerusform>Перерыв через %n минут</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n минуту</numerusform>
            <numerusform>%n минуты</numerusform>
            <numerusform>%n минут</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n секунду</numerusform>
            <numerusform>%n секунды</numerusform>
            <numerusform>%n секунд</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>Перерыв через %1 %2</translation>
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
        <translation>Показывать перерыв на всех подключённых дисплеях</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>Показывать перерыв только на основном дисплее</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>Установите её, когда будет минутка.</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>Версия %1 ждёт, когда вам будет удобно.</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>Включить его не получилось: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>An option of a picker of durations: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n мин</numerusform>
            <numerusform>%n мин</numerusform>
            <numerusform>%n мин</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec</source>
        <extracomment>An option of the short-break duration picker: a number of seconds, abbreviated.</extracomment>
        <translation>
            <numerusform>%n сек</numerusform>
            <numerusform>%n сек</numerusform>
            <numerusform>%n сек</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n short breaks</source>
        <extracomment>An option of the long-break frequency picker: a long break takes the place of every n-th short one.</extracomment>
        <translation>
            <numerusform>Раз в %n короткий перерыв</numerusform>
            <numerusform>Раз в %n коротких перерыва</numerusform>
            <numerusform>Раз в %n коротких перерывов</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>Без задержки</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>за %n мин</numerusform>
            <numerusform>за %n мин</numerusform>
            <numerusform>за %n мин</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto не удалось запустить вспомогательную программу загрузки (%1).</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>не удаётся прочитать здесь настройки GNOME Shell</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>настройки расширений GNOME Shell заблокированы в этой системе</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>не удалось записать настройки GNOME Shell</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Обновление программы</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>Доступна новая версия Velto</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Доступна версия Velto %1, у вас установлена %2. Чтобы обновиться, скачайте её с сайта.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Загрузка примечаний к выпуску…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>Не удалось загрузить примечания к выпуску.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустить эту версию</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Напомнить позже</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>Скачать</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Обновление программы</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Сервер обновлений не ответил вовремя.</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>Адрес канала обновлений небезопасен.</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>Канал обновлений перенаправлен на небезопасный адрес.</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>Канал обновлений слишком большой.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>Сервер обновлений ответил с кодом состояния %1.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>Не удалось прочитать канал обновлений.</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>У вас последняя версия Velto.</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Есть более новая версия Velto, но для неё нужна более новая система.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 — последняя доступная версия.</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Доступна версия Velto %1, у вас установлена %2. Скачать её можно здесь: %3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Доступна версия Velto %1, у вас установлена %2.</translation>
    </message>
</context>
</TS>
