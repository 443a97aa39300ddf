#include "SettingsWindowController.h"

#include "AddFocusAppModel.h"
#include "ApplicationIconProvider.h"
#include "BreakWindow.h"
#include "FreedMemory.h"
#include "HistoryPaneModel.h"
#include "SettingsBuildNumber.h"
#include "SettingsPaneModel.h"
#include "UpdateAvailabilityModel.h"
#include "VeltoUrls.h"
#include "detection/DetectionCoverage.h"
#include "detection/GnomeExtension.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QScreen>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Velto_SettingsPlugin)

using namespace Qt::StringLiterals;

namespace velto {

SettingsWindowController::SettingsWindowController(Collaborators collaborators, QObject* parent)
    : QObject(parent)
    , m_collaborators(std::move(collaborators))
{}

SettingsWindowController::~SettingsWindowController()
{
    // Windows (also a closed one not yet deleted) go before the engine that made their items.
    qDeleteAll(findChildren<QQuickWindow*>(Qt::FindDirectChildrenOnly));
}

QString SettingsWindowController::buildNumber()
{
    return QString::fromLatin1(settingsBuildNumber);
}

QQmlEngine& SettingsWindowController::engine()
{
    if (!m_engine) {
        // No GPU is needed, and a session without an OpenGL driver cannot abort the window.
        BreakWindow::useSoftwareRendering();
        // Fusion follows the desktop palette, light or dark; a style chosen by the user wins.
        if (qEnvironmentVariableIsEmpty("QT_QUICK_CONTROLS_STYLE") && QQuickStyle::name().isEmpty())
            QQuickStyle::setStyle(u"Fusion"_s);
        m_engine = makeWindowEngine();
        // The module lives in the resources under Velto/Settings.
        m_engine->addImportPath(u"qrc:/"_s);
        m_engine->addImageProvider(u"veltoappicon"_s, new ApplicationIconProvider(m_collaborators.applications));
    }
    return *m_engine;
}

void SettingsWindowController::showSettings(SettingsManager* settingsManager, BreakManager* breakManager)
{
    m_breakManager = breakManager;
    if (m_settingsWindow && m_settingsWindow->isVisible()) {
        bringForward(m_settingsWindow);
        return;
    }
    QQuickWindow* window = buildWindow(settingsManager);
    if (!window)
        return;
    if (m_settingsWindow)
        m_settingsWindow->deleteLater();
    m_settingsWindow = window;
    // Owned by the controller, yet a top-level window: no QWindow parent.
    static_cast<QObject*>(window)->setParent(this);
    if (QScreen* screen = window->screen()) {
        QRect frame(QPoint(), window->size());
        frame.moveCenter(screen->availableGeometry().center());
        window->setPosition(frame.topLeft());
    }
    // A closed window is let go at once, with what its pixels and items held: the next showing builds a
    // fresh one anyway, and people keep Velto running for days after a visit to the settings.
    connect(window, &QWindow::visibleChanged, this, [this, window](bool visible) {
        if (visible)
            return;
        connect(window, &QObject::destroyed, this, [this] {
            // After the deletions the window's teardown has queued; a window opened meanwhile keeps it.
            QTimer::singleShot(0, this, [this] {
                if (!m_settingsWindow)
                    m_engine.reset();
                returnFreedMemoryToSystem();
            });
        });
        window->deleteLater();
    });
    window->show();
    bringForward(window);
}

void SettingsWindowController::bringForward(QQuickWindow* window)
{
    window->raise();
    window->requestActivate();
    // The tray menu that asked may still hold the focus; ask again once it has closed.
    QTimer::singleShot(0, window, [window] { window->requestActivate(); });
}

void SettingsWindowController::showDetectionCoverage(SettingsPaneModel* paneModel) const
{
    const GnomeExtensionControlling* extension = m_collaborators.gnomeExtension;
    const std::optional<GnomeExtensionFacts> facts = extension ? extension->facts() : std::nullopt;
    const GnomeExtensionState state = facts ? gnomeExtensionState(*facts) : GnomeExtensionState::NotGnome;
    paneModel->setGnomeExtension(state, facts && gnomeExtensionEnabling(*facts).possible());
    // Asked each time: a source can become available after start, or once the extension runs.
    if (!m_collaborators.detectionSources)
        return;
    QVariantMap sources = m_collaborators.detectionSources();
    // Where the extension's own line shows, it tells what the windows need, with the button that brings it.
    if (state != GnomeExtensionState::NotGnome)
        sources.remove(u"windows"_s);
    paneModel->setDetectionCoverage(detectionCoverage(sources, m_collaborators.desktop));
}

QQuickWindow* SettingsWindowController::buildWindow(SettingsManager* settingsManager)
{
    QQmlEngine& qml = engine();
    static const QUrl source(u"qrc:/Velto/Settings/SettingsView.qml"_s);
    QQmlComponent component(&qml, source, QQmlComponent::PreferSynchronous);
    if (!component.isReady()) {
        qWarning("velto: the settings window cannot be built: %s", qPrintable(component.errorString()));
        return nullptr;
    }

    SettingsPaneModel::About about{QCoreApplication::applicationVersion(), buildNumber(),
                                   QUrl(QString::fromLatin1(urls::website)), QString::fromLatin1(urls::contactAddress)};
    auto* paneModel = new SettingsPaneModel(settingsManager, m_collaborators.lock, about);
    paneModel->setStoreWriteState(m_collaborators.storeWriteState);
    showDetectionCoverage(paneModel);
    if (GnomeExtensionControlling* extension = m_collaborators.gnomeExtension) {
        connect(extension, &GnomeExtensionControlling::factsGathered, paneModel,
                [this, paneModel] { showDetectionCoverage(paneModel); });
        // Asked at each opening; the answer comes a moment later.
        extension->refresh();
        QPointer<GnomeExtensionControlling> guarded(extension);
        paneModel->onEnableGnomeExtension = [paneModel, guarded] {
            if (!guarded)
                return;
            paneModel->setEnablingGnomeExtension(true);
            // The window may be gone by the time the shell has answered.
            guarded->enable([model = QPointer<SettingsPaneModel>(paneModel)](const QString& error) {
                if (model)
                    model->setEnablingGnomeExtension(false, error);
            });
        };
    }
    auto* focusAppModel =
        new AddFocusAppModel(settingsManager, m_collaborators.workspace, m_collaborators.applications);
    if (UpdateAvailabilityModel* updates = m_collaborators.updates) {
        paneModel->setUpdatedBySystem(updates->isUpdatedBySystem());
        QPointer<UpdateAvailabilityModel> guarded(updates);
        auto sync = [paneModel, guarded] {
            if (guarded)
                paneModel->setUpdateState(guarded->updateAvailable(), guarded->availableVersionDisplayString());
        };
        sync();
        connect(updates, &UpdateAvailabilityModel::updateAvailableChanged, paneModel, sync);
        connect(updates, &UpdateAvailabilityModel::availableVersionDisplayStringChanged, paneModel, sync);
        paneModel->onCheckForUpdates = [guarded] {
            if (guarded)
                guarded->checkForUpdates();
        };
        paneModel->onSilentCheck = [guarded] {
            if (guarded)
                guarded->checkForUpdatesInBackground();
        };
    }

    auto* historyModel = new HistoryPaneModel(m_collaborators.history);

    QObject* root = component.createWithInitialProperties({{u"paneModel"_s, QVariant::fromValue(paneModel)},
                                                           {u"focusAppModel"_s, QVariant::fromValue(focusAppModel)},
                                                           {u"historyModel"_s, QVariant::fromValue(historyModel)}});
    auto* window = qobject_cast<QQuickWindow*>(root);
    if (!window) {
        delete root;
        delete paneModel;
        delete focusAppModel;
        delete historyModel;
        return nullptr;
    }
    paneModel->setParent(window);
    focusAppModel->setParent(window);
    historyModel->setParent(window);
    return window;
}

} // namespace velto
