#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QMetaType>
#include <QReadWriteLock>
#include <QString>
#include <QStringList>

#include <optional>

namespace velto {

// One installed application as its desktop file describes it.
struct DesktopEntry {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QStringList categories MEMBER categories)
    Q_PROPERTY(QString startupWMClass MEMBER startupWMClass)
    Q_PROPERTY(QString exec MEMBER exec)
    Q_PROPERTY(QString executable MEMBER executable)
    Q_PROPERTY(QString filePath MEMBER filePath)

public:
    // The desktop-file ID without ".desktop" ("org.gnome.Nautilus"; sub-directories joined with '-').
    QString id;
    // The untranslated Name.
    QString name;
    // An icon theme name or an absolute path, as written.
    QString icon;
    QStringList categories;
    QString startupWMClass;
    // The Exec line as written.
    QString exec;
    // The file name of the program Exec starts, past any "env VAR=value" prefix; empty for "flatpak run".
    QString executable;
    QString filePath;
    // NoDisplay=true: an application launchers do not list (a helper, a panel, a handler).
    bool noDisplay = false;
    // OnlyShowIn and NotShowIn, as written.
    QStringList onlyShowIn;
    QStringList notShowIn;

    // Whether a launcher on these desktops (XDG_CURRENT_DESKTOP, split at ':') lists the application.
    [[nodiscard]] bool isListedOn(const QStringList& desktops) const;

    friend bool operator==(const DesktopEntry&, const DesktopEntry&) = default;
};

// The installed desktop files along the XDG data directories, read once and looked up from memory. Looking
// up never touches the disk; refresh() reads everything again, refreshIfChanged() only when one of the
// directories changed (a few stat calls). Safe to use from several threads at once.
class DesktopEntryIndex final {
public:
    // Reads the "applications" folders under $XDG_DATA_HOME and $XDG_DATA_DIRS (with their defaults).
    DesktopEntryIndex();
    // Reads these folders, earlier ones taking precedence for the same ID (as XDG lookup does).
    explicit DesktopEntryIndex(QStringList applicationDirs);

    [[nodiscard]] static QStringList defaultApplicationDirs();
    // One desktop file's [Desktop Entry] group; none when it is no visible application entry.
    [[nodiscard]] static std::optional<DesktopEntry> parse(const QByteArray& contents, const QString& id,
                                                           const QString& filePath = {});

    void refresh();
    // Reads everything again when a folder was changed, added or removed since the last read; returns whether it did.
    bool refreshIfChanged();

    [[nodiscard]] QList<DesktopEntry> entries() const;
    [[nodiscard]] std::optional<DesktopEntry> entry(const QString& id) const;
    // The entry whose StartupWMClass, else whose ID, equals this window class (letter case ignored).
    [[nodiscard]] std::optional<DesktopEntry> entryForWindowClass(const QString& windowClass) const;
    // The entry whose Exec starts this program file name (exactly); the first by ID when several do.
    [[nodiscard]] std::optional<DesktopEntry> entryForExecutable(const QString& executable) const;

private:
    struct Snapshot {
        QHash<QString, DesktopEntry> byId;
        QHash<QString, QString> idByWindowClass;
        QHash<QString, QString> idByLowerId;
        QHash<QString, QString> idByExecutable;
        QHash<QString, QDateTime> folderTimes;
    };
    [[nodiscard]] Snapshot scan() const;
    [[nodiscard]] QHash<QString, QDateTime> folderTimes() const;

    QStringList m_dirs;
    mutable QReadWriteLock m_lock;
    Snapshot m_snapshot;
};

} // namespace velto
