<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AboutPane</name>
    <message>
        <source>Velto is a small menu bar companion for sustainable focus and breaks.</source>
        <translation>O Velto é um pequeno companheiro na bandeja do sistema para manter o foco e descansar de forma sustentável.</translation>
    </message>
    <message>
        <source>Website %1</source>
        <extracomment>Spoken name of the website link; %1 is the site&apos;s address without &quot;https://&quot;.</extracomment>
        <translation>Site %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Send Feedback to %1</source>
        <extracomment>Spoken name of the feedback link; %1 is an e-mail address.</extracomment>
        <translation>Enviar comentários para %1</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar comentários</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Velto&apos;s version number follows.</extracomment>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Spoken name of the version number; %1 is the number, like 1.4 (27).</extracomment>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>A newer build is available</source>
        <translation>Há uma versão mais recente disponível</translation>
    </message>
    <message>
        <source>Review update</source>
        <extracomment>A button: look at the newer version before installing it (&quot;Review&quot; is a verb).</extracomment>
        <translation>Revisar atualização</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Verificar atualizações…</translation>
    </message>
    <message>
        <source>Updates come from your system&apos;s package manager.</source>
        <translation>As atualizações vêm do gerenciador de pacotes do sistema.</translation>
    </message>
</context>
<context>
    <name>AddFocusAppSheet</name>
    <message>
        <source>Add Focus App</source>
        <translation>Adicionar app de foco</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Search apps…</source>
        <translation>Pesquisar apps…</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Pesquisar apps</translation>
    </message>
    <message>
        <source>Running apps</source>
        <extracomment>Spoken name of the list of applications running now.</extracomment>
        <translation>Apps em execução</translation>
    </message>
    <message>
        <source>Pause breaks</source>
        <extracomment>Followed by a picker of when the chosen app holds breaks back (&quot;When in Foreground&quot;…).</extracomment>
        <translation>Pausar descansos</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>Adicionar app</translation>
    </message>
</context>
<context>
    <name>AppStream</name>
    <message>
        <source>Velto lives in the system tray and counts down your work time. A minute before a break it shows a small card that lets you take the break now, put it off for a minute or three, or skip it. When the time is up, a calm break screen covers your displays and counts down a short break, or a long one every few breaks.</source>
        <comment>software centre description, first paragraph</comment>
        <translation>O Velto fica na bandeja do sistema e faz a contagem regressiva do seu tempo de trabalho. Um minuto antes de cada descanso, ele mostra um pequeno cartão que permite descansar agora, adiar por um ou três minutos, ou pular. Quando o tempo acaba, uma tela de descanso tranquila cobre seus monitores e faz a contagem regressiva de um descanso curto ou, a cada tantos descansos, de um longo.</translation>
    </message>
    <message>
        <source>Smart Pause holds the countdown while a break would be rude: during a call or meeting, while a video plays, while the screen is recorded, in a fullscreen game, in an application you chose to focus on, and while you are away. Office hours limit reminders to the days and times you work.</source>
        <comment>software centre description, second paragraph</comment>
        <translation>A Pausa Inteligente segura a contagem regressiva quando um descanso seria inoportuno: durante uma chamada ou reunião, enquanto um vídeo é reproduzido, enquanto a tela é gravada, em um jogo em tela cheia, em um aplicativo no qual você escolheu se concentrar e enquanto você está ausente. O horário de expediente limita os lembretes aos dias e horários em que você trabalha.</translation>
    </message>
    <message>
        <source>Velto can also be driven from a terminal or a script: velto status, velto break, velto pause and more.</source>
        <comment>software centre description; the commands stay in English</comment>
        <translation>O Velto também pode ser controlado pelo terminal ou por um script: velto status, velto break, velto pause e mais.</translation>
    </message>
    <message>
        <source>A short break covers the screen and counts down</source>
        <comment>screenshot caption</comment>
        <translation>Um descanso curto cobre a tela e faz a contagem regressiva</translation>
    </message>
    <message>
        <source>A minute before a break, a card offers to take it now, put it off or skip it</source>
        <comment>screenshot caption</comment>
        <translation>Um minuto antes de um descanso, um cartão oferece começar agora, adiar ou pular</translation>
    </message>
    <message>
        <source>The tray menu</source>
        <comment>screenshot caption</comment>
        <translation>O menu da bandeja do sistema</translation>
    </message>
    <message>
        <source>Smart Pause holds breaks during calls, videos, recordings and games</source>
        <comment>screenshot caption</comment>
        <translation>A Pausa Inteligente segura os descansos durante chamadas, vídeos, gravações e jogos</translation>
    </message>
    <message>
        <source>On GNOME without a tray, Velto shows in the top bar</source>
        <comment>screenshot caption</comment>
        <translation>No GNOME sem bandeja do sistema, o Velto aparece na barra superior</translation>
    </message>
    <message>
        <source>The first release.</source>
        <comment>release notes</comment>
        <translation>A primeira versão.</translation>
    </message>
    <message>
        <source>A tray countdown, a pre-break card, and short and long break screens on every display</source>
        <comment>release notes</comment>
        <translation>Contagem regressiva na bandeja do sistema, um cartão antes do descanso e telas de descanso curto e longo em todos os monitores</translation>
    </message>
    <message>
        <source>Smart Pause on X11, on Wayland (sway and other wlroots compositors, KDE Plasma) and on GNOME through Velto&apos;s own Shell extension</source>
        <comment>release notes</comment>
        <translation>Pausa Inteligente no X11, no Wayland (sway e outros compositores wlroots, KDE Plasma) e no GNOME por meio da extensão do Shell do próprio Velto</translation>
    </message>
    <message>
        <source>Office hours, presets, chimes, screen lock, launch at login and a command line</source>
        <comment>release notes</comment>
        <translation>Horário de expediente, predefinições, sons de aviso, bloqueio de tela, início com a sessão e linha de comando</translation>
    </message>
</context>
<context>
    <name>AppearancePane</name>
    <message>
        <source>Personalize your break screen to make every pause feel intentional.</source>
        <translation>Personalize sua tela de descanso para que cada pausa tenha um propósito.</translation>
    </message>
    <message>
        <source>Background</source>
        <extracomment>The break screen&apos;s background.</extracomment>
        <translation>Plano de fundo</translation>
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
        <translation>Nível de escurecimento</translation>
    </message>
    <message>
        <source>Display</source>
        <extracomment>Which screens show the break.</extracomment>
        <translation>Tela</translation>
    </message>
    <message>
        <source>Show break on</source>
        <extracomment>Followed by a picker: all displays or the primary display only.</extracomment>
        <translation>Mostrar o descanso em</translation>
    </message>
    <message>
        <source>Messages</source>
        <extracomment>The lines the break screen shows, one picked at random.</extracomment>
        <translation>Mensagens</translation>
    </message>
    <message>
        <source>Your messages:</source>
        <translation>Suas mensagens:</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>Message %1</source>
        <extracomment>Spoken name of a message field; %1 is its position in the list, from 1.</extracomment>
        <translation>Mensagem %1</translation>
    </message>
    <message>
        <source>Remove message %1</source>
        <extracomment>Spoken name of the button that removes a message; %1 is its position in the list, from 1.</extracomment>
        <translation>Remover mensagem %1</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Adds a message to the list.</extracomment>
        <translation>Adicionar</translation>
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
        <translation>Gradiente</translation>
    </message>
    <message>
        <source>Paper Dark</source>
        <translation>Papel escuro</translation>
    </message>
    <message>
        <source>Solid Color</source>
        <translation>Cor sólida</translation>
    </message>
    <message>
        <source>Custom Image</source>
        <translation>Imagem personalizada</translation>
    </message>
    <message>
        <source>System Wallpaper</source>
        <translation>Papel de parede do sistema</translation>
    </message>
</context>
<context>
    <name>BreakMessage</name>
    <message>
        <source>Rest your eyes and take a deep breath</source>
        <translation>Descanse os olhos e respire fundo</translation>
    </message>
    <message>
        <source>Look at something 20 feet away</source>
        <translation>Olhe para algo a uns 6 metros de distância</translation>
    </message>
    <message>
        <source>Blink slowly and relax your eyes</source>
        <translation>Pisque devagar e relaxe os olhos</translation>
    </message>
    <message>
        <source>Stretch your shoulders and neck</source>
        <translation>Alongue os ombros e o pescoço</translation>
    </message>
    <message>
        <source>You&apos;re doing great! Keep up the healthy habits</source>
        <translation>Você está indo muito bem! Continue com os hábitos saudáveis</translation>
    </message>
    <message>
        <source>Look away, not at your phone</source>
        <extracomment>A playful line on the screen of a short break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Desvie o olhar, mas não para o celular</translation>
    </message>
    <message>
        <source>Your retinas called</source>
        <extracomment>A joke on &quot;… called, they want their … back&quot;: the eyes ask for rest.</extracomment>
        <translation>Suas retinas ligaram: querem um descanso</translation>
    </message>
    <message>
        <source>Eyes go brrrr</source>
        <extracomment>Playful: tired eyes making a whirring noise.</extracomment>
        <translation>Olhos fazendo brrrr</translation>
    </message>
    <message>
        <source>Let&apos;s not make deals with our vision</source>
        <translation>Com a visão não se brinca</translation>
    </message>
    <message>
        <source>Stare into the distance like a poet</source>
        <translation>Olhe para o horizonte como um poeta</translation>
    </message>
    <message>
        <source>Your desk chair is judging you</source>
        <extracomment>A playful line on the screen of a long break, for a user without messages of their own; adapt freely.</extracomment>
        <translation>Sua cadeira está julgando você</translation>
    </message>
    <message>
        <source>The floor is waiting</source>
        <translation>O chão está esperando</translation>
    </message>
    <message>
        <source>Gravity wants to see you stretch</source>
        <translation>A gravidade quer ver você se alongar</translation>
    </message>
    <message>
        <source>Adventure awaits (in your living room)</source>
        <translation>A aventura espera (na sua sala)</translation>
    </message>
    <message>
        <source>Time to touch grass (literally)</source>
        <extracomment>&quot;Touch grass&quot;: go outside, away from the screen.</extracomment>
        <translation>Hora de tocar grama (literalmente)</translation>
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
        <translation>Foco profundo</translation>
    </message>
    <message>
        <source>Eye Care</source>
        <extracomment>A preset of break settings: frequent short breaks to rest the eyes.</extracomment>
        <translation>Cuidado com os olhos</translation>
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
        <translation>Todas as telas</translation>
    </message>
    <message>
        <source>Main Screen Only</source>
        <translation>Somente a tela principal</translation>
    </message>
</context>
<context>
    <name>BreakView</name>
    <message>
        <source>Skip</source>
        <extracomment>A button on the break screen: skip the rest of this break and go back to work.</extracomment>
        <translation>Pular</translation>
    </message>
    <message>
        <source>End Break</source>
        <extracomment>A button on the break screen, shown in the break&apos;s second half: end the break now (&quot;Break&quot; is a noun).</extracomment>
        <translation>Encerrar descanso</translation>
    </message>
</context>
<context>
    <name>BreaksPane</name>
    <message>
        <source>Any keyboard or pointer input counts on this desktop.</source>
        <translation>Neste ambiente gráfico, qualquer uso do teclado ou do ponteiro conta.</translation>
    </message>
    <message>
        <source>Balance your focus and rest with short and long breaks that work for you.</source>
        <translation>Equilibre foco e repouso com descansos curtos e longos do seu jeito.</translation>
    </message>
    <message>
        <source>Short Breaks</source>
        <translation>Descansos curtos</translation>
    </message>
    <message>
        <source>Work interval</source>
        <extracomment>How long you work between two breaks.</extracomment>
        <translation>Intervalo de trabalho</translation>
    </message>
    <message>
        <source>Break duration</source>
        <extracomment>How long a short break lasts (&quot;Break&quot; is a noun here).</extracomment>
        <translation>Duração do descanso</translation>
    </message>
    <message>
        <source>Long Breaks</source>
        <translation>Descansos longos</translation>
    </message>
    <message>
        <source>Enable long breaks</source>
        <translation>Ativar descansos longos</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>How long a long break lasts.</extracomment>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>How often a long break takes the place of a short one.</extracomment>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Break Behavior</source>
        <translation>Comportamento dos descansos</translation>
    </message>
    <message>
        <source>Skip difficulty</source>
        <extracomment>How hard it is to skip a break: Flexible, Gentle or Committed.</extracomment>
        <translation>Dificuldade para pular</translation>
    </message>
    <message>
        <source>Allow ending break early</source>
        <translation>Permitir encerrar o descanso antes da hora</translation>
    </message>
    <message>
        <source>Typing Delay</source>
        <translation>Atraso ao digitar</translation>
    </message>
    <message>
        <source>Don&apos;t show breaks while typing</source>
        <translation>Não mostrar descansos durante a digitação</translation>
    </message>
    <message>
        <source>Pauses the work timer while you&apos;re typing so a break is less likely to interrupt you.</source>
        <translation>Pausa o temporizador de trabalho enquanto você digita, para que um descanso tenha menos chance de interromper você.</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Bloqueio de tela</translation>
    </message>
    <message>
        <source>Lock screen when break starts</source>
        <translation>Bloquear a tela ao começar o descanso</translation>
    </message>
    <message>
        <source>Locks your session when a break begins, using your desktop&apos;s screen locker.</source>
        <translation>Bloqueia sua sessão quando um descanso começa, usando o bloqueio de tela do seu ambiente gráfico.</translation>
    </message>
    <message>
        <source>Presets</source>
        <extracomment>Ready-made sets of break settings, chosen with the buttons below.</extracomment>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>No Screen Locker Found</source>
        <translation>Nenhum bloqueador de tela encontrado</translation>
    </message>
    <message>
        <source>Velto could not find a way to lock this session. Install or enable a screen locker (for example your desktop&apos;s lock screen, light-locker or xsecurelock), then turn this option on again.</source>
        <translation>O Velto não encontrou uma forma de bloquear esta sessão. Instale ou ative um bloqueador de tela (por exemplo, o bloqueio de tela do seu ambiente gráfico, light-locker ou xsecurelock) e ative esta opção novamente.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Show the countdown, the state and today&apos;s breaks</source>
        <translation>Mostrar a contagem regressiva, o estado e os descansos de hoje</translation>
    </message>
    <message>
        <source>Take a break now (a long break with --long)</source>
        <translation>Fazer um descanso agora (um descanso longo com --long)</translation>
    </message>
    <message>
        <source>Pause reminders for MINUTES minutes (%1 if not given)</source>
        <translation>Pausar os lembretes por MINUTES minutos (%1 se não informado)</translation>
    </message>
    <message>
        <source>End a pause</source>
        <translation>Encerrar uma pausa</translation>
    </message>
    <message>
        <source>Skip the coming break</source>
        <translation>Pular o próximo descanso</translation>
    </message>
    <message>
        <source>Turn reminders on</source>
        <translation>Ativar os lembretes</translation>
    </message>
    <message>
        <source>Turn reminders off</source>
        <translation>Desativar os lembretes</translation>
    </message>
    <message>
        <source>Open the settings window</source>
        <translation>Abrir a janela de configurações</translation>
    </message>
    <message>
        <source>Check for a newer version and say what was found</source>
        <translation>Verificar se há uma versão mais recente e informar o resultado</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Sair do Velto</translation>
    </message>
    <message>
        <source>Tell whether Velto&apos;s GNOME Shell extension is installed, enabled and running, or enable it</source>
        <translation>Informar se a extensão do GNOME Shell do Velto está instalada, ativada e em execução, ou ativá-la</translation>
    </message>
    <message>
        <source>GNOME Shell did not answer in time</source>
        <translation>o GNOME Shell não respondeu a tempo</translation>
    </message>
    <message>
        <source>there is no GNOME Shell in this session</source>
        <translation>não há GNOME Shell nesta sessão</translation>
    </message>
    <message>
        <source>Velto&apos;s GNOME Shell extension is not installed (it comes with Velto&apos;s package)</source>
        <translation>a extensão do GNOME Shell do Velto não está instalada (ela vem com o pacote do Velto)</translation>
    </message>
    <message>
        <source>the GNOME Shell extension could not be enabled: </source>
        <translation>não foi possível ativar a extensão do GNOME Shell: </translation>
    </message>
    <message>
        <source>Enable it with: velto gnome-extension enable</source>
        <translation>Ative-a com: velto gnome-extension enable</translation>
    </message>
    <message>
        <source>GNOME Shell still has the extension off</source>
        <translation>o GNOME Shell ainda está com a extensão desativada</translation>
    </message>
    <message>
        <source>GNOME Shell could not start the extension; its log may say why</source>
        <translation>o GNOME Shell não conseguiu iniciar a extensão; o registro dele pode dizer o motivo</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>argumento inesperado “%1”</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>opção desconhecida “%1”</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>comando desconhecido “%1”</translation>
    </message>
    <message>
        <source>gnome-extension needs &apos;status&apos; or &apos;enable&apos;</source>
        <translation>gnome-extension precisa de “status” ou “enable”</translation>
    </message>
    <message>
        <source>unknown gnome-extension command &apos;%1&apos;</source>
        <translation>comando desconhecido de gnome-extension “%1”</translation>
    </message>
    <message>
        <source>give only one of --json and --csv</source>
        <translation>informe apenas uma das opções --json e --csv</translation>
    </message>
    <message>
        <source>--days needs a number of days</source>
        <translation>--days precisa de um número de dias</translation>
    </message>
    <message>
        <source>--days must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <extracomment>%1: the largest number allowed; %2: what was given instead.</extracomment>
        <translation>--days deve ser um número inteiro de 1 a %1, não “%2”</translation>
    </message>
    <message>
        <source>MINUTES must be a whole number from 1 to %1, not &apos;%2&apos;</source>
        <translation>MINUTES deve ser um número inteiro de 1 a %1, não “%2”</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos; for %2</source>
        <translation>opção desconhecida “%1” para %2</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos; for %2</source>
        <translation>argumento inesperado “%1” para %2</translation>
    </message>
    <message>
        <source>Show the breaks of the last N days (%1 if not given), a line a day or every event</source>
        <translation>Mostrar os descansos dos últimos N dias (%1 se não informado), uma linha por dia ou cada evento</translation>
    </message>
    <message>
        <source>Usage: velto [COMMAND]</source>
        <extracomment>COMMAND stays as it is: it stands for one of the commands listed below</extracomment>
        <translation>Uso: velto [COMMAND]</translation>
    </message>
    <message>
        <source>Without a command, starts Velto; if Velto is already running, opens its settings instead.</source>
        <translation>Sem um comando, inicia o Velto; se o Velto já estiver em execução, abre as configurações dele.</translation>
    </message>
    <message>
        <source>Commands for the running Velto:</source>
        <translation>Comandos para o Velto em execução:</translation>
    </message>
    <message>
        <source>Commands that work with or without a running Velto:</source>
        <translation>Comandos que funcionam com ou sem o Velto em execução:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opções:</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Mostrar esta ajuda</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Mostrar a versão</translation>
    </message>
    <message>
        <source>Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check
failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.</source>
        <translation>Código de saída: 0 em caso de sucesso, 1 quando o Velto não está em execução ou não responde (ou a verificação
de atualizações falhou, ou não há GNOME Shell ou extensão, ou a ativação falhou), 2 para argumentos inválidos.</translation>
    </message>
    <message>
        <source>Velto is not running</source>
        <translation>O Velto não está em execução</translation>
    </message>
    <message>
        <source>Velto did not answer within %1 seconds</source>
        <extracomment>%1: a number of seconds</extracomment>
        <translation>O Velto não respondeu em %1 segundos</translation>
    </message>
    <message>
        <source>no session bus, so no running Velto can be reached</source>
        <translation>sem barramento de sessão, não é possível contatar nenhum Velto em execução</translation>
    </message>
    <message>
        <source>the settings window cannot be shown in this session</source>
        <translation>a janela de configurações não pode ser exibida nesta sessão</translation>
    </message>
    <message>
        <source>nothing to send for this command</source>
        <translation>nada a enviar para este comando</translation>
    </message>
    <message>
        <source>Velto is already running; its settings window is open.</source>
        <translation>O Velto já está em execução; a janela de configurações dele está aberta.</translation>
    </message>
    <message>
        <source>Velto is already running.</source>
        <translation>O Velto já está em execução.</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Tempo restante:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Pause reason:</source>
        <translation>Motivo da pausa:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>Breaks today:</source>
        <translation>Descansos hoje:</translation>
    </message>
    <message>
        <source>Reminders:</source>
        <translation>Lembretes:</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ativados</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desativados</translation>
    </message>
    <message>
        <source>Day</source>
        <extracomment>Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted, the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).</extracomment>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Feitos</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Pulados</translation>
    </message>
    <message>
        <source>Postponed</source>
        <translation>Adiados</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Trabalho</translation>
    </message>
    <message>
        <source>Longest stretch</source>
        <translation>Maior período</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <translation>Pausa Inteligente</translation>
    </message>
    <message>
        <source>No events recorded in these days.</source>
        <extracomment>`velto history --events` when nothing was recorded in the days asked for.</extracomment>
        <translation>Nenhum evento registrado nestes dias.</translation>
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
        <translation>Detalhe</translation>
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
        <translation>Lembrete de descansos</translation>
    </message>
    <message>
        <source>Reminds you to rest your eyes and take breaks</source>
        <comment>one line under the name in application menus and software centres</comment>
        <translation>Lembra você de descansar os olhos e fazer pausas</translation>
    </message>
    <message>
        <source>break;rest;eyes;pause;timer;health;posture;</source>
        <comment>search words for application menus: keep the semicolons, add your language&apos;s synonyms</comment>
        <translation>descanso;pausa;intervalo;olhos;visão;temporizador;saúde;postura;ergonomia;lembrete;</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <comment>an action on the application&apos;s icon: start a break now</comment>
        <translation>Fazer um descanso</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <comment>an action on the application&apos;s icon</comment>
        <translation>Pausar por 15 minutos</translation>
    </message>
</context>
<context>
    <name>DetectionCoverage</name>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Neste ambiente gráfico não é possível ver os apps em primeiro plano ou em tela cheia: ative a extensão do GNOME Shell do Velto.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Neste ambiente gráfico não é possível ver os apps em primeiro plano ou em tela cheia: inicie o Velto pelo menu de aplicativos para que o KWin compartilhe a lista de janelas.</translation>
    </message>
    <message>
        <source>Apps in front or fullscreen cannot be seen on this desktop, as its compositor shares no window list.</source>
        <translation>Neste ambiente gráfico não é possível ver os apps em primeiro plano ou em tela cheia, pois o compositor dele não compartilha nenhuma lista de janelas.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: enable Velto&apos;s GNOME Shell extension.</source>
        <translation>Neste ambiente gráfico, só os apps X11 podem ser vistos em primeiro plano ou em tela cheia: ative a extensão do GNOME Shell do Velto.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop: start Velto from the application menu so KWin shares its window list.</source>
        <translation>Neste ambiente gráfico, só os apps X11 podem ser vistos em primeiro plano ou em tela cheia: inicie o Velto pelo menu de aplicativos para que o KWin compartilhe a lista de janelas.</translation>
    </message>
    <message>
        <source>Only X11 apps can be seen in front or fullscreen on this desktop, as its compositor shares no window list.</source>
        <translation>Neste ambiente gráfico, só os apps X11 podem ser vistos em primeiro plano ou em tela cheia, pois o compositor dele não compartilha nenhuma lista de janelas.</translation>
    </message>
    <message>
        <source>Typing cannot be seen on this desktop, so the typing delay has no effect.</source>
        <translation>Neste ambiente gráfico não é possível detectar a digitação, então o atraso ao digitar não tem efeito.</translation>
    </message>
    <message>
        <source>Only typing into X11 apps can be seen on this desktop.</source>
        <translation>Neste ambiente gráfico, só é possível detectar a digitação em apps X11.</translation>
    </message>
</context>
<context>
    <name>FocusAppMode</name>
    <message>
        <source>Foreground &amp; Fullscreen</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front and fullscreen.</extracomment>
        <translation>Primeiro plano e tela cheia</translation>
    </message>
    <message>
        <source>In Foreground</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while in front.</extracomment>
        <translation>Em primeiro plano</translation>
    </message>
    <message>
        <source>When Open</source>
        <extracomment>A focus app&apos;s picker beside its name: it holds breaks while it runs.
----------
When a focus app being added holds breaks: while it runs.</extracomment>
        <translation>Quando aberto</translation>
    </message>
    <message>
        <source>When in Foreground &amp; Fullscreen</source>
        <extracomment>When a focus app being added holds breaks: while in front and fullscreen.</extracomment>
        <translation>Quando em primeiro plano e em tela cheia</translation>
    </message>
    <message>
        <source>When in Foreground</source>
        <extracomment>When a focus app being added holds breaks: while in front.</extracomment>
        <translation>Quando em primeiro plano</translation>
    </message>
</context>
<context>
    <name>FocusAppRow</name>
    <message>
        <source>Pause breaks for %1</source>
        <extracomment>Spoken name of a focus app&apos;s picker; %1 is the app&apos;s name.</extracomment>
        <translation>Pausar descansos com %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <extracomment>Spoken name of the button that removes a focus app; %1 is the app&apos;s name.</extracomment>
        <translation>Remover %1</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Control the core behavior of Velto and how it fits into your workflow.</source>
        <translation>Controle o comportamento principal do Velto e como ele se encaixa na sua rotina de trabalho.</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>Configurações do app</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Ativar Velto</translation>
    </message>
    <message>
        <source>Show timer in menu bar</source>
        <extracomment>The menu bar is the panel that holds Velto&apos;s tray icon.</extracomment>
        <translation>Mostrar o temporizador no painel</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Abrir ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Horários</translation>
    </message>
    <message>
        <source>Use Office Hours</source>
        <translation>Usar horário de expediente</translation>
    </message>
    <message>
        <source>Active days</source>
        <translation>Dias ativos</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>The time office hours begin.</extracomment>
        <translation>Início</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>The time office hours end.</extracomment>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restaurar padrões</translation>
    </message>
</context>
<context>
    <name>GnomeExtension</name>
    <message>
        <source>GNOME extension: not installed</source>
        <translation>Extensão do GNOME: não instalada</translation>
    </message>
    <message>
        <source>GNOME extension: installed, not enabled</source>
        <translation>Extensão do GNOME: instalada, não ativada</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, active after the next login</source>
        <translation>Extensão do GNOME: ativada, funcionará após o próximo início de sessão</translation>
    </message>
    <message>
        <source>GNOME extension: enabled, but GNOME Shell could not start it</source>
        <translation>Extensão do GNOME: ativada, mas o GNOME Shell não conseguiu iniciá-la</translation>
    </message>
    <message>
        <source>GNOME extension: active</source>
        <translation>Extensão do GNOME: em funcionamento</translation>
    </message>
    <message>
        <source>Until then, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Até lá, a Pausa Inteligente não consegue ver qual janela está em primeiro plano no GNOME.</translation>
    </message>
    <message>
        <source>Without it, Smart Pause cannot see which window is in front on GNOME.</source>
        <translation>Sem ela, a Pausa Inteligente não consegue ver qual janela está em primeiro plano no GNOME.</translation>
    </message>
</context>
<context>
    <name>GradientTheme</name>
    <message>
        <source>Midnight</source>
        <translation>Meia-noite</translation>
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
        <translation>Pôr do sol</translation>
    </message>
    <message>
        <source>Forest</source>
        <translation>Floresta</translation>
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
        <translation>Aconchego</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Ardósia</translation>
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
        <translation>Veja como foram seus descansos, dia a dia.</translation>
    </message>
    <message>
        <source>Loading history</source>
        <translation>Carregando o histórico</translation>
    </message>
    <message>
        <source>No history yet</source>
        <translation>Ainda não há histórico</translation>
    </message>
    <message>
        <source>Each break you take or skip will show up here.</source>
        <translation>Cada descanso que você fizer ou pular aparecerá aqui.</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>A section title of the History pane: today&apos;s figures.</extracomment>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Breaks taken</source>
        <translation>Descansos feitos</translation>
    </message>
    <message>
        <source>Skipped</source>
        <extracomment>Breaks skipped: under today&apos;s count, and in the legend of the chart.</extracomment>
        <translation>Pulados</translation>
    </message>
    <message>
        <source>Longest stretch without a break</source>
        <extracomment>Today&apos;s longest time of work without a break in between.</extracomment>
        <translation>Maior período sem descanso</translation>
    </message>
    <message>
        <source>Held by Smart Pause</source>
        <extracomment>How long Smart Pause held the break timer today.</extracomment>
        <translation>Retido pela Pausa Inteligente</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A figure of today, spoken: %1 is what it counts, %2 the figure, as in &quot;Breaks taken: 5&quot;.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Breaks per Day</source>
        <translation>Descansos por dia</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Últimos 7 dias</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Últimos 30 dias</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>The legend of the chart&apos;s breaks taken.</extracomment>
        <translation>Feitos</translation>
    </message>
    <message>
        <source>Streak</source>
        <extracomment>A section title: days in a row on which every break was taken.</extracomment>
        <translation>Sequência</translation>
    </message>
    <message numerus="yes">
        <source>%n days in a row with every break taken</source>
        <translation>
            <numerusform>%n dia seguido com todos os descansos feitos</numerusform>
            <numerusform>%n dias seguidos com todos os descansos feitos</numerusform>
        </translation>
    </message>
    <message>
        <source>No streak yet: take every break of a day to start one.</source>
        <translation>Ainda sem sequência: faça todos os descansos de um dia para começar uma.</translation>
    </message>
    <message>
        <source>This week</source>
        <extracomment>The row of seven marks for the days of this week.</extracomment>
        <translation>Esta semana</translation>
    </message>
    <message>
        <source>Every break taken</source>
        <translation>Todos os descansos feitos</translation>
    </message>
    <message>
        <source>A break skipped</source>
        <translation>Descanso pulado</translation>
    </message>
    <message>
        <source>No breaks</source>
        <translation>Sem descansos</translation>
    </message>
    <message>
        <source>Keep history for</source>
        <extracomment>Followed by a picker of how long the break history is kept (&quot;3 months&quot;).</extracomment>
        <translation>Manter o histórico por</translation>
    </message>
    <message>
        <source>Older days are removed. The history never leaves this computer.</source>
        <translation>Os dias mais antigos são removidos. O histórico nunca sai deste computador.</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Limpar histórico…</translation>
    </message>
    <message>
        <source>Clear the break history?</source>
        <translation>Limpar o histórico de descansos?</translation>
    </message>
    <message>
        <source>Every recorded break, pause and Smart Pause hold is removed. This cannot be undone.</source>
        <translation>Todos os descansos, pausas e retenções da Pausa Inteligente registrados serão removidos. Não é possível desfazer.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Limpar histórico</translation>
    </message>
</context>
<context>
    <name>InAppNotificationDismissButton</name>
    <message>
        <source>Dismiss</source>
        <extracomment>Spoken name of the card&apos;s close button (a small cross).</extracomment>
        <translation>Dispensar</translation>
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
        <translation>DESCANSO EM</translation>
    </message>
    <message>
        <source>Break now</source>
        <extracomment>A button of the card: start the break at once (&quot;Break&quot; as a noun: the break, now).</extracomment>
        <translation>Descansar já</translation>
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
        <translation>Pular</translation>
    </message>
    <message>
        <source>Skip break</source>
        <extracomment>Spoken name of the card&apos;s Skip button.</extracomment>
        <translation>Pular descanso</translation>
    </message>
    <message>
        <source>Returns to work and skips this break when your skip settings allow.</source>
        <extracomment>Spoken description of the card&apos;s Skip button.</extracomment>
        <translation>Volta ao trabalho e pula este descanso, se a dificuldade para pular permitir.</translation>
    </message>
    <message>
        <source>Swipe to close</source>
        <extracomment>A hint at the foot of the card: a sideways swipe on the touchpad sends the card away.</extracomment>
        <translation>Deslize para fechar</translation>
    </message>
</context>
<context>
    <name>LaunchAtLogin</name>
    <message>
        <source>Could not remove %1: %2</source>
        <extracomment>Why launch at login could not be changed: %1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Não foi possível remover %1: %2</translation>
    </message>
    <message>
        <source>Could not create the autostart folder %1</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>Não foi possível criar a pasta de início automático %1</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <extracomment>%1 is a file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>Não foi possível gravar %1: %2</translation>
    </message>
    <message>
        <source>Failed to update launch at login: %1</source>
        <extracomment>A line on standard output; %1 is the reason, such as &quot;Could not write …&quot;.</extracomment>
        <translation>Falha ao alterar o início com a sessão: %1</translation>
    </message>
</context>
<context>
    <name>NotificationsPane</name>
    <message>
        <source>Choose how Velto keeps you informed without getting in the way.</source>
        <translation>Escolha como o Velto mantém você informado sem atrapalhar.</translation>
    </message>
    <message>
        <source>Heads-Up</source>
        <extracomment>A section title: being told a little before a break comes.</extracomment>
        <translation>Aviso antecipado</translation>
    </message>
    <message>
        <source>Notify before breaks</source>
        <translation>Avisar antes dos descansos</translation>
    </message>
    <message>
        <source>Show notification</source>
        <extracomment>Followed by a picker of lead times (&quot;1 min before&quot;).</extracomment>
        <translation>Mostrar aviso</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <source>Chime when break starts</source>
        <translation>Tocar som ao começar o descanso</translation>
    </message>
    <message>
        <source>Chime when break ends</source>
        <translation>Tocar som ao terminar o descanso</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Chime volume</source>
        <translation>Volume do som de aviso</translation>
    </message>
</context>
<context>
    <name>PauseReason</name>
    <message numerus="yes">
        <source>Paused · resumes in %n min</source>
        <extracomment>The tray menu&apos;s status line during a timed pause; %n is the minutes until it ends.</extracomment>
        <translation>
            <numerusform>Pausado · retoma em %n min</numerusform>
            <numerusform>Pausado · retoma em %n min</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausado</translation>
    </message>
    <message>
        <source>Outside office hours</source>
        <translation>Fora do expediente</translation>
    </message>
    <message>
        <source>Breaks disabled</source>
        <extracomment>Velto&apos;s reminders are switched off.</extracomment>
        <translation>Descansos desativados</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Pausa Inteligente ativa</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Your changes could not be saved. They apply until Velto quits.</source>
        <translation>Não foi possível salvar suas alterações. Elas valem até o Velto ser fechado.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Breaks</source>
        <extracomment>A settings category (plural noun: the breaks from work).</extracomment>
        <translation>Descansos</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>A settings category in the window&apos;s sidebar, and the title of its pane.</extracomment>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificações</translation>
    </message>
    <message>
        <source>Smart Pause</source>
        <extracomment>A settings category: the work timer pauses by itself during calls, videos, games and the like.</extracomment>
        <translation>Pausa Inteligente</translation>
    </message>
    <message>
        <source>Velto Settings</source>
        <extracomment>The window title.</extracomment>
        <translation>Configurações do Velto</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <extracomment>A toolbar button that shows or hides the list of settings categories.</extracomment>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Show or hide the settings categories list</source>
        <translation>Mostrar ou ocultar a lista de categorias de configurações</translation>
    </message>
    <message>
        <source>Settings categories</source>
        <translation>Categorias de configurações</translation>
    </message>
    <message>
        <source>Update available</source>
        <extracomment>Spoken for the dot beside About when a newer build exists.</extracomment>
        <translation>Atualização disponível</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>A settings category: the record of breaks taken and skipped.</extracomment>
        <translation>Histórico</translation>
    </message>
</context>
<context>
    <name>SkipDifficulty</name>
    <message>
        <source>Flexible</source>
        <translation>Flexível</translation>
    </message>
    <message>
        <source>Gentle</source>
        <translation>Moderada</translation>
    </message>
    <message>
        <source>Committed</source>
        <translation>Rigorosa</translation>
    </message>
</context>
<context>
    <name>SmartPause</name>
    <message>
        <source>%1 is active</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.</extracomment>
        <translation>%1 está em primeiro plano</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <extracomment>Why breaks wait: %1 is the name of a focus application the user chose, and it is running.</extracomment>
        <translation>%1 está em execução</translation>
    </message>
    <message>
        <source>Focus app active</source>
        <translation>App de foco ativo</translation>
    </message>
</context>
<context>
    <name>SmartPausePane</name>
    <message>
        <source>Let Velto adapt to what you&apos;re doing and pause breaks when it matters.</source>
        <translation>Deixe o Velto se adaptar ao que você está fazendo e pausar os descansos quando for importante.</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Ativar</translation>
    </message>
    <message>
        <source>Activity Detection</source>
        <translation>Detecção de atividade</translation>
    </message>
    <message>
        <source>Pause during meetings or calls</source>
        <translation>Pausar durante reuniões ou chamadas</translation>
    </message>
    <message>
        <source>Pauses when you are likely on a call or in a meeting—not while you are only browsing the web.</source>
        <translation>Pausa quando você provavelmente está em uma chamada ou reunião — não quando está só navegando na web.</translation>
    </message>
    <message>
        <source>Pause during video playback</source>
        <translation>Pausar durante a reprodução de vídeo</translation>
    </message>
    <message>
        <source>Video detection mode</source>
        <translation>Modo de detecção de vídeo</translation>
    </message>
    <message>
        <source>Frontmost only checks the active app. Include background also pauses when a supported player is playing behind another window.</source>
        <extracomment>&quot;Frontmost only&quot; and &quot;Include background&quot; name the choices of the video detection mode above.</extracomment>
        <translation>“Somente em primeiro plano” verifica apenas o app ativo. “Também em segundo plano” pausa inclusive quando um reprodutor compatível está tocando atrás de outra janela.</translation>
    </message>
    <message>
        <source>Pause during screen recording</source>
        <translation>Pausar durante a gravação de tela</translation>
    </message>
    <message>
        <source>Pause during fullscreen gaming</source>
        <translation>Pausar durante jogos em tela cheia</translation>
    </message>
    <message>
        <source>Idle Detection</source>
        <translation>Detecção de inatividade</translation>
    </message>
    <message>
        <source>Detect idle time</source>
        <translation>Detectar tempo de inatividade</translation>
    </message>
    <message>
        <source>Reset timer after idle for</source>
        <extracomment>Followed by a picker of minutes (&quot;5 min&quot;): the work timer starts over after this long without input.</extracomment>
        <translation>Reiniciar o temporizador após inatividade de</translation>
    </message>
    <message>
        <source>Cooldown</source>
        <extracomment>How long Smart Pause waits after an activity ends before the work timer runs again.</extracomment>
        <translation>Tempo de espera</translation>
    </message>
    <message>
        <source>Delay after activity ends</source>
        <translation>Espera após o fim da atividade</translation>
    </message>
    <message>
        <source>Waits this long after a Smart Pause reason clears before your work timer starts counting down again.</source>
        <translation>Aguarda esse tempo depois que um motivo da Pausa Inteligente deixa de existir, antes que o temporizador de trabalho volte a contar.</translation>
    </message>
    <message>
        <source>Focus Apps</source>
        <extracomment>Apps that hold breaks back while you use them.</extracomment>
        <translation>Apps de foco</translation>
    </message>
    <message>
        <source>Pause breaks when a specific app is active or open. Each app can use foreground only, foreground while fullscreen, or whenever it is running.</source>
        <translation>Pausa os descansos quando um app específico está ativo ou aberto. Cada app pode pausá-los somente em primeiro plano, em primeiro plano em tela cheia ou sempre que estiver em execução.</translation>
    </message>
    <message>
        <source>No focus apps configured</source>
        <translation>Nenhum app de foco configurado</translation>
    </message>
    <message>
        <source>Add App…</source>
        <translation>Adicionar app…</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>no session bus; running, but cannot make sure no other Velto runs</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>sem barramento de sessão; em execução, mas sem como garantir que nenhum outro Velto esteja rodando</translation>
    </message>
    <message>
        <source>no display found; running without a tray icon</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;.</extracomment>
        <translation>nenhuma tela encontrada; em execução sem ícone na bandeja do sistema</translation>
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
        <translation>Nenhum temporizador ativo</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <extracomment>What a screen reader says for the tray icon&apos;s countdown; %1 is the time left, such as &quot;24:59&quot; or &quot;25 min&quot;.</extracomment>
        <translation>Tempo restante: %1</translation>
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
        <translation>Até o próximo descanso</translation>
    </message>
    <message>
        <source>Break in progress</source>
        <translation>Descanso em andamento</translation>
    </message>
    <message numerus="yes">
        <source>%n breaks today</source>
        <extracomment>%n is how many breaks were taken today. English says &quot;1 breaks today&quot; too.</extracomment>
        <translation>
            <numerusform>%n descanso hoje</numerusform>
            <numerusform>%n descansos hoje</numerusform>
        </translation>
    </message>
    <message>
        <source>Disable Velto</source>
        <translation>Desativar Velto</translation>
    </message>
    <message>
        <source>Enable Velto</source>
        <translation>Ativar Velto</translation>
    </message>
    <message>
        <source>Take a Break</source>
        <translation>Fazer um descanso</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>Verb: end the pause now.</extracomment>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>End Break</source>
        <translation>Encerrar descanso</translation>
    </message>
    <message>
        <source>Take a Long Break</source>
        <translation>Fazer um descanso longo</translation>
    </message>
    <message>
        <source>Pause for 15 Minutes</source>
        <translation>Pausar por 15 minutos</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Quit Velto</source>
        <translation>Sair do Velto</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Existe uma versão mais recente do Velto, mas ela requer um sistema mais novo que este.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>O Velto %1 é a versão mais recente disponível.</translation>
    </message>
    <message>
        <source>Velto is up to date</source>
        <translation>O Velto está atualizado</translation>
    </message>
    <message>
        <source>Velto could not check for updates</source>
        <translation>O Velto não conseguiu verificar se há atualizações</translation>
    </message>
</context>
<context>
    <name>VideoDetection</name>
    <message>
        <source>Frontmost only</source>
        <extracomment>Which video players are asked whether they play: only the one in front.</extracomment>
        <translation>Somente em primeiro plano</translation>
    </message>
    <message>
        <source>Running in background too</source>
        <translation>Também em segundo plano</translation>
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
        <translation>Seg</translation>
    </message>
    <message>
        <source>Tue</source>
        <extracomment>Tuesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Ter</translation>
    </message>
    <message>
        <source>Wed</source>
        <extracomment>Wednesday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Qua</translation>
    </message>
    <message>
        <source>Thu</source>
        <extracomment>Thursday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Fri</source>
        <extracomment>Friday, shortened for a small toggle of the office-hours days.</extracomment>
        <translation>Sex</translation>
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
        <translation>Em %1</translation>
    </message>
    <message>
        <source>Meeting app active</source>
        <translation>App de reunião ativo</translation>
    </message>
    <message>
        <source>Camera and microphone in use</source>
        <translation>Câmera e microfone em uso</translation>
    </message>
    <message>
        <source>Camera in use</source>
        <translation>Câmera em uso</translation>
    </message>
    <message>
        <source>Microphone in use</source>
        <translation>Microfone em uso</translation>
    </message>
    <message>
        <source>Meeting activity detected</source>
        <translation>Atividade de reunião detectada</translation>
    </message>
    <message>
        <source>Watching video</source>
        <translation>Assistindo a um vídeo</translation>
    </message>
    <message>
        <source>Recording screen</source>
        <translation>Gravando a tela</translation>
    </message>
    <message>
        <source>Playing a game</source>
        <translation>Jogando</translation>
    </message>
    <message>
        <source>Away from desk</source>
        <extracomment>No keyboard or pointer input for a while.</extracomment>
        <translation>Ausente</translation>
    </message>
    <message>
        <source>Smart Pause active</source>
        <extracomment>Smart Pause is the feature&apos;s name: breaks wait while a meeting, video, game or focus app is on.</extracomment>
        <translation>Pausa Inteligente ativa</translation>
    </message>
    <message>
        <source>Winding down…</source>
        <extracomment>The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.</extracomment>
        <translation>Só mais um pouco…</translation>
    </message>
</context>
<context>
    <name>velto::AddFocusAppModel</name>
    <message>
        <source>Unknown App</source>
        <extracomment>The name shown for a running application that has none.</extracomment>
        <translation>App desconhecido</translation>
    </message>
    <message>
        <source>No other apps are currently running</source>
        <translation>Nenhum outro app está em execução</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Nenhum app encontrado</translation>
    </message>
</context>
<context>
    <name>velto::AppDelegate</name>
    <message>
        <source>no system tray found yet; breaks still run, `velto settings` opens the settings, and the icon appears when a tray does</source>
        <extracomment>Said on standard error at start, after &quot;velto: &quot;. `velto settings` is a command: keep it as it is.</extracomment>
        <translation>nenhuma bandeja do sistema encontrada ainda; os descansos continuam funcionando, `velto settings` abre as configurações e o ícone aparece quando houver uma bandeja</translation>
    </message>
    <message>
        <source>this Velto does not check for updates; the system&apos;s package manager updates it</source>
        <extracomment>The answer to `velto check-updates` when Velto came from a distribution&apos;s package.</extracomment>
        <translation>este Velto não verifica atualizações; quem o atualiza é o gerenciador de pacotes do sistema</translation>
    </message>
</context>
<context>
    <name>velto::BreakViewModel</name>
    <message>
        <source>Your body misses you</source>
        <extracomment>The small caption above the countdown of a long break, shown in capitals.</extracomment>
        <translation>Seu corpo sente sua falta</translation>
    </message>
    <message>
        <source>Your eyes need you</source>
        <extracomment>The small caption above the countdown of a short break, shown in capitals.</extracomment>
        <translation>Seus olhos precisam de você</translation>
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
        <translation>1 mês</translation>
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
        <translation>1 ano</translation>
    </message>
    <message>
        <source>Forever</source>
        <extracomment>How long the break history is kept: nothing is ever removed.</extracomment>
        <translation>Para sempre</translation>
    </message>
    <message>
        <source>%1: still to come</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: ainda por vir</translation>
    </message>
    <message>
        <source>%1: a break skipped</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: um descanso pulado</translation>
    </message>
    <message>
        <source>%1: every break taken</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: todos os descansos feitos</translation>
    </message>
    <message>
        <source>%1: no breaks</source>
        <extracomment>Spoken for a day of this week on the History pane; %1 is the weekday&apos;s name.</extracomment>
        <translation>%1: sem descansos</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <extracomment>How a day of the History chart is spoken, as a Qt date format (ddd: weekday, d: day, MMM: month); put them in your language&apos;s order, such as &quot;ddd, MMM d&quot;.</extracomment>
        <translation>ddd, d &apos;de&apos; MMM</translation>
    </message>
    <message numerus="yes">
        <source>%n taken</source>
        <extracomment>Breaks taken on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n feito</numerusform>
            <numerusform>%n feitos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <extracomment>Breaks skipped on a day, spoken for a bar of the History chart.</extracomment>
        <translation>
            <numerusform>%n pulado</numerusform>
            <numerusform>%n pulados</numerusform>
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
        <translation>Descanso longo a caminho</translation>
    </message>
    <message>
        <source>Quick break coming up</source>
        <translation>Descanso rápido a caminho</translation>
    </message>
    <message>
        <source>Wrap up or park your task. You’re nearly at a longer chance to step away.</source>
        <translation>Conclua sua tarefa ou deixe-a em espera. Falta pouco para uma chance maior de se afastar.</translation>
    </message>
    <message>
        <source>Save your place and finish the thought you’re on. A quick reset is almost here.</source>
        <translation>Salve onde parou e termine o raciocínio. Um respiro rápido está quase aí.</translation>
    </message>
    <message numerus="yes">
        <source>Break in %n seconds</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Descanso em %n segundo</numerusform>
            <numerusform>Descanso em %n segundos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Break in %n minutes</source>
        <extracomment>What a screen reader says for the notice&apos;s countdown.</extracomment>
        <translation>
            <numerusform>Descanso em %n minuto</numerusform>
            <numerusform>Descanso em %n minutos</numerusform>
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
        <translation>Descanso em %1 e %2</translation>
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
        <translation>Mostrar o descanso em todas as telas conectadas</translation>
    </message>
    <message>
        <source>Show break only on your primary display</source>
        <translation>Mostrar o descanso somente na tela principal</translation>
    </message>
    <message>
        <source>Install it when you have a moment.</source>
        <extracomment>Under &quot;A newer build is available&quot; when the new version&apos;s number is not known.</extracomment>
        <translation>Instale quando tiver um tempinho.</translation>
    </message>
    <message>
        <source>Version %1 is ready when you are.</source>
        <extracomment>Under &quot;A newer build is available&quot;; %1 is the new version&apos;s number, like 1.5.</extracomment>
        <translation>A versão %1 está pronta quando você quiser.</translation>
    </message>
    <message>
        <source>It could not be enabled: %1.</source>
        <translation>Não foi possível ativá-la: %1.</translation>
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
            <numerusform>A cada descanso curto</numerusform>
            <numerusform>A cada %n descansos curtos</numerusform>
        </translation>
    </message>
    <message>
        <source>No delay</source>
        <extracomment>The first option of the cooldown picker: the work timer runs again as soon as the activity ends.</extracomment>
        <translation>Sem espera</translation>
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
        <translation>O Velto não conseguiu iniciar seu programa auxiliar de download (%1).</translation>
    </message>
</context>
<context>
    <name>velto::SystemGnomeExtension</name>
    <message>
        <source>GNOME Shell&apos;s settings cannot be read here</source>
        <translation>As configurações do GNOME Shell não podem ser lidas aqui</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s extension settings are locked on this system</source>
        <translation>As configurações de extensões do GNOME Shell estão bloqueadas neste sistema</translation>
    </message>
    <message>
        <source>GNOME Shell&apos;s settings could not be written</source>
        <translation>Não foi possível gravar as configurações do GNOME Shell</translation>
    </message>
</context>
<context>
    <name>velto::UpdateFoundDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>A new version of Velto is available</source>
        <translation>Uma nova versão do Velto está disponível</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from the website to update.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>O Velto %1 está disponível; você tem a %2. Baixe-o no site para atualizar.</translation>
    </message>
    <message>
        <source>Loading release notes…</source>
        <translation>Carregando notas de versão…</translation>
    </message>
    <message>
        <source>The release notes could not be loaded.</source>
        <translation>Não foi possível carregar as notas de versão.</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pular esta versão</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>Verb, on a button: open the page the new version is downloaded from.</extracomment>
        <translation>Baixar</translation>
    </message>
</context>
<context>
    <name>velto::UpdateMessageDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Atualização de software</translation>
    </message>
</context>
<context>
    <name>velto::Updater</name>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>O servidor de atualizações não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The update feed address is not secure.</source>
        <translation>O endereço do feed de atualizações não é seguro.</translation>
    </message>
    <message>
        <source>The update feed was redirected to an address that is not secure.</source>
        <translation>O feed de atualizações foi redirecionado para um endereço que não é seguro.</translation>
    </message>
    <message>
        <source>The update feed is too large.</source>
        <translation>O feed de atualizações é grande demais.</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>%1 is the HTTP status number, such as 404.</extracomment>
        <translation>O servidor de atualizações respondeu com o status %1.</translation>
    </message>
    <message>
        <source>The update feed could not be read.</source>
        <translation>Não foi possível ler o feed de atualizações.</translation>
    </message>
    <message>
        <source>Velto is up to date.</source>
        <translation>O Velto está atualizado.</translation>
    </message>
    <message>
        <source>A newer version of Velto exists but needs a newer system than this one.</source>
        <translation>Existe uma versão mais recente do Velto, mas ela requer um sistema mais novo que este.</translation>
    </message>
    <message>
        <source>Velto %1 is the newest version available.</source>
        <translation>O Velto %1 é a versão mais recente disponível.</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2. Download it from %3</source>
        <extracomment>%1 is the new version, %2 the version running, %3 the web address of the download page.</extracomment>
        <translation>O Velto %1 está disponível; você tem a %2. Baixe-o em %3</translation>
    </message>
    <message>
        <source>Velto %1 is available; you have %2.</source>
        <extracomment>%1 is the new version, %2 the version running.</extracomment>
        <translation>O Velto %1 está disponível; você tem a %2.</translation>
    </message>
</context>
</TS>
