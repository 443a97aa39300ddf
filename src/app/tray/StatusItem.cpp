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
    m_trayIcon->setToolTip(u"Velto"_s);
    // A tray icon is the whole interface, so a plain click opens the menu as well.
    connect(m_trayIcon.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger && !m_menu.isVisible())
            m_menu.popup(QCursor::pos());
    });
    m_face.reset();
    m_trayIcon->setIcon(TrayIconPainter::icon({}));
    m_trayIcon->show();
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void StatusItem::update(const MenuBarPresentation& presentation, const TrayIconFace& face)
{
    if (!m_trayIcon)
        return;
    if (m_face != face) {
        m_face = face;
        ++m_iconRedraws;
        m_trayIcon->setIcon(TrayIconPainter::icon(face));
    }
    // Trays have no separate accessible texts, so the tooltip names Velto and says what the menu's first line
    // says. It counts whole minutes like the icon: a text that changed every second would wake the tray host
    // (and Velto's bus thread) every second for a tooltip hardly anyone is looking at.
    QString toolTip = u"Velto"_s;
    if (face.showsTimer)
        toolTip += u" \u00B7 "_s + face.label + (face.label.endsWith(u'h') ? u""_s : u" min"_s) + u" left"_s;
    toolTip += u"\n"_s + presentation.statusText;
    if (toolTip != m_toolTip) {
        m_toolTip = toolTip;
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
