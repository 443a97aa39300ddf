#include "KnownApplications.h"

namespace velto::KnownApplications {
namespace {

// Meeting and chat applications, as first written. Several identities share a display name.
constexpr Row writtenMeetingApps[] = {
    {u"com.alibaba.DingTalkMac", u"DingTalk"},
    {u"com.larksuite.lark", u"Lark"},
    {u"com.tencent.meeting", u"Tencent Meeting"},
    {u"com.amazon.Amazon-Chime", u"Amazon Chime"},
    {u"com.bluejeans.BlueJeans", u"BlueJeans"},
    {u"com.bluejeansnet.Blue", u"BlueJeans"},
    {u"com.cisco.webexmeetingsapp", u"Webex"},
    {u"com.goto.goto", u"GoTo"},
    {u"com.logmein.GoTo", u"GoTo"},
    {u"com.logmein.GoToMeeting", u"GoTo Meeting"},
    {u"com.ringcentral.glip", u"RingCentral"},
    {u"com.webex.meeting", u"Webex"},
    {u"com.zoho.meeting", u"Zoho Meeting"},
    {u"com.apple.FaceTime", u"FaceTime"},
    {u"com.apple.Safari", u"Safari"},
    {u"com.brave.Browser", u"Brave"},
    {u"com.google.Chrome", u"Chrome"},
    {u"com.microsoft.edgemac", u"Microsoft Edge"},
    {u"com.operasoftware.Opera", u"Opera"},
    {u"com.vivaldi.Vivaldi", u"Vivaldi"},
    {u"company.thebrowser.Browser", u"Arc"},
    {u"company.thebrowser.dia", u"Dia"},
    {u"app.zen-browser.zen", u"Zen"},
    {u"org.mozilla.com.zen.browser", u"Zen"},
    {u"org.mozilla.firefox", u"Firefox"},
    {u"com.facebook.archon", u"Messenger"},
    {u"com.hnc.Discord", u"Discord"},
    {u"com.mattermost.Desktop", u"Mattermost"},
    {u"com.microsoft.teams", u"Microsoft Teams"},
    {u"com.microsoft.teams2", u"Microsoft Teams"},
    {u"com.skype.skype", u"Skype"},
    {u"com.slack.Slack", u"Slack"},
    {u"jp.naver.line.mac", u"LINE"},
    {u"net.whatsapp.WhatsApp", u"WhatsApp"},
    {u"org.telegram.desktop", u"Telegram"},
    {u"org.whispersystems.signal-desktop", u"Signal"},
    {u"ru.keepcoder.Telegram", u"Telegram"},
    {u"us.zoom.xos", u"Zoom"},
    {u"zoom.us", u"Zoom"},
};

// The same applications on Linux. Some written identities (com.slack.Slack, com.brave.Browser,
// com.google.Chrome, com.vivaldi.Vivaldi, com.mattermost.Desktop, org.mozilla.firefox,
// org.telegram.desktop) are also their Flatpak IDs and need no row here. Chromium, which Linux
// distributions ship in place of Chrome, is a browser of its own name.
constexpr Row linuxMeetingApps[] = {
    {u"us.zoom.Zoom", u"Zoom"},
    {u"zoom", u"Zoom"},
    {u"Zoom", u"Zoom"},
    {u"slack", u"Slack"},
    {u"com.discordapp.Discord", u"Discord"},
    {u"discord", u"Discord"},
    {u"com.microsoft.Teams", u"Microsoft Teams"},
    {u"teams", u"Microsoft Teams"},
    {u"teams-for-linux", u"Microsoft Teams"},
    {u"com.github.IsmaelMartinez.teams_for_linux", u"Microsoft Teams"},
    {u"com.skype.Client", u"Skype"},
    {u"skypeforlinux", u"Skype"},
    {u"telegram-desktop", u"Telegram"},
    {u"telegramdesktop", u"Telegram"},
    {u"org.signal.Signal", u"Signal"},
    {u"signal-desktop", u"Signal"},
    {u"signal", u"Signal"},
    {u"mattermost-desktop", u"Mattermost"},
    {u"mattermost", u"Mattermost"},
    {u"com.alibabainc.dingtalk", u"DingTalk"},
    {u"dingtalk", u"DingTalk"},
    {u"wemeetapp", u"Tencent Meeting"},
    {u"webex", u"Webex"},
    {u"ringcentral", u"RingCentral"},
    {u"firefox", u"Firefox"},
    {u"firefox-esr", u"Firefox"},
    {u"google-chrome", u"Chrome"},
    {u"org.chromium.Chromium", u"Chromium"},
    {u"chromium", u"Chromium"},
    {u"chromium-browser", u"Chromium"},
    {u"com.microsoft.Edge", u"Microsoft Edge"},
    {u"microsoft-edge", u"Microsoft Edge"},
    {u"brave-browser", u"Brave"},
    {u"com.opera.Opera", u"Opera"},
    {u"opera", u"Opera"},
    {u"vivaldi-stable", u"Vivaldi"},
    {u"vivaldi", u"Vivaldi"},
    {u"app.zen_browser.zen", u"Zen"},
    {u"zen", u"Zen"},
};

constexpr Row writtenBrowsers[] = {
    {u"com.apple.Safari"},           {u"com.brave.Browser"},
    {u"com.google.Chrome"},          {u"com.microsoft.edgemac"},
    {u"com.operasoftware.Opera"},    {u"com.vivaldi.Vivaldi"},
    {u"company.thebrowser.Browser"}, {u"company.thebrowser.dia"},
    {u"app.zen-browser.zen"},        {u"org.mozilla.com.zen.browser"},
    {u"org.mozilla.firefox"},
};

constexpr Row linuxBrowsers[] = {
    {u"firefox"},
    {u"firefox-esr"},
    {u"google-chrome"},
    {u"org.chromium.Chromium"},
    {u"chromium"},
    {u"chromium-browser"},
    {u"com.microsoft.Edge"},
    {u"microsoft-edge"},
    {u"brave-browser"},
    {u"com.opera.Opera"},
    {u"opera"},
    {u"vivaldi-stable"},
    {u"vivaldi"},
    {u"app.zen_browser.zen"},
    {u"zen"},
};

constexpr Row writtenPlayers[] = {
    {u"com.apple.QuickTimePlayerX"}, {u"org.videolan.vlc"},  {u"com.colliderli.iina"}, {u"com.apple.TV"},
    {u"com.netflix.Netflix"},        {u"com.google.Chrome"}, {u"com.apple.Safari"},    {u"org.mozilla.firefox"},
};

// The desktops' own players (GNOME Videos and its successor, KDE's players) stand in for the system player,
// mpv and its front ends for the mpv-based one; VLC is VLC. Browsers are listed as before: asked, never
// playing.
constexpr Row linuxPlayers[] = {
    {u"org.videolan.VLC"},
    {u"vlc"},
    {u"io.mpv.Mpv"},
    {u"mpv"},
    {u"io.github.celluloid_player.Celluloid"},
    {u"celluloid"},
    {u"org.gnome.Totem"},
    {u"totem"},
    {u"org.gnome.Showtime"},
    {u"com.github.rafostar.Clapper"},
    {u"clapper"},
    {u"org.kde.haruna"},
    {u"haruna"},
    {u"org.kde.dragonplayer"},
    {u"dragonplayer"},
    {u"firefox"},
    {u"firefox-esr"},
    {u"google-chrome"},
};

// Of those, the ones whose playback can be asked; the streaming application and the browsers always answer
// not playing.
constexpr Row writtenPlayersWithQuery[] = {
    {u"com.apple.QuickTimePlayerX"},
    {u"org.videolan.vlc"},
    {u"com.colliderli.iina"},
    {u"com.apple.TV"},
};

constexpr Row linuxPlayersWithQuery[] = {
    {u"org.videolan.VLC"},
    {u"vlc"},
    {u"io.mpv.Mpv"},
    {u"mpv"},
    {u"io.github.celluloid_player.Celluloid"},
    {u"celluloid"},
    {u"org.gnome.Totem"},
    {u"totem"},
    {u"org.gnome.Showtime"},
    {u"com.github.rafostar.Clapper"},
    {u"clapper"},
    {u"org.kde.haruna"},
    {u"haruna"},
    {u"org.kde.dragonplayer"},
    {u"dragonplayer"},
};

constexpr Row writtenRecorders[] = {
    {u"com.apple.QuickTimePlayerX"},  {u"com.obsproject.obs-studio"},  {u"com.loom.desktop"},
    {u"com.techsmith.camtasia"},      {u"com.elgato.CaptureDevice"},   {u"com.shinywhitebox.iShowUHD"},
    {u"com.telestream.screenflow10"}, {u"com.telestream.screenflow9"},
};

constexpr Row linuxRecorders[] = {
    {u"com.obsproject.Studio"},
    {u"obs"},
    {u"io.github.seadve.Kooha"},
    {u"com.github.SeaDve.Kooha"},
    {u"kooha"},
    {u"com.uploadedlobster.peek"},
    {u"peek"},
    {u"simplescreenrecorder"},
    {u"kazam"},
    {u"com.github.vkohaupt.vokoscreenNG"},
    {u"vokoscreenng"},
};

constexpr Row writtenIgnored[] = {
    {u"com.apple.dt.Xcode"},
    {u"com.apple.finder"},
};

// File managers, in the role of the system's file browser.
constexpr Row linuxIgnored[] = {
    {u"org.gnome.Nautilus"}, {u"nautilus"}, {u"org.kde.dolphin"}, {u"dolphin"}, {u"thunar"}, {u"nemo"}, {u"pcmanfm"},
};

QSet<QString> identitySet(const Table& table)
{
    QSet<QString> set;
    for (const auto rows : {table.written, table.linuxRows}) {
        for (const Row& row : rows)
            set.insert(row.bundleIdentifier.toString());
    }
    return set;
}

} // namespace

Table meetingApplications()
{
    return {writtenMeetingApps, linuxMeetingApps};
}

Table browsers()
{
    return {writtenBrowsers, linuxBrowsers};
}

Table videoPlayers()
{
    return {writtenPlayers, linuxPlayers};
}

Table videoPlayersWithPlaybackQuery()
{
    return {writtenPlayersWithQuery, linuxPlayersWithQuery};
}

Table screenRecorders()
{
    return {writtenRecorders, linuxRecorders};
}

Table screenRecordingIgnored()
{
    return {writtenIgnored, linuxIgnored};
}

const QHash<QString, QString>& meetingAppNames()
{
    static const QHash<QString, QString> names = [] {
        QHash<QString, QString> built;
        const Table table = meetingApplications();
        for (const auto rows : {table.written, table.linuxRows}) {
            for (const Row& row : rows)
                built.insert(row.bundleIdentifier.toString(), row.displayName.toString());
        }
        return built;
    }();
    return names;
}

const QSet<QString>& browserBundleIdentifiers()
{
    static const QSet<QString> set = identitySet(browsers());
    return set;
}

const QSet<QString>& videoPlayerBundleIdentifiers()
{
    static const QSet<QString> set = identitySet(videoPlayers());
    return set;
}

const QSet<QString>& playbackQueryBundleIdentifiers()
{
    static const QSet<QString> set = identitySet(videoPlayersWithPlaybackQuery());
    return set;
}

const QSet<QString>& screenRecorderBundleIdentifiers()
{
    static const QSet<QString> set = identitySet(screenRecorders());
    return set;
}

const QSet<QString>& screenRecordingIgnoredBundleIdentifiers()
{
    static const QSet<QString> set = identitySet(screenRecordingIgnored());
    return set;
}

std::optional<QString> meetingAppName(const QString& bundleIdentifier)
{
    const auto found = meetingAppNames().constFind(bundleIdentifier);
    if (found == meetingAppNames().constEnd())
        return std::nullopt;
    return *found;
}

} // namespace velto::KnownApplications
