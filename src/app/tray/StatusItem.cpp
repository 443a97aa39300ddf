#include "StatusItem.h"

#include "MenuSymbols.h"
#include "TrayIconPainter.h"

#include <QAction>
#include <QCursor>
#include <QKeySequence>

using namespace Qt::Literals::StringLiterals;

namespace velto {

StatusItem::StatusItem(QObject* parent)
    : QObject(parent)
{
    m_menu.setTitle(u"Velto"_s);
    connect(&m_menu, &QMenu::aboutToShow, this, [this] {
        if (onMenuNeedsUpdate)
            onMenuNeedsUpdate();
    });
}

StatusItem::~StatusItem() = default;

bool StatusItem::setUp()
{
    if (m_trayIcon)
        return true;
    m_trayIcon = std::make_unique<QSystemTrayIcon>();
    m_trayIcon->setContextMenu(&m_menu);
    // A tray icon is the whole interface, so a plain click opens the menu as well.
    connect(m_trayIcon.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger && !m_menu.isVisible())
            m_menu.popup(QCursor::pos());
    });
    // What was computed before a tray existed is shown as it stands.
    m_trayIcon->setToolTip(m_toolTip.isEmpty() ? u"Velto"_s : m_toolTip);
    m_trayIcon->setIcon(TrayIconPainter::icon(m_face.value_or(TrayIconFace{})));
    m_trayIcon->show();
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void StatusItem::update(const TrayIconFace& face, const TrayAccessibleTexts& texts)
{
    if (m_face != face) {
        m_face = face;
        ++m_iconRedraws;
        if (m_trayIcon)
            m_trayIcon->setIcon(TrayIconPainter::icon(face));
    }
    // Tray hosts take no accessible texts of their own: screen readers speak the item's tooltip, so it carries
    // the label and the value, in whole minutes.
    const QString toolTip = texts.label + u"\n"_s + texts.value;
    if (toolTip != m_toolTip) {
        m_toolTip = toolTip;
        if (m_trayIcon)
            m_trayIcon->setToolTip(toolTip);
    }
}

void StatusItem::rebuildMenu(const QList<StatusMenuItem>& items)
{
    m_menu.clear();
    const QColor tint = m_menu.palette().color(QPalette::WindowText);
    for (const auto& item : items) {
        if (item.isSeparator) {
            m_menu.addSeparator();
            continue;
        }
        QAction* action = m_menu.addAction(item.title);
        if (!item.symbolName.isEmpty())
            action->setIcon(MenuSymbols::icon(item.symbolName, tint));
        if (!item.shortcut.isEmpty())
            action->setShortcut(QKeySequence(item.shortcut));
        action->setEnabled(item.isEnabled);
        if (item.action != MenuAction::None) {
            const MenuAction what = item.action;
            connect(action, &QAction::triggered, this, [this, what] {
                if (onAction)
                    onAction(what);
            });
        }
    }
}

} // namespace velto
