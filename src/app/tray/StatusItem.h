#pragma once

#include "shell/MenuBarPresentation.h"

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>

#include <functional>
#include <memory>
#include <optional>

namespace velto {

// Velto's tray icon and its menu. The icon is redrawn only when what it shows changes; the menu is emptied and
// rebuilt each time it is about to open. Main thread.
class StatusItem final : public QObject {
    Q_OBJECT

public:
    explicit StatusItem(QObject* parent = nullptr);
    ~StatusItem() override;

    // Shows the icon in the tray, once a tray host exists. Until then the picture and texts are kept for it.
    bool setUp();

    void update(const TrayIconFace& face, const TrayAccessibleTexts& texts);
    void rebuildMenu(const QList<StatusMenuItem>& items);

    [[nodiscard]] QMenu* menu() { return &m_menu; }
    [[nodiscard]] QSystemTrayIcon* trayIcon() const { return m_trayIcon.get(); }
    [[nodiscard]] int iconRedraws() const { return m_iconRedraws; }
    [[nodiscard]] QString toolTip() const { return m_toolTip; }

    // Asked right before the menu opens, to rebuild it from a fresh presentation.
    std::function<void()> onMenuNeedsUpdate;
    std::function<void(MenuAction)> onAction;

private:
    QMenu m_menu;
    std::unique_ptr<QSystemTrayIcon> m_trayIcon;
    std::optional<TrayIconFace> m_face;
    QString m_toolTip;
    int m_iconRedraws = 0;
};

} // namespace velto
