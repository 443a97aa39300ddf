<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>Veltoは、無理なく集中と休憩を続けるための、システムトレイに常駐する小さな相棒です。</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>ウェブサイト（%1）</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>ウェブサイト</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>%1にフィードバックを送信</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>フィードバックを送信</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>バージョン%1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>新しいビルドがあります</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>更新内容を見る</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>アップデートはシステムのパッケージマネージャーから提供されます。</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>集中アプリを追加</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>アプリを検索…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>アプリを検索</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>実行中のアプリ</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>休憩を保留</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>アプリを追加</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>Veltoはシステムトレイに常駐し、作業時間をカウントダウンします。休憩の1分前には小さなカードを表示し、今すぐ休憩するか、1分または3分先送りするか、スキップするかを選べます。時間になると、落ち着いた休憩画面がディスプレイを覆い、短い休憩を、数回に一度は長い休憩をカウントダウンします。</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>スマートポーズは、休憩に割り込まれると困る場面ではカウントダウンを止めます。通話や会議の最中、動画の再生中、画面の録画中、フルスクリーンのゲーム中、集中用に選んだアプリの使用中、そして席を外している間です。勤務時間を設定すれば、リマインダーは働く曜日と時間帯だけに限られます。</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>Veltoはターミナルやスクリプトからも操作できます（velto status、velto break、velto pause など）。</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>短い休憩が画面を覆い、カウントダウンします</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>休憩の1分前には、今すぐ休憩するか、先送りするか、スキップするかを選べるカードが表示されます</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>トレイメニュー</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>スマートポーズは通話、動画、録画、ゲームの間は休憩を保留します</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>トレイのないGNOMEでは、Veltoはトップバーに表示されます</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>最初のリリースです。</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>トレイのカウントダウン、休憩前のカード、すべてのディスプレイに表示される短い休憩と長い休憩の画面</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>X11、Wayland（swayなどのwlroots系コンポジター、KDE Plasma）、そしてVelto独自のShell拡張機能によるGNOMEでのスマートポーズ</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>勤務時間、プリセット、チャイム、画面ロック、ログイン時の起動、コマンドライン</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>休憩画面をカスタマイズして、一回一回の休憩を意味のあるひとときに。</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>背景</translation>
    </message>
    <message>
        <source>Style</source>
        <extracomment>The kind of background: paper, gradient…</extracomment>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>The colours of the gradient background.</extracomment>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Dim level</source>
        <extracomment>How much the break screen&apos;s background is darkened.</extracomment>
        <translation>暗さ</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>休憩の表示先</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>自分のメッセージ：</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>メッセージ%1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>メッセージ%1を削除</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>追加</translation>
    </message>
</context>
<context>
    <name>BreakBackground</name>
    <message>
        <source>Paper Light</source>
        <translation>ペーパー（ライト）</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>グラデーション</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>ペーパー（ダーク）</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>単色</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>カスタム画像</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>システムの壁紙</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>目を休めて、深呼吸しましょう</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>6メートルほど先を眺めましょう</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>ゆっくりまばたきして、目の力を抜きましょう</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>肩と首をストレッチしましょう</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>その調子！健康的な習慣を続けましょう</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>画面から目を離して。スマホを見るのもナシです</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>網膜から伝言です：「休ませて」</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>目がショボショボ</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>「あと5分だけ」は視力に通用しません</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>詩人のように遠くを見つめて</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>椅子が冷たい目で見ていますよ</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>床があなたを待っています</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>重力もあなたのストレッチを見たがっています</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>冒険が待っている（リビングで）</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>外に出て草に触れよう（文字どおり）</translation>
    </message>
</context>
<context>
    <name>BreakPreset</name>
    <message>
        <source>Balanced</source>
        <extracomment>A preset of break settings.</extracomment>
        <translation>バランス</translation>
    </message>
    <message>
        <source>Deep Focus</source>
        <extracomment>A preset of break settings: long stretches of work between breaks.</extracomment>
        <translation>じっくり集中</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>目のケア</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>Shown as the preset when the break settings match none of the others.</extracomment>
        <translation>カスタム</translation>
    </message>
</context>
<context>
    <name>BreakScreens</name>
    <message>
        <source>All Screens</source>
        <translation>すべての画面</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>メイン画面のみ</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>休憩を終了</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>このデスクトップでは、キーボードやポインターのあらゆる入力が対象になります。</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>自分に合った短い休憩と長い休憩で、集中と休息のバランスを取りましょう。</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>短い休憩</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>作業時間</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>休憩時間</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>長い休憩</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>長い休憩を有効にする</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>頻度</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>休憩の動作</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>スキップのしにくさ</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>休憩の早期終了を許可</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>タイピング遅延</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>タイピング中は休憩を表示しない</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>タイピング中は作業タイマーを止め、休憩で作業が中断されにくくします。</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>画面ロック</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>休憩の開始時に画面をロック</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>休憩が始まると、デスクトップのスクリーンロッカーでセッションをロックします。</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>スクリーンロッカーが見つかりません</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>Veltoはこのセッションをロックする方法を見つけられませんでした。スクリーンロッカー（デスクトップのロック画面、light-locker、xsecurelockなど）をインストールするか有効にしてから、このオプションをもう一度オンにしてください。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>カウントダウン、状態、今日の休憩回数を表示</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>今すぐ休憩する（--longで長い休憩）</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>リマインダーをMINUTES分間一時停止（省略時は%1分）</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>一時停止を終了</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>次の休憩をスキップ</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>リマインダーをオンにする</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>リマインダーをオフにする</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>設定ウィンドウを開く</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>新しいバージョンを確認し、結果を表示</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Veltoを終了</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>VeltoのGNOME Shell拡張機能がインストール済みか、有効か、動作中かを表示、または有効化</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>GNOME Shellが時間内に応答しませんでした</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>このセッションにはGNOME Shellがありません</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>VeltoのGNOME Shell拡張機能がインストールされていません（Veltoのパッケージに含まれています）</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>GNOME Shell拡張機能を有効にできませんでした：</translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>次のコマンドで有効にできます：velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>GNOME Shellでは拡張機能がまだオフになっています</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>GNOME Shellが拡張機能を起動できませんでした。原因はGNOME Shellのログで確認できる場合があります</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>予期しない引数「%1」</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>不明なオプション「%1」</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>不明なコマンド「%1」</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>gnome-extensionには「status」または「enable」を指定してください</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>不明なgnome-extensionコマンド「%1」</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>--json と --csv はどちらか一方だけを指定してください</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>--days には日数を指定してください</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--daysには1から%1までの整数を指定してください（指定された値：「%2」）</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTESには1から%1までの整数を指定してください（指定された値：「%2」）</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>%2に対する不明なオプション「%1」</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>%2に対する予期しない引数「%1」</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>過去N日間の休憩を表示（省略時は%1日）。1日1行、またはすべてのイベント</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>使い方：velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>コマンドを指定しない場合はVeltoを起動します。Veltoがすでに実行中の場合は、代わりに設定を開きます。</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>実行中のVeltoに対するコマンド：</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Veltoの実行中でも停止中でも使えるコマンド：</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>オプション：</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>このヘルプを表示</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>バージョンを表示</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>終了ステータス：成功時は0、Veltoが実行されていないか応答しない場合（またはアップデートの確認に失敗した場合、
GNOME Shellや拡張機能がない場合、拡張機能の有効化に失敗した場合）は1、引数が不正な場合は2。</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>Veltoは実行されていません</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>Veltoが%1秒以内に応答しませんでした</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>セッションバスがないため、実行中のVeltoに接続できません</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>このセッションでは設定ウィンドウを表示できません</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>このコマンドで送信する内容はありません</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>Veltoはすでに実行中です。設定ウィンドウを開きました。</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>Veltoはすでに実行中です。</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>残り時間：</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>状態：</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>一時停止の理由：</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>今日の休憩：</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>リマインダー：</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>日付</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>実施</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>延期</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>作業</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>最長連続</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>スマートポーズ</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>この期間に記録されたイベントはありません。</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Column titles of `velto history --events`: local time, what happened, short or long break, more about it, and a length in seconds. The values under them stay in English, for scripts.</extracomment>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>休憩</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>詳細</translation>
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
        <translation>休憩リマインダー</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>目を休めて休憩を取るよう知らせます</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>休憩;休息;目;疲れ目;一時停止;タイマー;健康;姿勢;break;rest;eyes;pause;timer;health;posture;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>休憩を取る</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>15分間一時停止</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>このデスクトップでは、前面やフルスクリーンのアプリを検出できません。VeltoのGNOME Shell拡張機能を有効にしてください。</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>このデスクトップでは、前面やフルスクリーンのアプリを検出できません。KWinがウィンドウ一覧を共有できるよう、Veltoをアプリケーションメニューから起動してください。</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>このデスクトップのコンポジターはウィンドウ一覧を共有しないため、前面やフルスクリーンのアプリを検出できません。</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>このデスクトップでは、前面やフルスクリーンのアプリを検出できるのはX11アプリのみです。VeltoのGNOME Shell拡張機能を有効にしてください。</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>このデスクトップでは、前面やフルスクリーンのアプリを検出できるのはX11アプリのみです。KWinがウィンドウ一覧を共有できるよう、Veltoをアプリケーションメニューから起動してください。</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>このデスクトップのコンポジターはウィンドウ一覧を共有しないため、前面やフルスクリーンのアプリを検出できるのはX11アプリのみです。</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>このデスクトップではタイピングを検出できないため、タイピング遅延は機能しません。</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>このデスクトップで検出できるのは、X11アプリでのタイピングのみです。</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>前面・フルスクリーン</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>前面にあるとき</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>起動中</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>前面かつフルスクリーンのとき</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>前面にあるとき</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>%1で休憩を保留</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>%1を削除</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Veltoの基本的な動作と、ワークフローへのなじませ方を設定します。</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>アプリの設定</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Veltoを有効にする</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>パネルにタイマーを表示</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>スケジュール</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>勤務時間を使う</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>勤務日</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>開始</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>デフォルトに戻す</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>GNOME拡張機能：未インストール</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>GNOME拡張機能：インストール済み、無効</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>GNOME拡張機能：有効（次回ログイン後に動作）</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>GNOME拡張機能：有効ですが、GNOME Shellが起動できませんでした</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>GNOME拡張機能：動作中</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>それまでは、GNOMEで前面にあるウィンドウをスマートポーズが検出できません。</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>これがないと、GNOMEで前面にあるウィンドウをスマートポーズが検出できません。</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>ミッドナイト</translation>
    </message>
    <message>
        <source>Aurora</source>
        <translation>オーロラ</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>オーシャン</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>サンセット</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>フォレスト</translation>
    </message>
    <message>
        <source>Cosmos</source>
        <translation>コスモス</translation>
    </message>
    <message>
        <source>Minimal</source>
        <translation>ミニマル</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>ローズ</translation>
    </message>
    <message>
        <source>Warmth</source>
        <translation>ウォーム</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>スレート</translation>
    </message>
    <message>
        <source>Lavender</source>
        <translation>ラベンダー</translation>
    </message>
</context>
<context>
    <name>HistoryPane</name>
    <message>
        <source>See how your breaks went, day by day.</source>
        <translation>休憩の記録を日ごとに確認できます。</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>履歴を読み込み中</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>まだ履歴はありません</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>取った休憩やスキップした休憩がここに表示されます。</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>今日</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>実施した休憩</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>休憩なしの最長時間</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>スマートポーズで保留</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>日ごとの休憩</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>過去7日間</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>過去30日間</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>実施</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>連続記録</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n日連続ですべての休憩を実施</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>まだ連続記録はありません。1日の休憩をすべて取ると記録が始まります。</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>今週</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>すべて実施</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>スキップあり</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>休憩なし</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>履歴の保存期間</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>それより古い日は削除されます。履歴がこのコンピューターの外に出ることはありません。</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>履歴を消去…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>休憩の履歴を消去しますか？</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>記録されたすべての休憩、一時停止、スマートポーズによる保留が削除されます。この操作は取り消せません。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>履歴を消去</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>InAppNotificationView</name>
    <message>
        <source>UPCOMING BREAK</source>
        <extracomment>A small heading in capitals above the title of the card that announces the next break.</extracomment>
        <translation>まもなく休憩</translation>
    </message>
    <message>
        <source>BREAK IN</source>
        <extracomment>A small label in capitals right above a countdown such as 0:42: the time left until the break.</extracomment>
        <translation>休憩まで</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>今すぐ休憩</translation>
    </message>
    <message>
        <source>1 min</source>
        <extracomment>A small button of the card: put the break off by one minute. Keep it short.</extracomment>
        <translation>1分</translation>
    </message>
    <message>
        <source>3 min</source>
        <extracomment>A small button of the card: put the break off by three minutes. Keep it short.</extracomment>
        <translation>3分</translation>
    </message>
    <message>
        <source>Skip</source>
        <extracomment>A small button of the card: skip the coming break.</extracomment>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>休憩をスキップ</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>スキップの設定で許可されていれば、この休憩をスキップして作業に戻ります。</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>スワイプして閉じる</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>%1を削除できませんでした：%2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>自動起動フォルダー%1を作成できませんでした</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>%1に書き込めませんでした：%2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>ログイン時の起動設定を更新できませんでした：%1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>作業の邪魔をせずに、Veltoがどのようにお知らせするかを選びます。</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>事前通知</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>休憩前に通知</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>通知を表示</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>サウンド</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>休憩開始時にチャイムを鳴らす</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>休憩終了時にチャイムを鳴らす</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>チャイムの音量</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>一時停止中 · %n分後に再開</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>勤務時間外</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>休憩は無効</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>スマートポーズ作動中</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>変更内容を保存できませんでした。Veltoを終了するまでは有効です。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>休憩</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>一般</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>スマートポーズ</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Veltoの設定</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>設定カテゴリの一覧を表示または非表示</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>設定カテゴリ</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>アップデートがあります</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>履歴</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>柔軟</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>ほどほど</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>厳格</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>%1を使用中</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>%1が起動中</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>集中アプリを使用中</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>作業の内容に合わせて、必要なときにVeltoが休憩を保留します。</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効にする</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>アクティビティの検出</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>会議や通話中は一時停止</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>通話中や会議中と思われるときに一時停止します。ウェブを閲覧しているだけのときは一時停止しません。</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>動画の再生中は一時停止</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>動画の検出モード</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>「最前面のみ」では、アクティブなアプリだけを確認します。「バックグラウンドも含む」では、対応プレーヤーがほかのウィンドウの背後で再生している場合にも一時停止します。</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>画面の録画中は一時停止</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>フルスクリーンのゲーム中は一時停止</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>アイドルの検出</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>アイドル時間を検出</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>タイマーをリセットするまでのアイドル時間</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>クールダウン</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>アクティビティ終了後の待ち時間</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>スマートポーズの理由がなくなってから、作業タイマーのカウントダウンを再開するまで、この時間だけ待ちます。</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>集中アプリ</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>特定のアプリが前面にあるとき、または起動しているときに休憩を保留します。アプリごとに、前面にあるときのみ、フルスクリーンで前面にあるとき、起動中は常に、のいずれかを選べます。</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>集中アプリは設定されていません</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>アプリを追加…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>セッションバスがありません。起動しますが、ほかのVeltoが動作していないことを確認できません</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>ディスプレイが見つかりません。トレイアイコンなしで動作します</translation>
    </message>
</context>
<context>
    <name>TimeField</name>
    <message>
        <source>%1 hour</source>
        <extracomment>Spoken name of the hour box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1（時）</translation>
    </message>
    <message>
        <source>%1 minute</source>
        <extracomment>Spoken name of the minute box of a time; %1 is the time&apos;s label, Start or End.</extracomment>
        <translation>%1（分）</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>No active timer</source>
        <translation>動作中のタイマーはありません</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>残り%1</translation>
    </message>
    <message>
        <source>Velto, %1</source>
        <extracomment>What a screen reader says for the tray icon; %1 is the status line, such as &quot;Until next break&quot;.</extracomment>
        <translation>Velto、%1</translation>
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
            <numerusform>%n分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n h</source>
        <extracomment>A duration a screen reader says for the tray icon, with &quot;%1 remaining&quot; around it.</extracomment>
        <translation>
            <numerusform>%n時間</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes together, such as &quot;2 h 5 min&quot;: %1 is the hours, %2 the minutes.</extracomment>
        <translation>%1%2</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>Ready</source>
        <extracomment>Nothing is counted yet; shown in the tray menu and as the tray&apos;s title.</extracomment>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Until next break</source>
        <extracomment>The tray menu&apos;s status line after the countdown, as in &quot;24:59 Until next break&quot;.</extracomment>
        <translation>次の休憩まで</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>休憩中</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>今日の休憩：%n回</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Veltoを無効にする</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Veltoを有効にする</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>休憩を取る</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>再開</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>休憩を終了</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>長い休憩を取る</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>15分間一時停止</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Veltoを終了</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Veltoの新しいバージョンがありますが、このシステムより新しいシステムが必要です。</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1は利用可能な最新バージョンです。</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>Veltoは最新です</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>Veltoはアップデートを確認できませんでした</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>最前面のみ</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>バックグラウンドも含む</translation>
    </message>
</context>
<context>
    <name>Weekday</name>
    <message>
        <source>Sun</source>
        <extracomment>Sunday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>日</translation>
    </message>
    <message>
        <source>Mon</source>
        <extracomment>Monday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>月</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Tuesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>火</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Wednesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>水</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Thursday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>木</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>金</translation>
    </message>
    <message>
        <source>Sat</source>
        <extracomment>Saturday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>土</translation>
    </message>
</context>
<context>
    <name>velto::ActivityDetector</name>
    <message>
        <source>In %1</source>
        <extracomment>Why breaks wait: the user is in a call; %1 is the meeting application&apos;s name, such as Zoom.</extracomment>
        <translation>%1で通話中</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>会議アプリを使用中</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>カメラとマイクを使用中</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>カメラを使用中</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>マイクを使用中</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>会議を検出しました</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>動画を視聴中</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>画面を録画中</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>ゲームをプレイ中</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>離席中</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>スマートポーズ作動中</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>まもなく再開…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>不明なアプリ</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>ほかに実行中のアプリはありません</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>一致するアプリはありません</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>システムトレイがまだ見つかりません。休憩はそのまま動作し、`velto settings`で設定を開けます。トレイが現れるとアイコンが表示されます</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>このVeltoはアップデートを確認しません。システムのパッケージマネージャーで更新されます</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>体が動きたがっています</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>目が休みを求めています</translation>
    </message>
</context>
<context>
    <name>velto::HistoryPaneModel</name>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>A duration of the History pane: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n分</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>A duration of the History pane, such as &quot;1 h 05 min&quot;: %1 is the hours, %2 the minutes (two digits).</extracomment>
        <translation>%1時間%2分</translation>
    </message>
    <message>
        <source>1 month</source>
        <extracomment>How long the break history is kept: an option of the &quot;Keep history for&quot; picker.</extracomment>
        <translation>1か月</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3か月</translation>
    </message>
    <message>
        <source>6 months</source>
        <translation>6か月</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1年</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>無期限</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1：これから</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1：スキップした休憩あり</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1：すべての休憩を実施</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1：休憩なし</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <extracomment>How a day of the History chart is spoken, as a Qt date format (ddd: weekday, d: day, MMM: month); put them in your language&apos;s order, such as &quot;ddd, MMM d&quot;.</extracomment>
        <translation>M月d日(ddd)</translation>
    </message>
    <message numerus="yes">
        <source>%n taken</source>
        <extracomment>Breaks taken on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>実施 %n回</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>スキップ %n回</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <extracomment>Spoken for a bar of the History chart, such as &quot;Mon 3 Nov: 5 taken, 1 skipped&quot;: %1 is the day, %2 the breaks taken, %3 those skipped.</extracomment>
        <translation>%1：%2、%3</translation>
    </message>
</context>
<context>
    <name>velto::PreBreakNotificationDisplayModel</name>
    <message>
        <source>Deep rest coming up</source>
        <extracomment>The title of the notice shown shortly before a break.</extracomment>
        <translation>まもなく長い休憩</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>まもなく短い休憩</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>作業をまとめるか、いったん区切りをつけましょう。もうすぐ、しっかり席を離れられる時間です。</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>今の作業を保存し、考えていることをまとめましょう。もうすぐ小休憩です。</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>%n秒後に休憩</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>%n分後に休憩</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <extracomment>The minutes of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <extracomment>The seconds of &quot;Break in %1 %2&quot;.</extracomment>
        <translation>
            <numerusform>%n秒</numerusform>
        </translation>
    </message>
    <message>
        <source>Break in %1 %2</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown, such as &quot;Break in 2 minutes 5 seconds&quot;: %1 is the minutes, %2 the seconds.</extracomment>
        <translation>%1%2後に休憩</translation>
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
        <translation>接続されているすべてのディスプレイに休憩を表示</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>メインディスプレイにのみ休憩を表示</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>お手すきの際にインストールしてください。</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>バージョン%1をいつでもインストールできます。</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>有効にできませんでした：%1。</translation>
    </message>
    <message numerus="yes">
        <source>%n min</source>
        <extracomment>An option of a picker of durations: a number of minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sec</source>
        <extracomment>An option of the short-break duration picker: a number of seconds, abbreviated.</extracomment>
        <translation>
            <numerusform>%n秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n short breaks</source>
        <extracomment>An option of the long-break frequency picker: a long break takes the place of every n-th short one.</extracomment>
        <translation>
            <numerusform>短い休憩%n回ごと</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>遅延なし</translation>
    </message>
    <message numerus="yes">
        <source>%n min before</source>
        <extracomment>An option of the picker of how early the card tells of the next break: minutes, abbreviated.</extracomment>
        <translation>
            <numerusform>%n分前</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>velto::SmallDownload</name>
    <message>
        <source>Velto&apos;s download helper could not be started (%1).</source>
        <translation>Velto のダウンロード補助プログラムを起動できませんでした（%1）。</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>ここではGNOME Shellの設定を読み取れません</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>このシステムではGNOME Shellの拡張機能設定がロックされています</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>GNOME Shellの設定を書き込めませんでした</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>Veltoの新しいバージョンがあります</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1が利用可能です（現在のバージョンは%2）。ウェブサイトからダウンロードしてアップデートしてください。</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>リリースノートを読み込み中…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>リリースノートを読み込めませんでした。</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>後で通知</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>ダウンロード</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアアップデート</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>アップデートサーバーが時間内に応答しませんでした。</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>アップデートフィードのアドレスが安全ではありません。</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>アップデートフィードが安全でないアドレスにリダイレクトされました。</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>アップデートフィードが大きすぎます。</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>アップデートサーバーがステータス%1を返しました。</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>アップデートフィードを読み取れませんでした。</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>Veltoは最新です。</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Veltoの新しいバージョンがありますが、このシステムより新しいシステムが必要です。</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>Velto %1は利用可能な最新バージョンです。</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>Velto %1が利用可能です（現在のバージョンは%2）。ダウンロード先：%3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>Velto %1が利用可能です（現在のバージョンは%2）。</translation>
    </message>
</context>
</TS>
