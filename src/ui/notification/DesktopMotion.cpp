#include "DesktopMotion.h"

#include <QCoreApplication>
#include <QPointer>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QThreadPool>

using namespace Qt::Literals::StringLiterals;

namespace velto {

bool DesktopAnimationSettings::prefersReducedMotion() const
{
    const bool plasma = currentDesktop.split(u':').contains(u"KDE"_s, Qt::CaseInsensitive);
    if (plasma && kdeAnimationDurationFactor)
        return *kdeAnimationDurationFactor == 0.0;
    if (gnomeEnableAnimations)
        return !*gnomeEnableAnimations;
    if (kdeAnimationDurationFactor)
        return *kdeAnimationDurationFactor == 0.0;
    return false;
}

DesktopAnimationSettings DesktopAnimationSettings::read()
{
    DesktopAnimationSettings settings;
    settings.currentDesktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");

    const QString gsettings = QStandardPaths::findExecutable(u"gsettings"_s);
    if (!gsettings.isEmpty()) {
        QProcess process;
        process.start(gsettings, {u"get"_s, u"org.gnome.desktop.interface"_s, u"enable-animations"_s});
        if (process.waitForFinished(2000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) {
            const QString answer = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
            if (answer == u"true"_s || answer == u"false"_s)
                settings.gnomeEnableAnimations = answer == u"true"_s;
        }
    }

    const QString kdeglobals =
        QStandardPaths::locate(QStandardPaths::GenericConfigLocation, u"kdeglobals"_s, QStandardPaths::LocateFile);
    if (!kdeglobals.isEmpty()) {
        const QSettings file(kdeglobals, QSettings::IniFormat);
        bool ok = false;
        const double factor = file.value(u"KDE/AnimationDurationFactor"_s).toDouble(&ok);
        if (ok && factor >= 0)
            settings.kdeAnimationDurationFactor = factor;
    }
    return settings;
}

ReduceMotionSetting::ReduceMotionSetting(QObject* parent)
    : QObject(parent)
{}

ReduceMotionSetting::~ReduceMotionSetting() = default;

void ReduceMotionSetting::refresh()
{
    if (m_pending.exchange(true))
        return;
    QPointer<ReduceMotionSetting> self(this);
    QThreadPool::globalInstance()->start([self] {
        const bool reduce = DesktopAnimationSettings::read().prefersReducedMotion();
        // Back on the main thread; nothing happens if the setting is gone by then.
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self, reduce] {
                if (!self)
                    return;
                self->m_pending = false;
                self->m_value = reduce;
                Q_EMIT self->refreshed(reduce);
            },
            Qt::QueuedConnection);
    });
}

} // namespace velto
