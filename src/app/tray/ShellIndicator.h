#pragma once

#include "shell/MenuBarPresentation.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace velto {

// What a top-bar indicator drawn by the desktop shell needs where no tray exists (Velto's GNOME Shell
// extension): the tray icon's picture and texts, the tray menu's items, and a way to run them. The shell asks
// when told that something changed; until it has asked once, nothing is announced. Main thread.
class ShellIndicator final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.velto.app.Indicator1")

public:
    static constexpr QLatin1StringView objectPath{"/com/velto/app/Indicator"};

    explicit ShellIndicator(QObject* parent = nullptr);
    ~ShellIndicator() override;

    bool registerOn(QDBusConnection bus);

    // Announces a change only when the picture or the texts differ from the last ones.
    void update(const TrayIconFace& face, const TrayAccessibleTexts& texts);

    // The tray menu's items, built afresh when asked.
    std::function<QList<StatusMenuItem>()> menuItems;
    std::function<void(MenuAction)> onAction;

public Q_SLOTS:
    // The icon as PNG, size pixels square (16 to 96).
    Q_SCRIPTABLE QByteArray icon(int size);
    // The spoken name and value, as the tray item carries them.
    Q_SCRIPTABLE QString texts(QString& value);
    // One map per item: title, action (empty for none), enabled, separator. Shell menus go without icons.
    Q_SCRIPTABLE QList<QVariantMap> menu();
    Q_SCRIPTABLE void activate(const QString& action);

Q_SIGNALS:
    Q_SCRIPTABLE void changed();

private:
    std::optional<TrayIconFace> m_face;
    TrayAccessibleTexts m_texts;
    bool m_asked = false;
    QDBusConnection m_bus{QString()};
};

} // namespace velto
