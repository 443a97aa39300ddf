#include "Updater.h"

#include "FeedAddress.h"
#include "settings/UserDefaultsStore.h"

#include <limits>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

UpdateError makeError(int code, const QString& description, QVariantMap userInfo = {})
{
    return UpdateError{UpdaterErrors::domain.toString(), code, std::move(userInfo), description};
}

} // namespace

Updater::Updater(UpdaterConfiguration configuration, UserDefaultsStore* store, Clock clock, QObject* parent)
    : QObject(parent)
    , m_configuration(std::move(configuration))
    , m_store(store)
    , m_clock(clock ? std::move(clock) : Clock([] { return QDateTime::currentDateTimeUtc(); }))
    , m_download(m_configuration.fetchProgram)
{
    connect(&m_download, &SmallDownload::finished, this, &Updater::onFetched);
    m_scheduleTimer.setSingleShot(true);
    connect(&m_scheduleTimer, &QTimer::timeout, this, &Updater::onScheduleTimer);
}

Updater::~Updater() = default;

void Updater::setUserDriver(std::unique_ptr<UpdateUserDriver> driver)
{
    m_userDriver = std::move(driver);
}

bool Updater::isAllowedFeedUrl(const QUrl& url)
{
    return velto::isAllowedFeedUrl(url);
}

bool Updater::start()
{
    if (m_started)
        return true;
    if (!isAllowedFeedUrl(m_configuration.feedUrl))
        return false;
    m_started = true;
    scheduleNext();
    return true;
}

QDateTime Updater::lastUpdateCheckDate() const
{
    if (!m_store)
        return {};
    return QDateTime::fromString(m_store->read(lastCheckKey.toString()).toString(), Qt::ISODateWithMs);
}

QString Updater::skippedVersion() const
{
    return m_store ? m_store->read(skippedVersionKey.toString()).toString() : QString();
}

void Updater::checkForUpdates()
{
    beginCheck(true);
}

void Updater::checkForUpdatesInBackground()
{
    beginCheck(false);
}

void Updater::beginCheck(bool userInitiated)
{
    if (m_download.isRunning()) {
        // The running check answers the user too.
        m_userInitiated = m_userInitiated || userInitiated;
        return;
    }
    m_userInitiated = userInitiated;
    if (!isAllowedFeedUrl(m_configuration.feedUrl)) {
        // Report on the next turn, like every other outcome, so callers never see re-entrant callbacks.
        QTimer::singleShot(0, this, [this] {
            if (!m_download.isRunning())
                fail(UpdaterErrors::FeedInsecure, tr("The update feed address is not secure."));
        });
        return;
    }
    m_download.start({m_configuration.feedUrl, m_configuration.maxFeedBytes,
                      std::chrono::duration_cast<std::chrono::milliseconds>(m_configuration.timeout),
                      u"Velto/"_s + m_configuration.hostVersion});
}

void Updater::onFetched(const SmallDownload::Result& result)
{
    using Outcome = SmallDownload::Outcome;
    switch (result.outcome) {
    case Outcome::Fetched:
        evaluate(result.body);
        return;
    case Outcome::Insecure:
        fail(UpdaterErrors::FeedInsecure, tr("The update feed was redirected to an address that is not secure."));
        return;
    case Outcome::TooLarge:
        fail(UpdaterErrors::FeedTooLarge, tr("The update feed is too large."));
        return;
    case Outcome::TimedOut:
        fail(UpdaterErrors::TimedOut, tr("The update server did not answer in time."));
        return;
    case Outcome::Unreachable:
        fail(UpdaterErrors::FeedUnreachable,
             result.httpStatus != 0
                 //: %1 is the HTTP status number, such as 404.
                 ? tr("The update server answered with status %1.").arg(result.httpStatus)
                 : result.failureText);
        return;
    }
}

void Updater::fail(int code, const QString& description)
{
    m_download.abort();
    const UpdateError error = makeError(code, description);
    m_lastOutcomeText = description;
    m_lastCheckFailed = true;
    if (m_delegate)
        m_delegate->didNotFindUpdate(error);
    if (m_userInitiated && m_userDriver)
        m_userDriver->showUpdaterError(error);
    conclude();
}

void Updater::evaluate(const QByteArray& body)
{
    const auto items = parseAppcast(body);
    if (!items) {
        fail(UpdaterErrors::FeedMalformed, tr("The update feed could not be read."));
        return;
    }

    const AppcastItem* newest = nullptr;
    const AppcastItem* newestForThisSystem = nullptr;
    for (const AppcastItem& item : *items) {
        if (!newest || compareVersions(item.version, newest->version) > 0)
            newest = &item;
        const bool fits = item.minimumSystemVersion.isEmpty() || m_configuration.systemVersion.isEmpty() ||
                          compareVersions(m_configuration.systemVersion, item.minimumSystemVersion) >= 0;
        if (fits && (!newestForThisSystem || compareVersions(item.version, newestForThisSystem->version) > 0))
            newestForThisSystem = &item;
    }

    const QString& host = m_configuration.hostVersion;
    if (newestForThisSystem && compareVersions(newestForThisSystem->version, host) > 0) {
        if (newestForThisSystem->version == skippedVersion())
            reportNotFound(NoUpdateFoundReason::OnLatestVersion);
        else
            offer(*newestForThisSystem);
    } else if (newest && compareVersions(newest->version, host) > 0) {
        reportNotFound(NoUpdateFoundReason::SystemTooOld);
    } else if (newest && compareVersions(host, newest->version) > 0) {
        reportNotFound(NoUpdateFoundReason::OnNewerThanLatestVersion);
    } else {
        reportNotFound(NoUpdateFoundReason::OnLatestVersion);
    }
}

void Updater::reportNotFound(NoUpdateFoundReason reason)
{
    const UpdateError error = makeError(UpdaterErrors::NoUpdateFound, tr("Velto is up to date."),
                                        {{UpdaterErrors::noUpdateFoundReasonKey.toString(), int(reason)}});
    // What the up-to-date window says.
    m_lastOutcomeText = reason == NoUpdateFoundReason::SystemTooOld
                            ? tr("A newer version of Velto exists but needs a newer system than this one.")
                            //: %1 is the version running, such as 1.2.0.
                            : tr("Velto %1 is the newest version available.").arg(m_configuration.hostVersion);
    m_lastCheckFailed = false;
    if (m_delegate)
        m_delegate->didNotFindUpdate(error);
    if (m_userInitiated && m_userDriver)
        m_userDriver->showUpdateNotFound(error);
    conclude();
}

void Updater::offer(const AppcastItem& item)
{
    const QString available = item.displayVersionString();
    const QString& running = m_configuration.hostVersion;
    if (const QUrl page = item.downloadPageUrl(); page.isValid()) {
        //: %1 is the new version, %2 the version running, %3 the web address of the download page.
        m_lastOutcomeText =
            tr("Velto %1 is available; you have %2. Download it from %3").arg(available, running, page.toString());
    } else {
        //: %1 is the new version, %2 the version running.
        m_lastOutcomeText = tr("Velto %1 is available; you have %2.").arg(available, running);
    }
    m_lastCheckFailed = false;
    if (m_delegate)
        m_delegate->didFindValidUpdate(item);
    if (m_userInitiated && m_userDriver) {
        QPointer<Updater> self(this);
        m_userDriver->showUpdateFound(item, [self, item](UpdateChoice choice) {
            if (self)
                self->handleChoice(choice, item);
        });
    }
    conclude();
}

void Updater::handleChoice(UpdateChoice choice, const AppcastItem& item)
{
    if (choice == UpdateChoice::Skip && m_store)
        m_store->write(skippedVersionKey.toString(), item.version);
    if (choice == UpdateChoice::Install && m_onOpenUrl && item.downloadPageUrl().isValid())
        m_onOpenUrl(item.downloadPageUrl());
    if (m_delegate)
        m_delegate->userDidMakeChoice(choice, item);
}

void Updater::conclude()
{
    m_userInitiated = false;
    // Every attempt counts, failed ones too: a day without network should not turn into a check a minute.
    if (m_store)
        m_store->write(lastCheckKey.toString(), m_clock().toUTC().toString(Qt::ISODateWithMs));
    if (m_started)
        scheduleNext();
    Q_EMIT checkFinished();
}

void Updater::scheduleNext()
{
    const QDateTime now = m_clock();
    // Never sooner than a few minutes from now, so a launch is not slowed by a check.
    const QDateTime earliest = now.addSecs(m_configuration.firstCheckDelay.count());
    QDateTime next = earliest;
    const QDateTime last = lastUpdateCheckDate();
    // A last check in the future means the clock was set back; do not wait for it.
    if (last.isValid() && last <= now)
        next = std::max(last.addSecs(m_configuration.checkInterval.count()), earliest);
    m_nextScheduledCheck = next;
    const qint64 ms = std::clamp<qint64>(now.msecsTo(next), 0, std::numeric_limits<int>::max());
    m_scheduleTimer.start(int(ms));
}

void Updater::onScheduleTimer()
{
    // The timer runs on real time and the clock may not; re-arm until the clock agrees the check is due.
    if (m_clock() < m_nextScheduledCheck) {
        const qint64 ms =
            std::clamp<qint64>(m_clock().msecsTo(m_nextScheduledCheck), 1000, std::numeric_limits<int>::max());
        m_scheduleTimer.start(int(ms));
        return;
    }
    checkForUpdatesInBackground();
}

} // namespace velto
