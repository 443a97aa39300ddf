#pragma once

#include "Appcast.h"
#include "SmallDownload.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QTimer>
#include <QUrl>
#include <QVariantMap>

#include <chrono>
#include <functional>
#include <memory>

namespace velto {

class UserDefaultsStore;
class Updater;

// Errors the updater hands its delegate. A check that finds nothing newer is reported as an error too, with
// code NoUpdateFound and a NoUpdateFoundReason under noUpdateFoundReasonKey in the user information.
struct UpdateError {
    QString domain;
    int code = 0;
    QVariantMap userInfo;
    QString description;
};

namespace UpdaterErrors {
inline constexpr auto domain = QStringView(u"VeltoUpdaterErrorDomain");
inline constexpr auto noUpdateFoundReasonKey = QStringView(u"VeltoNoUpdateFoundReason");
enum Code : int {
    NoUpdateFound = 1001,
    FeedUnreachable = 2001, // network failure or an HTTP status other than 2xx
    FeedMalformed = 2002,
    FeedInsecure = 2003, // not HTTPS, or redirected away from it
    FeedTooLarge = 2004,
    TimedOut = 2005,
};
} // namespace UpdaterErrors

enum class NoUpdateFoundReason : int {
    Unknown = 0,
    OnLatestVersion = 1,
    OnNewerThanLatestVersion = 2,
    SystemTooOld = 3, // a newer release exists but needs a newer system
};

// What the user chose for an offered update. Skip is 0 because the delegate contract says so.
enum class UpdateChoice : int { Skip = 0, Install = 1, Dismiss = 2 };

// Told about every check's outcome. Main thread. The delegate must outlive the updater or unset itself.
class UpdaterDelegate {
public:
    virtual ~UpdaterDelegate() = default;
    // A release newer than this one, not skipped, for this system.
    virtual void didFindValidUpdate(const AppcastItem& item) { Q_UNUSED(item); }
    // Nothing to offer: NoUpdateFound with a reason, or any failure of the check itself.
    virtual void didNotFindUpdate(const UpdateError& error) { Q_UNUSED(error); }
    // The user answered the window of a user-initiated check.
    virtual void userDidMakeChoice(UpdateChoice choice, const AppcastItem& item)
    {
        Q_UNUSED(choice);
        Q_UNUSED(item);
    }
};

// The windows of a user-initiated check. Background checks never reach it. Main thread. `reply` may be
// called once, later, or never; it does nothing once the updater is gone.
class UpdateUserDriver {
public:
    virtual ~UpdateUserDriver() = default;
    virtual void showUpdateFound(const AppcastItem& item, std::function<void(UpdateChoice)> reply) = 0;
    virtual void showUpdateNotFound(const UpdateError& error) = 0;
    virtual void showUpdaterError(const UpdateError& error) = 0;
};

struct UpdaterConfiguration {
    QUrl feedUrl;
    QString hostVersion;   // this build's version, compared against the feed's
    QString systemVersion; // compared against an item's minimum system version; empty accepts every item
    std::chrono::milliseconds timeout = std::chrono::seconds(30);
    qint64 maxFeedBytes = 1024 * 1024;
    std::chrono::seconds checkInterval = std::chrono::hours(24);
    std::chrono::seconds firstCheckDelay = std::chrono::minutes(3);
    // velto-fetch; empty: the one installed with Velto.
    QString fetchProgram;
};

// Checks the appcast for a newer release: when asked by the user, when asked silently, and once a day on its
// own after start(). Remembers the last check and a skipped version in the user-defaults store. One check at
// a time; a request during a check joins it. Main thread.
class Updater final : public QObject {
    Q_OBJECT
public:
    using Clock = std::function<QDateTime()>;
    using UrlOpener = std::function<void(const QUrl&)>;

    static constexpr auto lastCheckKey = QStringView(u"updateLastCheckDate");
    static constexpr auto skippedVersionKey = QStringView(u"updateSkippedVersion");

    Updater(UpdaterConfiguration configuration, UserDefaultsStore* store, Clock clock = {}, QObject* parent = nullptr);
    ~Updater() override;

    void setDelegate(UpdaterDelegate* delegate) { m_delegate = delegate; }
    [[nodiscard]] UpdaterDelegate* delegate() const { return m_delegate; }
    void setUserDriver(std::unique_ptr<UpdateUserDriver> driver);
    // Opens the download page after the user chose "Download".
    void setOnOpenUrl(UrlOpener onOpenUrl) { m_onOpenUrl = std::move(onOpenUrl); }

    // Begins the scheduled checks. Returns false, and schedules nothing, when the feed address is not allowed.
    bool start();
    Q_INVOKABLE void checkForUpdates();
    Q_INVOKABLE void checkForUpdatesInBackground();

    [[nodiscard]] bool sessionInProgress() const { return m_download.isRunning(); }
    // The last finished check in one line, as the About pane's check would tell it, and whether the check
    // itself failed (no answer, a bad feed) rather than finding nothing newer.
    [[nodiscard]] QString lastOutcomeText() const { return m_lastOutcomeText; }
    [[nodiscard]] bool lastCheckFailed() const { return m_lastCheckFailed; }
    [[nodiscard]] QDateTime lastUpdateCheckDate() const;
    [[nodiscard]] QDateTime nextScheduledCheckDate() const { return m_nextScheduledCheck; }
    [[nodiscard]] QString skippedVersion() const;
    [[nodiscard]] const UpdaterConfiguration& configuration() const { return m_configuration; }

    // HTTPS anywhere; plain HTTP only to this machine.
    [[nodiscard]] static bool isAllowedFeedUrl(const QUrl& url);

Q_SIGNALS:
    // Emitted after the delegate heard the outcome of a check.
    void checkFinished();

private:
    void beginCheck(bool userInitiated);
    void onFetched(const SmallDownload::Result& result);
    void fail(int code, const QString& description);
    void evaluate(const QByteArray& body);
    void conclude();
    void reportNotFound(NoUpdateFoundReason reason);
    void offer(const AppcastItem& item);
    void handleChoice(UpdateChoice choice, const AppcastItem& item);
    void scheduleNext();
    void onScheduleTimer();

    UpdaterConfiguration m_configuration;
    UserDefaultsStore* m_store = nullptr;
    Clock m_clock;
    UpdaterDelegate* m_delegate = nullptr;
    std::unique_ptr<UpdateUserDriver> m_userDriver;
    UrlOpener m_onOpenUrl;
    SmallDownload m_download;
    QString m_lastOutcomeText;
    bool m_lastCheckFailed = false;
    bool m_userInitiated = false;
    bool m_started = false;
    QTimer m_scheduleTimer;
    QDateTime m_nextScheduledCheck;
};

} // namespace velto
