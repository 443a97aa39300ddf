#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

namespace velto {

// One release in the update feed. `version` is what versions are compared by; the display string is
// what the user reads.
struct AppcastItem {
    QString title;
    QString version;
    QString shortVersionString;
    QUrl releaseNotesUrl;
    QUrl enclosureUrl;
    QUrl infoUrl; // the item's <link>: the release's web page
    QString minimumSystemVersion;

    [[nodiscard]] QString displayVersionString() const
    {
        return shortVersionString.isEmpty() ? version : shortVersionString;
    }
    // Where "Download" sends the user: the release page if the feed names one, else the file itself.
    [[nodiscard]] QUrl downloadPageUrl() const { return infoUrl.isValid() ? infoUrl : enclosureUrl; }

    friend bool operator==(const AppcastItem&, const AppcastItem&) = default;
};

// Reads an RSS appcast. Items without a version are left out. Returns nothing when the document is not
// well-formed XML or is not an RSS feed.
[[nodiscard]] std::optional<QList<AppcastItem>> parseAppcast(const QByteArray& data);

// Compares versions by their numeric segments: 1.10 is newer than 1.9, 2.0 equals 2.0.0, and a release is
// newer than its own pre-releases (2.0 is newer than 2.0b1). Negative, zero or positive, like strcmp.
[[nodiscard]] int compareVersions(const QString& a, const QString& b);

} // namespace velto
