<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Velto 是常驻系统托盘的小助手，帮助你持续专注、适时休息。</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>网站 %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>向 %1 发送反馈</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>发送反馈</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>版本</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>有新版本可用</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>查看更新</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>更新由系统的软件包管理器提供。</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>添加专注应用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>搜索应用…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>搜索应用</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>正在运行的应用</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>暂缓休息</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>添加应用</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Velto 常驻系统托盘，为你的工作时间倒计时。休息前一分钟，它会显示一张小卡片，让你立即休息、推迟一分钟或三分钟，或者跳过这次休息。时间一到，平静的休息画面便会覆盖你的显示器，为短休息倒计时；每隔几次，则换成一次长休息。</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>智能暂停会在不宜打断时暂停倒计时：通话或开会时、播放视频时、录制屏幕时、玩全屏游戏时、使用你选定的专注应用时，以及你离开时。工作时间功能则将提醒限制在你工作的日子和时段内。</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>Velto 也可以通过终端或脚本控制：velto status、velto break、velto pause 等。</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>短休息覆盖屏幕并倒计时</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>休息前一分钟，卡片让你选择立即休息、推迟或跳过</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>托盘菜单</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>智能暂停在通话、视频、录屏和游戏时暂缓休息</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>在没有托盘的 GNOME 上，Velto 显示在顶栏中</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>首个版本。</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>托盘倒计时、休息前提示卡片，以及在所有显示器上显示的短休息和长休息画面</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>智能暂停支持 X11、Wayland（sway 等 wlroots 合成器及 KDE Plasma），并可通过 Velto 自带的 Shell 扩展支持 GNOME</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>工作时间、预设、提示音、锁屏、登录时启动和命令行</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>个性化你的休息画面，让每一次休息都更有意义。</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>背景</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The kind of background: paper, gradient…</extracomment>
        <translation>样式</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>The colours of the gradient background.</extracomment>
        <translation>主题</translation>
    </message>
    <message>
        <source>Dim level</source>
        <extracomment>How much the break screen&apos;s background is darkened.</extracomment>
        <translation>变暗程度</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>显示器</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>休息显示于</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>提示语</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>你的提示语：</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>提示语</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>提示语 %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>删除提示语 %1</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>添加</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>纸张（浅色）</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>渐变</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>纸张（深色）</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>纯色</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>自定义图片</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>系统壁纸</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>让眼睛休息一下，深呼吸</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>眺望 6 米外的景物</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>慢慢眨眼，放松双眼</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>伸展一下肩膀和脖子</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>做得很好！继续保持健康习惯</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>把目光移开，别看手机哦</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>视网膜来电：求休息</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>眼睛快冒烟了</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>别拿视力讨价还价</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>像诗人一样凝望远方</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>你的椅子正在默默评判你</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>地板在等你</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>地心引力想看你伸个懒腰</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>冒险在等着你（就在客厅里）</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>该去摸摸草了（字面意思）</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>均衡</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>深度专注</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>护眼</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>自定义</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>所有屏幕</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>仅主屏幕</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>跳过</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>结束休息</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>在此桌面上，任何键盘或指针输入都会计入。</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>用适合你的短休息和长休息，平衡专注与放松。</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>短休息</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>工作时长</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>休息时长</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>长休息</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>启用长休息</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>时长</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>频率</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>休息行为</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>跳过难度</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>允许提前结束休息</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>打字延迟</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>打字时不显示休息</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>打字时暂停工作计时器，减少休息打断你的可能。</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>锁屏</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>休息开始时锁定屏幕</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>休息开始时，使用桌面的锁屏程序锁定会话。</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>预设</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>未找到锁屏程序</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Velto 找不到锁定此会话的方法。请安装或启用锁屏程序（例如桌面自带的锁屏、light-locker 或 xsecurelock），然后重新打开此选项。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>显示倒计时、状态和今天的休息次数</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>立即休息（加 --long 则为长休息）</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>暂停提醒 MINUTES 分钟（未指定时为 %1 分钟）</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>结束暂停</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>跳过即将到来的休息</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>开启提醒</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>关闭提醒</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>打开设置窗口</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>检查新版本并报告结果</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>退出 Velto</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>显示 Velto 的 GNOME Shell 扩展是否已安装、已启用并正在运行，或启用它</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shell 未及时响应</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>此会话中没有 GNOME Shell</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>Velto 的 GNOME Shell 扩展未安装（它随 Velto 的软件包提供）</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>无法启用 GNOME Shell 扩展：</translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>可用以下命令启用：velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>GNOME Shell 中该扩展仍处于关闭状态</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shell 无法启动该扩展；其日志中可能记录了原因</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>意外的参数“%1”</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>未知选项“%1”</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>未知命令“%1”</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>gnome-extension 需要“status”或“enable”</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>未知的 gnome-extension 命令“%1”</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>--json 和 --csv 只能指定一个</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>--days 需要天数</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days 必须是 1 到 %1 之间的整数，而不是“%2”</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES 必须是 1 到 %1 之间的整数，而不是“%2”</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>%2 的未知选项“%1”</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>%2 的意外参数“%1”</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>显示最近 N 天的休息（未指定时为 %1 天），每天一行或每个事件</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>用法：velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>不带命令时启动 Velto；如果 Velto 已在运行，则改为打开其设置。</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>用于正在运行的 Velto 的命令：</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>无论 Velto 是否在运行都可用的命令：</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>显示此帮助</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>退出状态：成功时为 0；Velto 未运行或无响应（或更新检查失败、没有 GNOME Shell 或扩展、
启用扩展失败）时为 1；参数错误时为 2。</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Velto 未在运行</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Velto 未在 %1 秒内响应</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>没有会话总线，因此无法连接到正在运行的 Velto</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>无法在此会话中显示设置窗口</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>此命令没有要发送的内容</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Velto 已在运行；已打开其设置窗口。</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Velto 已在运行。</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>剩余时间：</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>暂停原因：</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>今日休息：</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>提醒：</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>日期</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>已推迟</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>工作</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>最长连续</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>智能暂停</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>这些天没有记录任何事件。</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>时间</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>休息</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Break Reminder</source>
        <comment>the kind of application, in application menus</comment>
        <translation>休息提醒</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>提醒你让眼睛放松、适时休息</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>休息;休憩;眼睛;护眼;暂停;计时器;定时器;健康;坐姿;break;rest;eyes;pause;timer;health;posture;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>开始休息</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>暂停 15 分钟</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>在此桌面上无法检测前台或全屏应用：请启用 Velto 的 GNOME Shell 扩展。</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>在此桌面上无法检测前台或全屏应用：请从应用程序菜单启动 Velto，以便 KWin 共享其窗口列表。</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>此桌面的合成器不共享窗口列表，因此无法检测前台或全屏应用。</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>在此桌面上只能检测前台或全屏的 X11 应用：请启用 Velto 的 GNOME Shell 扩展。</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>在此桌面上只能检测前台或全屏的 X11 应用：请从应用程序菜单启动 Velto，以便 KWin 共享其窗口列表。</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>此桌面的合成器不共享窗口列表，因此只能检测前台或全屏的 X11 应用。</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>在此桌面上无法检测打字，因此打字延迟不起作用。</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>在此桌面上只能检测在 X11 应用中的打字。</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>前台且全屏</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>在前台</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>打开时</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>在前台且全屏时</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>在前台时</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>为 %1 暂缓休息</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>移除 %1</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>控制 Velto 的核心行为，以及它如何融入你的工作流程。</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>应用设置</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>启用 Velto</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>在面板上显示计时器</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>时间安排</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>启用工作时间</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>工作日</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>开始</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>结束</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>恢复默认设置</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>GNOME 扩展：未安装</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>GNOME 扩展：已安装，未启用</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>GNOME 扩展：已启用，下次登录后生效</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>GNOME 扩展：已启用，但 GNOME Shell 无法启动它</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>GNOME 扩展：运行中</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>在此之前，智能暂停无法在 GNOME 上识别前台窗口。</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>没有它，智能暂停无法在 GNOME 上识别前台窗口。</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>午夜</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>极光</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>海洋</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>日落</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>森林</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>宇宙</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>极简</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>玫瑰</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>暖阳</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>石板灰</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>薰衣草</translation>
    </message>
</context>
<context>
    <name>HistoryPane</name>
    <message>
        <source>See how your breaks went, day by day.</source>
        <translation>逐日查看你的休息情况。</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>正在加载历史记录</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>暂无历史记录</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>你完成或跳过的每次休息都会显示在这里。</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>今天</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>已完成的休息</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>最长连续工作时间</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>智能暂停时长</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>每日休息</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>最近 7 天</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>最近 30 天</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>连续记录</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>连续 %n 天完成所有休息</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>还没有连续记录：完成一天中的所有休息即可开始。</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>本周</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>全部完成</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>有跳过</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>无休息</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>历史记录保留时长</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>更早的记录会被删除。历史记录始终只保存在这台电脑上。</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>清除历史记录…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>清除休息历史记录？</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>所有记录的休息、暂停和智能暂停都将被删除。此操作无法撤销。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>清除历史记录</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>即将休息</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>距离休息</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>立即休息</translation>
    </message>
    <message>
        <source>1 min</source>
        <extracomment>A small button of the card: put the break off by one minute. Keep it short.</extracomment>
        <translation>1 分钟</translation>
    </message>
    <message>
        <source>3 min</source>
        <extracomment>A small button of the card: put the break off by three minutes. Keep it short.</extracomment>
        <translation>3 分钟</translation>
    </message>
    <message>
        <source>Skip</source>
        <extracomment>A small button of the card: skip the coming break.</extracomment>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>跳过休息</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>在跳过设置允许时，跳过本次休息并返回工作。</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>滑动以关闭</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>无法删除 %1：%2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>无法创建自动启动文件夹 %1</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>无法更新登录时启动设置：%1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>选择 Velto 如何在不打扰你的前提下通知你。</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>提前通知</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>休息前通知</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>显示通知</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>休息开始时播放提示音</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>休息结束时播放提示音</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>提示音音量</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>已暂停 · %n 分钟后恢复</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>非工作时间</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>休息已停用</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>智能暂停生效中</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>无法保存你的更改。更改在 Velto 退出前仍然有效。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>休息</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>常规</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>智能暂停</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Velto 设置</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>显示或隐藏设置类别列表</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>设置类别</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>有可用更新</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>历史记录</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>灵活</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>温和</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>坚定</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>正在使用 %1</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>%1 已打开</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>专注应用使用中</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>让 Velto 根据你正在做的事灵活调整，在必要时暂缓休息。</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>活动检测</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>会议或通话时暂停</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>在你可能正在通话或开会时暂停——仅浏览网页时不会暂停。</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>播放视频时暂停</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>视频检测模式</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>“仅前台”只检查当前活动的应用。“包括后台”在受支持的播放器于其他窗口后方播放时也会暂停。</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>录制屏幕时暂停</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>玩全屏游戏时暂停</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>空闲检测</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>检测空闲时间</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>空闲多久后重置计时器</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>冷却时间</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>活动结束后的延迟</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>智能暂停的原因消除后，等待这段时间再重新开始工作倒计时。</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>专注应用</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>当特定应用处于活动状态或打开时暂缓休息。每个应用可选择仅在前台时、在前台且全屏时，或只要在运行就暂缓。</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>尚未配置专注应用</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>添加应用…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>没有会话总线；仍会运行，但无法确保没有其他 Velto 在运行</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>未找到显示环境；将在没有托盘图标的情况下运行</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1（小时）</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1（分钟）</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>没有正在运行的计时器</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>Velto, %1</source>
        <extracomment>What a screen reader says for the tray icon; %1 is the status line, such as &quot;Until next break&quot;.</extracomment>
        <translation>Velto，%1</translation>
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
            <numerusform>%n 分钟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n 小时</numerusform>
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
        <translation>就绪</translation>
    </message>
    <message>
        <source>Until next break</source>
        <extracomment>The tray menu&apos;s status line after the countdown, as in &quot;24:59 Until next break&quot;.</extracomment>
        <translation>距离下次休息</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>休息中</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>今天已休息 %n 次</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>停用 Velto</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>启用 Velto</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>开始休息</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>继续</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>结束休息</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>开始长休息</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>暂停 15 分钟</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>退出 Velto</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Velto 有新版本，但需要比当前系统更新的系统。</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 是目前可用的最新版本。</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>Velto 已是最新版本</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Velto 无法检查更新</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>仅前台</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>包括后台</translation>
    </message>
</context>
<context>
    <name>Weekday</name>
    <message>
        <source>Sun</source>
        <extracomment>Sunday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>周日</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Monday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>周一</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Tuesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>周二</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Wednesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>周三</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Thursday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>周四</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>周五</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Saturday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>周六</translation>
    </message>
</context>
<context>
    <name>velto::ActivityDetector</name>
    <message>
        <source>In %1</source>
        <extracomment>Why breaks wait: the user is in a call; %1 is the meeting application&apos;s name, such as Zoom.</extracomment>
        <translation>%1 通话中</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>会议应用使用中</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>摄像头和麦克风正在使用</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>摄像头正在使用</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>麦克风正在使用</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>检测到会议活动</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>正在观看视频</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>正在录制屏幕</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>正在玩游戏</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>暂时离开</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>智能暂停生效中</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>即将恢复…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>未知应用</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>当前没有其他正在运行的应用</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>没有匹配的应用</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>尚未找到系统托盘；休息照常进行，`velto settings` 可打开设置，托盘出现后图标即会显示</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>此 Velto 不检查更新；它由系统的软件包管理器更新</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>你的身体想你了</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>你的眼睛需要你</translation>
    </message>
</context>
<context>
    <name>velto::HistoryPaneModel</name>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration of the History pane: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n 分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>A duration of the History pane, such as &quot;1 h 05 min&quot;: %1 is the hours, %2 the minutes (two digits).</extracomment>
        <translation>%1 小时 %2 分钟</translation>
    </message>
    <message>
        <source>1 month</source>
        <extracomment>How long the break history is kept: an option of the &quot;Keep history for&quot; picker.</extracomment>
        <translation>1 个月</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 个月</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6 个月</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 年</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>永久</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1：尚未到来</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1：有休息被跳过</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1：每次休息都完成了</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1：无休息</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <extracomment>How a day of the History chart is spoken, as a Qt date format (ddd: weekday, d: day, MMM: month); put them in your language&apos;s order, such as &quot;ddd, MMM d&quot;.</extracomment>
        <translation>M月d日 ddd</translation>
    </message>
    <message numerus="yes">
        <source>%n taken</source>
        <extracomment>Breaks taken on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>已休息 %n 次</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>跳过 %n 次</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <extracomment>Spoken for a bar of the History chart, such as &quot;Mon 3 Nov: 5 taken, 1 skipped&quot;: %1 is the day, %2 the breaks taken, %3 those skipped.</extracomment>
        <translation>%1：%2，%3</translation>
    </message>
</context>
<context>
    <name>velto::PreBreakNotificationDisplayModel</name>
    <message>
        <source>Deep rest coming up</source>
        <extracomment>The title of the notice shown shortly before a break.</extracomment>
        <translation>即将进行长休息</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>即将进行短休息</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>收尾，或先把手头的任务放一放。马上就可以离开座位好好休息了。</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>保存进度，理清手头的思路。短暂的放松马上就来。</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>%n 秒后休息</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>%n 分钟后休息</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n 分钟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n 秒</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>%1 %2后休息</translation>
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
        <translation>在所有已连接的显示器上显示休息</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>仅在主显示器上显示休息</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>有空时请安装。</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>版本 %1 已准备就绪，随时可以安装。</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>无法启用：%1。</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>An option of a picker of durations: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n 分钟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec</source>
        <extracomment>An option of the short-break duration picker: a number of seconds, abbreviated.</extracomment>
        <translation>
            <numerusform>%n 秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n short breaks</source>
        <extracomment>An option of the long-break frequency picker: a long break takes the place of every n-th short one.</extracomment>
        <translation>
            <numerusform>每 %n 次短休息</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>无延迟</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>提前 %n 分钟</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto 无法启动其下载辅助程序（%1）。</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>无法在此读取 GNOME Shell 的设置</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>此系统上 GNOME Shell 的扩展设置已被锁定</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>无法写入 GNOME Shell 的设置</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>Velto 有新版本可用</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 现已推出，你的版本是 %2。请从网站下载以进行更新。</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>正在加载发行说明…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>无法加载发行说明。</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>稍后提醒</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>下载</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>更新服务器未及时响应。</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>更新源地址不安全。</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>更新源被重定向到不安全的地址。</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>更新源过大。</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>更新服务器返回了状态码 %1。</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>无法读取更新源。</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>Velto 已是最新版本。</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Velto 有新版本，但需要比当前系统更新的系统。</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1 是目前可用的最新版本。</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Velto %1 现已推出，你的版本是 %2。下载地址：%3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1 现已推出，你的版本是 %2。</translation>
    </message>
</context>
</TS>
