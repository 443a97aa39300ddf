#include "WaylandProviders.h"

#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace velto {

WaylandLinkToplevels::WaylandLinkToplevels(std::shared_ptr<WaylandLink> link)
    : m_link(std::move(link))
{}

bool WaylandLinkToplevels::isAvailable() const
{
    return m_link->toplevels() != WaylandLink::Toplevels::None;
}

QString WaylandLinkToplevels::name() const
{
    switch (m_link->toplevels()) {
    case WaylandLink::Toplevels::WlrForeignToplevel:
        return u"wlr-foreign-toplevel"_s;
    case WaylandLink::Toplevels::PlasmaWindowManagement:
        return u"kde-plasma-window-management"_s;
    case WaylandLink::Toplevels::None:
        break;
    }
    return u"none"_s;
}

WaylandFacts WaylandLinkToplevels::facts() const
{
    return isAvailable() ? m_link->facts() : WaylandFacts();
}

ReportedToplevels::ReportedToplevels(std::shared_ptr<WaylandLink> outputs)
    : m_outputs(std::move(outputs))
{}

void ReportedToplevels::set(QList<WaylandToplevel> toplevels, QList<QRect> frames)
{
    QMutexLocker lock(&m_mutex);
    m_toplevels = std::move(toplevels);
    m_frames = std::move(frames);
    m_reported = true;
}

void ReportedToplevels::clear()
{
    QMutexLocker lock(&m_mutex);
    m_reported = false;
    m_toplevels.clear();
    m_frames.clear();
}

bool ReportedToplevels::isAvailable() const
{
    QMutexLocker lock(&m_mutex);
    return m_reported && m_outputs && m_outputs->isConnected();
}

WaylandFacts ReportedToplevels::facts() const
{
    if (!isAvailable())
        return {};
    WaylandFacts facts;
    facts.outputs = m_outputs->facts().outputs;
    QMutexLocker lock(&m_mutex);
    facts.toplevels = m_toplevels;
    for (qsizetype i = 0; i < facts.toplevels.size() && i < m_frames.size(); ++i) {
        const QPoint centre = m_frames.at(i).center();
        for (qsizetype o = 0; o < facts.outputs.size(); ++o) {
            if (facts.outputs.at(o).geometry.contains(centre)) {
                facts.toplevels[i].output = int(o);
                break;
            }
        }
    }
    return facts;
}

FirstAvailableToplevels::FirstAvailableToplevels(std::vector<std::shared_ptr<ToplevelSource>> candidates)
    : m_candidates(std::move(candidates))
{}

const ToplevelSource* FirstAvailableToplevels::active() const
{
    for (const auto& candidate : m_candidates) {
        if (candidate->isAvailable())
            return candidate.get();
    }
    return nullptr;
}

bool FirstAvailableToplevels::isAvailable() const
{
    return active() != nullptr;
}

QString FirstAvailableToplevels::name() const
{
    const ToplevelSource* source = active();
    return source ? source->name() : u"none"_s;
}

WaylandFacts FirstAvailableToplevels::facts() const
{
    const ToplevelSource* source = active();
    return source ? source->facts() : WaylandFacts();
}

WaylandWorkspace::WaylandWorkspace(std::shared_ptr<ToplevelSource> toplevels,
                                   std::unique_ptr<WorkspaceProviding> xwayland,
                                   std::unique_ptr<WorkspaceProviding> fallback,
                                   std::shared_ptr<AppIdentityResolver> identities,
                                   std::shared_ptr<WindowClassMemo> memo)
    : m_toplevels(std::move(toplevels))
    , m_xwayland(std::move(xwayland))
    , m_fallback(std::move(fallback))
    , m_identities(std::move(identities))
    , m_memo(std::move(memo))
{}

std::optional<QString> WaylandWorkspace::resolve(const WaylandToplevel& toplevel) const
{
    // The app_id is what a window class is on X11: the desktop file's ID or its StartupWMClass. Unlike a window
    // class it is meant to be a desktop file ID, so where no installed file names it, it stands as given.
    std::optional<QString> identity = m_identities->identity(std::max(toplevel.pid, 0), toplevel.appId, toplevel.appId);
    if (identity && !toplevel.appId.isEmpty() && *identity == toplevel.appId.toLower())
        identity = toplevel.appId;
    return identity;
}

QList<AppSnapshot> WaylandWorkspace::runningApplications() const
{
    if (!m_toplevels->isAvailable())
        return m_fallback->runningApplications();
    // The X11 side first: it renews the window-class memo, to which the Wayland windows are then added.
    const QList<AppSnapshot> others = m_xwayland->runningApplications();
    const WaylandFacts facts = m_toplevels->facts();

    QHash<QPair<qint32, QString>, std::optional<QString>> known;
    {
        QMutexLocker lock(&m_mutex);
        known = m_identityOf;
    }
    QHash<QPair<qint32, QString>, std::optional<QString>> identities;
    QHash<qint32, WindowClassMemo::Classes> classes;
    QList<AppSnapshot> applications;
    QHash<qint32, qsizetype> indexOfProcess;
    for (const WaylandToplevel& toplevel : facts.toplevels) {
        const auto existing = indexOfProcess.constFind(toplevel.pid);
        if (existing != indexOfProcess.constEnd()) {
            applications[*existing].isActive = applications[*existing].isActive || toplevel.activated;
            continue;
        }
        const QPair<qint32, QString> key(toplevel.pid, toplevel.appId);
        const auto found = known.constFind(key);
        std::optional<QString> identity = found != known.constEnd() ? *found : resolve(toplevel);
        identities.insert(key, identity);
        classes.insert(toplevel.pid, {toplevel.appId, toplevel.appId});
        indexOfProcess.insert(toplevel.pid, applications.size());
        applications.append(AppSnapshot{identity, toplevel.activated, toplevel.pid});
    }
    {
        QMutexLocker lock(&m_mutex);
        m_identityOf = std::move(identities);
    }
    m_memo->merge(std::move(classes));

    // Xwayland windows are toplevels too: one application, one entry. Only the compositor knows which is in front.
    QSet<QString> listed;
    for (const AppSnapshot& app : std::as_const(applications)) {
        if (app.bundleIdentifier)
            listed.insert(*app.bundleIdentifier);
    }
    for (AppSnapshot app : others) {
        if ((app.bundleIdentifier && listed.contains(*app.bundleIdentifier)) ||
            indexOfProcess.contains(app.processIdentifier))
            continue;
        app.isActive = false;
        applications.append(app);
    }
    return applications;
}

WaylandWindowList::WaylandWindowList(std::shared_ptr<ToplevelSource> toplevels,
                                     std::unique_ptr<WindowListProviding> fallback)
    : m_toplevels(std::move(toplevels))
    , m_fallback(std::move(fallback))
{}

QList<WindowDescriptor> WaylandWindowList::onScreenWindows() const
{
    if (!m_toplevels->isAvailable())
        return m_fallback->onScreenWindows();
    const WaylandFacts facts = m_toplevels->facts();
    QList<WindowDescriptor> windows;
    for (const WaylandToplevel& toplevel : facts.toplevels) {
        if (toplevel.minimized)
            continue;
        const QRectF output = toplevel.output >= 0 && toplevel.output < facts.outputs.size()
                                  ? QRectF(facts.outputs.at(toplevel.output).geometry)
                                  : QRectF();
        const QRectF bounds = toplevel.fullscreen ? output : QRectF(output.topLeft(), QSizeF());
        windows.append({toplevel.pid, bounds, 0});
    }
    return windows;
}

QList<TitledWindow> waylandWindowTitles(const ToplevelSource& toplevels)
{
    QList<TitledWindow> windows;
    for (const WaylandToplevel& toplevel : toplevels.facts().toplevels) {
        if (!toplevel.minimized)
            windows.append({toplevel.pid, toplevel.title});
    }
    return windows;
}

WaylandScreen::WaylandScreen(std::shared_ptr<ToplevelSource> toplevels, std::unique_ptr<ScreenProviding> fallback)
    : m_toplevels(std::move(toplevels))
    , m_fallback(std::move(fallback))
{}

QRectF WaylandScreen::mainScreenFrame() const
{
    if (!m_toplevels->isAvailable())
        return m_fallback->mainScreenFrame();
    const WaylandFacts facts = m_toplevels->facts();
    if (facts.outputs.isEmpty())
        return {};
    for (const WaylandToplevel& toplevel : facts.toplevels) {
        if (toplevel.activated && toplevel.output >= 0 && toplevel.output < facts.outputs.size())
            return facts.outputs.at(toplevel.output).geometry;
    }
    return facts.outputs.constFirst().geometry;
}

WaylandIdleTime::WaylandIdleTime(std::shared_ptr<WaylandLink> link, std::unique_ptr<IdleTimeProviding> fallback)
    : m_link(std::move(link))
    , m_fallback(std::move(fallback))
{}

double WaylandIdleTime::secondsSinceLastInput() const
{
    if (m_link) {
        if (const auto seconds = m_link->secondsSinceLastInput())
            return *seconds;
    }
    return m_fallback->secondsSinceLastInput();
}

WaylandInputActivity::WaylandInputActivity(std::shared_ptr<WaylandLink> link,
                                           std::unique_ptr<KeyDownTimeProviding> fallback)
    : m_link(std::move(link))
    , m_fallback(std::move(fallback))
{}

std::optional<double> WaylandInputActivity::secondsSinceLastKeyDown() const
{
    if (m_link && m_link->idle() != WaylandLink::Idle::None)
        return m_link->secondsSinceLastInput();
    return m_fallback ? m_fallback->secondsSinceLastKeyDown() : std::nullopt;
}

} // namespace velto
