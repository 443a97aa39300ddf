<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Velto는 패널에 머무르며 꾸준한 집중과 휴식을 돕는 작은 도우미입니다.</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>웹사이트 %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>웹사이트</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>%1(으)로 의견 보내기</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>의견 보내기</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>버전</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>새 버전을 사용할 수 있습니다</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>업데이트 살펴보기</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>업데이트는 시스템의 패키지 관리자를 통해 제공됩니다.</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>집중 앱 추가</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>앱 검색…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>앱 검색</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>실행 중인 앱</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>휴식 일시 정지</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>앱 추가</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Velto는 시스템 트레이에 머무르며 작업 시간을 카운트다운합니다. 휴식 1분 전에는 작은 카드를 띄워 지금 바로 쉬거나, 1분 또는 3분 미루거나, 건너뛸 수 있게 합니다. 시간이 다 되면 차분한 휴식 화면이 디스플레이를 덮고 짧은 휴식을, 몇 번에 한 번은 긴 휴식을 카운트다운합니다.</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>스마트 일시 정지는 휴식이 방해가 될 때 카운트다운을 멈춥니다. 통화나 회의 중, 동영상 재생 중, 화면 녹화 중, 전체 화면 게임 중, 집중하기로 선택한 앱을 쓰는 동안, 그리고 자리를 비운 동안이 그렇습니다. 근무 시간을 설정하면 일하는 요일과 시간에만 알림을 받습니다.</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>터미널이나 스크립트에서도 Velto를 제어할 수 있습니다: velto status, velto break, velto pause 등.</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>짧은 휴식이 화면을 덮고 카운트다운합니다</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>휴식 1분 전, 카드에서 지금 쉬거나 미루거나 건너뛸 수 있습니다</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>트레이 메뉴</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>스마트 일시 정지는 통화, 동영상, 녹화, 게임 중에는 휴식을 미룹니다</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>트레이가 없는 GNOME에서는 Velto가 상단 표시줄에 나타납니다</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>첫 번째 릴리스입니다.</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>트레이 카운트다운, 휴식 전 알림 카드, 모든 디스플레이에 표시되는 짧은 휴식 및 긴 휴식 화면</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>X11, Wayland(sway 및 기타 wlroots 컴포지터, KDE Plasma), 그리고 Velto 전용 GNOME Shell 확장을 통한 GNOME에서의 스마트 일시 정지</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>근무 시간, 프리셋, 알림음, 화면 잠금, 로그인 시 실행, 명령줄</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>휴식 화면을 원하는 대로 꾸며 매번의 휴식을 더 의미 있게 만드세요.</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>배경</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The kind of background: paper, gradient…</extracomment>
        <translation>스타일</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>The colours of the gradient background.</extracomment>
        <translation>테마</translation>
    </message>
    <message>
        <source>Dim level</source>
        <extracomment>How much the break screen&apos;s background is darkened.</extracomment>
        <translation>어둡기</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>디스플레이</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>휴식 표시 위치</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>내 메시지:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>메시지 %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>메시지 %1 삭제</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>추가</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>밝은 종이</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>그라데이션</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>어두운 종이</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>단색</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>사용자 이미지</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>시스템 배경 화면</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>눈을 쉬게 하고 크게 심호흡하세요</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>6미터쯤 떨어진 곳을 바라보세요</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>천천히 눈을 깜빡이며 긴장을 푸세요</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>어깨와 목을 스트레칭하세요</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>잘하고 있어요! 건강한 습관을 계속 이어가세요</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>먼 곳을 보세요. 휴대폰 말고요</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>망막에서 전화 왔어요. 좀 쉬고 싶대요</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>눈이 지지직거려요</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>시력을 걸고 도박하지 말아요</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>시인처럼 먼 곳을 바라보세요</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>의자가 당신을 째려보고 있어요</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>바닥이 기다리고 있어요</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>중력이 당신의 스트레칭을 보고 싶어 해요</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>모험이 기다려요 (거실에서)</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>풀 만지러 갈 시간 (진짜로)</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>균형</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>깊은 집중</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>눈 보호</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>사용자 지정</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>모든 화면</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>주 화면만</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>건너뛰기</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>휴식 종료</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>이 데스크톱에서는 키보드와 포인터의 모든 입력이 반영됩니다.</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>나에게 맞는 짧은 휴식과 긴 휴식으로 집중과 휴식의 균형을 맞추세요.</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>짧은 휴식</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>작업 간격</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>휴식 시간</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>긴 휴식</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>긴 휴식 사용</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>지속 시간</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>빈도</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>휴식 동작</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>건너뛰기 난이도</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>휴식 일찍 끝내기 허용</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>입력 중 지연</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>입력 중에는 휴식 표시 안 함</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>입력하는 동안 작업 타이머를 멈춰 휴식이 작업을 방해할 가능성을 줄입니다.</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>화면 잠금</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>휴식이 시작되면 화면 잠금</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>휴식이 시작되면 데스크톱의 화면 잠금 프로그램으로 세션을 잠급니다.</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>프리셋</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>화면 잠금 프로그램을 찾을 수 없음</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Velto가 이 세션을 잠글 방법을 찾지 못했습니다. 화면 잠금 프로그램(예: 데스크톱의 잠금 화면, light-locker, xsecurelock)을 설치하거나 활성화한 다음 이 옵션을 다시 켜세요.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>카운트다운, 상태, 오늘의 휴식 횟수 표시</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>지금 휴식 시작(--long을 붙이면 긴 휴식)</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>MINUTES분 동안 알림 일시 정지(생략하면 %1분)</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>일시 정지 끝내기</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>다가오는 휴식 건너뛰기</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>알림 켜기</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>알림 끄기</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>설정 창 열기</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>새 버전을 확인하고 결과 알려 주기</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Velto 종료</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>Velto의 GNOME Shell 확장이 설치·활성화되어 실행 중인지 알려 주거나 확장을 활성화</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shell이 제시간에 응답하지 않았습니다</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>이 세션에는 GNOME Shell이 없습니다</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>Velto의 GNOME Shell 확장이 설치되어 있지 않습니다(Velto 패키지에 포함되어 있습니다)</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>GNOME Shell 확장을 활성화하지 못했습니다: </translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>다음 명령으로 활성화하세요: velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>GNOME Shell에서 확장이 아직 꺼져 있습니다</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shell이 확장을 시작하지 못했습니다. 로그에서 원인을 확인할 수 있습니다</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>예상하지 않은 인수 ‘%1’</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>알 수 없는 옵션 ‘%1’</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>알 수 없는 명령 ‘%1’</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>gnome-extension에는 ‘status’ 또는 ‘enable’이 필요합니다</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>알 수 없는 gnome-extension 명령 ‘%1’</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>--json과 --csv 중 하나만 지정하세요</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>--days에는 일수가 필요합니다</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days는 1에서 %1 사이의 정수여야 합니다(입력값: ‘%2’)</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES는 1에서 %1 사이의 정수여야 합니다(입력값: ‘%2’)</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>%2에 대한 알 수 없는 옵션 ‘%1’</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>%2에 대한 예상하지 않은 인수 ‘%1’</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>최근 N일 동안의 휴식 표시(생략하면 %1일), 하루 한 줄 또는 모든 이벤트</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>사용법: velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>명령 없이 실행하면 Velto를 시작하고, Velto가 이미 실행 중이면 설정을 엽니다.</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>실행 중인 Velto에 보내는 명령:</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Velto 실행 여부와 관계없이 쓸 수 있는 명령:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>옵션:</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>이 도움말 표시</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>버전 표시</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>종료 상태: 성공하면 0, Velto가 실행 중이 아니거나 응답하지 않으면(또는 업데이트 확인에 실패했거나,
GNOME Shell 또는 확장이 없거나, 확장 활성화에 실패했으면) 1, 인수가 잘못되었으면 2.</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Velto가 실행 중이 아닙니다</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Velto가 %1초 안에 응답하지 않았습니다</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>세션 버스가 없어 실행 중인 Velto에 연결할 수 없습니다</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>이 세션에서는 설정 창을 표시할 수 없습니다</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>이 명령으로 보낼 내용이 없습니다</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Velto가 이미 실행 중입니다. 설정 창을 열었습니다.</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Velto가 이미 실행 중입니다.</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>남은 시간:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>일시 정지 사유:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>오늘 휴식:</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>알림:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>건너뜀</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>미룸</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>최장 연속</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>스마트 일시 정지</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>이 기간에 기록된 이벤트가 없습니다.</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>시각</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>휴식</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>세부 정보</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>초</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Break Reminder</source>
        <comment>the kind of application, in application menus</comment>
        <translation>휴식 알리미</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>눈을 쉬고 휴식을 취하도록 알려 줍니다</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>휴식;쉬는시간;눈;눈건강;일시정지;타이머;건강;자세;스트레칭;break;timer;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>휴식하기</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>15분 동안 일시 정지</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>이 데스크톱에서는 앞에 있거나 전체 화면인 앱을 감지할 수 없습니다. Velto의 GNOME Shell 확장을 활성화하세요.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>이 데스크톱에서는 앞에 있거나 전체 화면인 앱을 감지할 수 없습니다. KWin이 창 목록을 공유하도록 애플리케이션 메뉴에서 Velto를 시작하세요.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>이 데스크톱의 컴포지터는 창 목록을 공유하지 않으므로 앞에 있거나 전체 화면인 앱을 감지할 수 없습니다.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>이 데스크톱에서는 X11 앱만 앞에 있거나 전체 화면인지 감지할 수 있습니다. Velto의 GNOME Shell 확장을 활성화하세요.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>이 데스크톱에서는 X11 앱만 앞에 있거나 전체 화면인지 감지할 수 있습니다. KWin이 창 목록을 공유하도록 애플리케이션 메뉴에서 Velto를 시작하세요.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>이 데스크톱의 컴포지터는 창 목록을 공유하지 않으므로 X11 앱만 앞에 있거나 전체 화면인지 감지할 수 있습니다.</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>이 데스크톱에서는 입력을 감지할 수 없으므로 입력 중 지연이 적용되지 않습니다.</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>이 데스크톱에서는 X11 앱에서의 입력만 감지할 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>전면 및 전체 화면</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>전면에 있을 때</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>열려 있을 때</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>전면에 있고 전체 화면일 때</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>전면에 있을 때</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>%1 사용 시 휴식 일시 정지</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>%1 삭제</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Velto의 핵심 동작과 작업 흐름에 어울리는 방식을 설정하세요.</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>앱 설정</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Velto 사용</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>패널에 타이머 표시</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>로그인 시 실행</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>일정</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>근무 시간 사용</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>활성 요일</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>시작</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>종료</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>기본값으로 재설정</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>GNOME 확장: 설치되지 않음</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>GNOME 확장: 설치됨, 활성화되지 않음</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>GNOME 확장: 활성화됨, 다음 로그인 후 작동</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>GNOME 확장: 활성화되었으나 GNOME Shell이 시작하지 못함</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>GNOME 확장: 작동 중</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>그때까지 스마트 일시 정지는 GNOME에서 어떤 창이 앞에 있는지 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>확장이 없으면 스마트 일시 정지는 GNOME에서 어떤 창이 앞에 있는지 알 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>한밤</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>오로라</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>바다</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>노을</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>숲</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>우주</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>미니멀</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>장미</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>온기</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>슬레이트</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>라벤더</translation>
    </message>
</context>
<context>
    <name>HistoryPane</name>
    <message>
        <source>See how your breaks went, day by day.</source>
        <translation>날마다 휴식을 어떻게 했는지 확인하세요.</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>기록을 불러오는 중</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>아직 기록이 없습니다</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>쉬었거나 건너뛴 휴식이 모두 여기에 표시됩니다.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>완료한 휴식</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>건너뜀</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>휴식 없이 가장 오래 일한 시간</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>스마트 일시 정지로 보류됨</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>일별 휴식</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>최근 7일</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>최근 30일</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>완료</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>연속 기록</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n일 연속 모든 휴식 완료</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>아직 연속 기록이 없습니다. 하루의 휴식을 모두 하면 시작됩니다.</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>이번 주</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>모두 완료</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>건너뜀 있음</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>휴식 없음</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>기록 보관 기간</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>이보다 오래된 날은 삭제됩니다. 기록은 이 컴퓨터 밖으로 나가지 않습니다.</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>기록 지우기…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>휴식 기록을 지울까요?</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>기록된 모든 휴식, 일시 정지, 스마트 일시 정지 보류가 삭제됩니다. 이 작업은 되돌릴 수 없습니다.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>기록 지우기</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>다가오는 휴식</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>휴식까지</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>지금 휴식</translation>
    </message>
    <message>
        <source>1 min</source>
        <extracomment>A small button of the card: put the break off by one minute. Keep it short.</extracomment>
        <translation>1분</translation>
    </message>
    <message>
        <source>3 min</source>
        <extracomment>A small button of the card: put the break off by three minutes. Keep it short.</extracomment>
        <translation>3분</translation>
    </message>
    <message>
        <source>Skip</source>
        <extracomment>A small button of the card: skip the coming break.</extracomment>
        <translation>건너뛰기</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>휴식 건너뛰기</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>건너뛰기 설정에서 허용하면 이번 휴식을 건너뛰고 작업으로 돌아갑니다.</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>밀어서 닫기</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>%1 파일을 삭제할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>자동 시작 폴더 %1을(를) 만들 수 없습니다</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>%1 파일에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>로그인 시 실행 설정을 변경하지 못했습니다: %1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>방해받지 않으면서 Velto의 알림을 받는 방식을 선택하세요.</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>미리 알림</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>휴식 전에 알림</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>알림 표시</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>소리</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>휴식 시작 시 알림음</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>휴식 종료 시 알림음</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>음량</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>알림음 음량</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>일시 정지됨 · %n분 후 재개</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 정지됨</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>근무 시간 외</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>휴식 꺼짐</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>스마트 일시 정지 작동 중</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>변경 사항을 저장하지 못했습니다. Velto를 종료할 때까지만 적용됩니다.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>모양</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>휴식</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>일반</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>스마트 일시 정지</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Velto 설정</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>사이드바</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>설정 범주 목록 표시 또는 숨기기</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>설정 범주</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>업데이트 있음</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>기록</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>유연함</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>부드러움</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>엄격함</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>%1 사용 중</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>%1 열려 있음</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>집중 앱 사용 중</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>Velto가 지금 하는 일에 맞춰 필요할 때 휴식을 일시 정지하도록 하세요.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>활동 감지</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>회의 또는 통화 중 일시 정지</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>통화나 회의 중일 가능성이 높을 때 일시 정지합니다. 웹을 둘러보기만 할 때는 일시 정지하지 않습니다.</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>동영상 재생 중 일시 정지</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>동영상 감지 방식</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>‘맨 앞 앱만’은 활성 앱만 확인합니다. ‘백그라운드 앱도 포함’은 지원되는 플레이어가 다른 창 뒤에서 재생 중일 때도 일시 정지합니다.</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>화면 녹화 중 일시 정지</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>전체 화면 게임 중 일시 정지</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>유휴 감지</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>유휴 시간 감지</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>타이머를 초기화할 유휴 시간</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>재개 대기</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>활동 종료 후 지연</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>스마트 일시 정지 사유가 사라진 뒤 작업 타이머가 다시 카운트다운을 시작하기 전까지 이 시간만큼 기다립니다.</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>집중 앱</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>특정 앱이 활성화되어 있거나 열려 있을 때 휴식을 일시 정지합니다. 앱마다 ‘맨 앞에 있을 때만’, ‘맨 앞에서 전체 화면일 때’, ‘실행 중일 때 항상’ 중에서 선택할 수 있습니다.</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>설정된 집중 앱 없음</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>앱 추가…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>세션 버스가 없습니다. 실행은 되지만 다른 Velto가 실행 중인지 확인할 수 없습니다</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>디스플레이를 찾을 수 없습니다. 트레이 아이콘 없이 실행합니다</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, 시</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1, 분</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>실행 중인 타이머 없음</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>%1 남음</translation>
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
            <numerusform>%n분</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n시간</numerusform>
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
        <translation>준비됨</translation>
    </message>
    <message>
        <source>Until next break</source>
        <extracomment>The tray menu&apos;s status line after the countdown, as in &quot;24:59 Until next break&quot;.</extracomment>
        <translation>다음 휴식까지</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>휴식 중</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>오늘 휴식 %n회</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Velto 끄기</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Velto 켜기</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>휴식하기</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>재개</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>휴식 종료</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>긴 휴식하기</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>15분 동안 일시 정지</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>설정…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Velto 종료</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>새 버전의 Velto가 있지만 이 시스템보다 최신 시스템이 필요합니다.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>사용 가능한 최신 버전은 Velto %1입니다.</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>Velto가 최신 버전입니다</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Velto가 업데이트를 확인하지 못했습니다</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>맨 앞 앱만</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>백그라운드 앱도 포함</translation>
    </message>
</context>
<context>
    <name>Weekday</name>
    <message>
        <source>Sun</source>
        <extracomment>Sunday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>일</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Monday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>월</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Tuesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>화</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Wednesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>수</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Thursday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>목</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>금</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Saturday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>토</translation>
    </message>
</context>
<context>
    <name>velto::ActivityDetector</name>
    <message>
        <source>In %1</source>
        <extracomment>Why breaks wait: the user is in a call; %1 is the meeting application&apos;s name, such as Zoom.</extracomment>
        <translation>%1 통화 중</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>회의 앱 사용 중</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>카메라와 마이크 사용 중</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>카메라 사용 중</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>마이크 사용 중</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>회의 활동 감지됨</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>동영상 시청 중</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>화면 녹화 중</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>게임 중</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>자리 비움</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>스마트 일시 정지 작동 중</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>잠시 대기 중…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>알 수 없는 앱</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>실행 중인 다른 앱이 없습니다</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>일치하는 앱 없음</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>아직 시스템 트레이를 찾지 못했습니다. 휴식은 계속 작동하고, `velto settings`로 설정을 열 수 있으며, 트레이가 나타나면 아이콘도 표시됩니다</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>이 Velto는 업데이트를 확인하지 않습니다. 시스템 패키지 관리자가 업데이트합니다</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>몸이 당신을 그리워해요</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>눈이 당신을 필요로 해요</translation>
    </message>
</context>
<context>
    <name>velto::HistoryPaneModel</name>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration of the History pane: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n분</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>A duration of the History pane, such as &quot;1 h 05 min&quot;: %1 is the hours, %2 the minutes (two digits).</extracomment>
        <translation>%1시간 %2분</translation>
    </message>
    <message>
        <source>1 month</source>
        <extracomment>How long the break history is kept: an option of the &quot;Keep history for&quot; picker.</extracomment>
        <translation>1개월</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3개월</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6개월</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1년</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>무기한</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: 아직 오지 않음</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: 건너뛴 휴식 있음</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: 모든 휴식 완료</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: 휴식 없음</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <extracomment>How a day of the History chart is spoken, as a Qt date format (ddd: weekday, d: day, MMM: month); put them in your language&apos;s order, such as &quot;ddd, MMM d&quot;.</extracomment>
        <translation>M월 d일 (ddd)</translation>
    </message>
    <message numerus="yes">
        <source>%n taken</source>
        <extracomment>Breaks taken on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>완료 %n회</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>건너뜀 %n회</numerusform>
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
        <translation>긴 휴식이 다가옵니다</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>짧은 휴식이 다가옵니다</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>하던 일을 마무리하거나 잠시 접어 두세요. 곧 자리에서 일어나 더 오래 쉴 수 있습니다.</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>하던 곳을 저장하고 지금 하던 생각을 마무리하세요. 곧 잠깐 재충전할 시간입니다.</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>%n초 후 휴식</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>%n분 후 휴식</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n분</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n초</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>%1 %2 후 휴식</translation>
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
        <translation>연결된 모든 디스플레이에 휴식 표시</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>주 디스플레이에만 휴식 표시</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>시간 날 때 설치하세요.</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>준비되면 버전 %1을(를) 설치할 수 있습니다.</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>활성화하지 못했습니다: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>An option of a picker of durations: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n분</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec</source>
        <extracomment>An option of the short-break duration picker: a number of seconds, abbreviated.</extracomment>
        <translation>
            <numerusform>%n초</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n short breaks</source>
        <extracomment>An option of the long-break frequency picker: a long break takes the place of every n-th short one.</extracomment>
        <translation>
            <numerusform>짧은 휴식 %n회마다</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>지연 없음</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n분 전</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto의 다운로드 도우미 프로그램을 시작할 수 없습니다(%1).</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>여기서는 GNOME Shell 설정을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>이 시스템에서는 GNOME Shell 확장 설정이 잠겨 있습니다</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>GNOME Shell 설정을 쓸 수 없습니다</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>소프트웨어 업데이트</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>새 버전의 Velto를 사용할 수 있습니다</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1을(를) 사용할 수 있습니다(현재 버전: %2). 웹사이트에서 다운로드하여 업데이트하세요.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>릴리스 노트 불러오는 중…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>릴리스 노트를 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>이 버전 건너뛰기</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>나중에 알림</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>다운로드</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>소프트웨어 업데이트</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>업데이트 서버가 제시간에 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>업데이트 피드 주소가 안전하지 않습니다.</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>업데이트 피드가 안전하지 않은 주소로 리디렉션되었습니다.</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>업데이트 피드가 너무 큽니다.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>업데이트 서버가 상태 코드 %1을(를) 반환했습니다.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>업데이트 피드를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>Velto가 최신 버전입니다.</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>새 버전의 Velto가 있지만 이 시스템보다 최신 시스템이 필요합니다.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>사용 가능한 최신 버전은 Velto %1입니다.</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Velto %1을(를) 사용할 수 있습니다(현재 버전: %2). 다운로드: %3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1을(를) 사용할 수 있습니다(현재 버전: %2).</translation>
    </message>
</context>
</TS>
