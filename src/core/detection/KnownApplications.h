#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringView>

#include <optional>
#include <span>

namespace velto {

// The other applications Smart Pause knows by name: meeting and chat applications, browsers, video players,
// screen recorders and the applications whose windows never count as recording evidence.
//
// Each table has the rows as first written, keyed by the identities those applications carry on their home
// platform, and beside them the identities of the same applications on Linux desktops: reverse-DNS desktop
// file or Flatpak IDs, and names derived from WM_CLASS (the class, lower-cased, as window lists report
// it). Both kinds of row play the same role and carry the same display name. Lookups are exact and
// case-sensitive. To recognise another identity of a known application, add a row to its Linux list.
namespace KnownApplications {

struct Row {
    QStringView bundleIdentifier;
    // Shown after "In " in the status line; meeting applications only.
    QStringView displayName = {};
};

struct Table {
    std::span<const Row> written;
    std::span<const Row> linuxRows;
};

// Meeting and chat applications, browsers included, with their display names.
[[nodiscard]] Table meetingApplications();
// Browsers: they count as a meeting application only while a camera or microphone is in use.
[[nodiscard]] Table browsers();
// Video players that detection asks whether they are playing.
[[nodiscard]] Table videoPlayers();
// The players among them whose playback can actually be asked; the others (browsers, streaming applications)
// always answer not playing.
[[nodiscard]] Table videoPlayersWithPlaybackQuery();
[[nodiscard]] Table screenRecorders();
// Applications whose windows often carry "screen recording" in a title without recording anything: IDEs
// and file managers showing files of that name.
[[nodiscard]] Table screenRecordingIgnored();

// The built lookups, written and Linux rows together; built once, safe against concurrent first use.
[[nodiscard]] const QHash<QString, QString>& meetingAppNames();
[[nodiscard]] const QSet<QString>& browserBundleIdentifiers();
[[nodiscard]] const QSet<QString>& videoPlayerBundleIdentifiers();
[[nodiscard]] const QSet<QString>& playbackQueryBundleIdentifiers();
[[nodiscard]] const QSet<QString>& screenRecorderBundleIdentifiers();
[[nodiscard]] const QSet<QString>& screenRecordingIgnoredBundleIdentifiers();

[[nodiscard]] std::optional<QString> meetingAppName(const QString& bundleIdentifier);

// The player whose open documents reveal a recording in progress (the recording's document title).
inline constexpr QStringView screenRecordingDocumentApp = u"com.apple.QuickTimePlayerX";

} // namespace KnownApplications
} // namespace velto
