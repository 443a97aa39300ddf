#include "ScreenRecordingRule.h"

#include "KnownApplications.h"

#include <QHash>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace velto {

bool hasScreenRecordingWindow(const QList<TitledWindow>& windows, const QList<AppSnapshot>& runningApplications)
{
    QHash<qint32, QString> identityByProcess;
    for (const AppSnapshot& app : runningApplications) {
        if (app.bundleIdentifier)
            identityByProcess.insert(app.processIdentifier, *app.bundleIdentifier);
    }
    const QSet<QString>& ignored = KnownApplications::screenRecordingIgnoredBundleIdentifiers();
    const QSet<QString>& recorders = KnownApplications::screenRecorderBundleIdentifiers();

    for (const TitledWindow& window : windows) {
        if (window.ownerPID == 0)
            continue;
        const auto owner = identityByProcess.constFind(window.ownerPID);
        if (owner == identityByProcess.constEnd() || ignored.contains(*owner))
            continue;
        const QString title = window.title.value_or(QString()).toLower();
        if (title.isEmpty())
            continue;
        if (title.contains(u"screen recording"_s))
            return true;
        if (recorders.contains(*owner) &&
            (title.contains(u"recording"_s) || title.contains(u"broadcasting"_s) || title.contains(u"streaming"_s)))
            return true;
    }
    return false;
}

ScreenRecordingRule::ScreenRecordingRule(WindowTitles windowTitles, DocumentTest documentTest)
    : m_windowTitles(std::move(windowTitles))
    , m_documentTest(std::move(documentTest))
{}

bool ScreenRecordingRule::isScreenRecording(const QList<AppSnapshot>& runningApplications) const
{
    if (m_windowTitles && hasScreenRecordingWindow(m_windowTitles(), runningApplications))
        return true;
    // The document test talks to the player, so it runs only while the player does.
    const bool playerRuns = std::any_of(runningApplications.cbegin(), runningApplications.cend(), [](const auto& app) {
        return app.bundleIdentifier == KnownApplications::screenRecordingDocumentApp;
    });
    return playerRuns && m_documentTest && m_documentTest();
}

} // namespace velto
