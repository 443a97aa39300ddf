#include "DesktopSettings.h"

#include <QCoreApplication>
#include <QPointer>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QThreadPool>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

template <typename T>
bool preferPlasma(const QString& currentDesktop, const std::optional<T>& kde, const std::optional<bool>& gnome,
                  bool (*fromKde)(T), bool (*fromGnome)(bool))
{
    const bool plasma = currentDesktop.split(u':').contains(u"KDE"_s, Qt::CaseInsensitive);
    if (plasma && kde)
        return fromKde(*kde);
    if (gnome)
        return fromGnome(*gnome);
    if (kde)
        return fromKde(*kde);
    return false;
}

std::optional<bool> gsettingsBoolean(const QString& gsettings, const QString& schema, const QString& key)
{
    QProcess process;
    process.start(gsettings, {u"get"_s, schema, key});
    if (!process.waitForFinished(2000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return std::nullopt;
    const QString answer = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    if (answer == u"true"_s)
        return true;
    if (answer == u"false"_s)
        return false;
    return std::nullopt;
}

QString configFile(const QString& name)
{
    return QStandardPaths::locate(QStandardPaths::GenericConfigLocation, name, QStandardPaths::LocateFile);
}

} // namespace

bool DesktopSettings::prefersReducedMotion() const
{
    return preferPlasma<double>(
        currentDesktop, kdeAnimationDurationFactor, gnomeEnableAnimations, [](double factor) { return factor == 0.0; },
        [](bool enabled) { return !enabled; });
}

bool DesktopSettings::touchpadScrollsNaturally() const
{
    return preferPlasma<bool>(
        currentDesktop, kdeTouchpadNaturalScroll, gnomeTouchpadNaturalScroll, [](bool natural) { return natural; },
        [](bool natural) { return natural; });
}

DesktopSettings DesktopSettings::read()
{
    DesktopSettings settings;
    settings.currentDesktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");

    const QString gsettings = QStandardPaths::findExecutable(u"gsettings"_s);
    if (!gsettings.isEmpty()) {
        settings.gnomeEnableAnimations =
            gsettingsBoolean(gsettings, u"org.gnome.desktop.interface"_s, u"enable-animations"_s);
        settings.gnomeTouchpadNaturalScroll =
            gsettingsBoolean(gsettings, u"org.gnome.desktop.peripherals.touchpad"_s, u"natural-scroll"_s);
    }

    if (const QString kdeglobals = configFile(u"kdeglobals"_s); !kdeglobals.isEmpty()) {
        const QSettings file(kdeglobals, QSettings::IniFormat);
        bool ok = false;
        const double factor = file.value(u"KDE/AnimationDurationFactor"_s).toDouble(&ok);
        if (ok && factor >= 0)
            settings.kdeAnimationDurationFactor = factor;
    }

    // Plasma keeps one group per input device; any touchpad set to natural scrolling counts.
    if (const QString kcminputrc = configFile(u"kcminputrc"_s); !kcminputrc.isEmpty()) {
        const QSettings file(kcminputrc, QSettings::IniFormat);
        for (const QString& key : file.allKeys()) {
            if (key.startsWith(u"Libinput/"_s) && key.endsWith(u"/NaturalScroll"_s) &&
                key.contains(u"touchpad"_s, Qt::CaseInsensitive)) {
                const bool natural = file.value(key).toString() == u"true"_s;
                settings.kdeTouchpadNaturalScroll = settings.kdeTouchpadNaturalScroll.value_or(false) || natural;
            }
        }
    }
    return settings;
}

DesktopSettingsCache::DesktopSettingsCache(QObject* parent)
    : QObject(parent)
{}

DesktopSettingsCache::~DesktopSettingsCache() = default;

void DesktopSettingsCache::refresh()
{
    if (m_pending.exchange(true))
        return;
    QPointer<DesktopSettingsCache> self(this);
    QThreadPool::globalInstance()->start([self] {
        const DesktopSettings settings = DesktopSettings::read();
        const bool reduce = settings.prefersReducedMotion();
        const bool natural = settings.touchpadScrollsNaturally();
        // Back on the main thread; nothing happens if the cache is gone by then.
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self, reduce, natural] {
                if (!self)
                    return;
                self->m_pending = false;
                self->m_reduceMotion = reduce;
                self->m_naturalScrolling = natural;
                Q_EMIT self->refreshed();
            },
            Qt::QueuedConnection);
    });
}

} // namespace velto
