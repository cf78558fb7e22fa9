#include "reminders/AlertActions.h"

#include "reminders/AlertControls.h"
#include "reminders/UsualMoments.h"
#include "widgets/GridView.h"
#include "widgets/MenuPlace.h"
#include "widgets/MomentMenu.h"
#include "widgets/NamedControls.h"

#include <QMenu>
#include <QPushButton>

AlertActions::AlertActions(const AlertControls& controls, const Clock& clock, QObject* parent)
    : QObject(parent), m_controls(controls), m_clock(clock)
{
    connect(controls.grdTasks, &GridView::menuRequested, this, &AlertActions::show);
}

bool AlertActions::isMenuOpen() const
{
    return m_menu != nullptr && m_menu->isVisible();
}

void AlertActions::makeMenu()
{
    m_menu = named(new QMenu(m_controls.grdTasks), "mnuAlert");
    const auto add = [this](const char* name, const QString& caption, const QKeySequence& keys = {}) {
        QAction* entry = named(m_menu->addAction(caption), name);
        // Only shown here: the button acts on them.
        entry->setShortcut(keys);
        entry->setShortcutVisibleInContextMenu(true);
        return entry;
    };
    connect(add("mnuAlertComplete", tr("&Complete")), &QAction::triggered, this,
        &AlertActions::completeRequested);
    connect(add("mnuAlertOpenItem", tr("&Open Item"), m_controls.btnOpenItem->shortcut()),
        &QAction::triggered, this, &AlertActions::openRequested);
    auto* later = new MomentMenu(m_menu);
    addUsualMoments(*later, m_clock);
    later->setTitle(tr("&Remind me later"));
    later->menuAction()->setObjectName(QStringLiteral("mnuAlertRemindMeLater"));
    m_menu->addMenu(later);
    connect(later, &MomentMenu::momentChosen, this, &AlertActions::remindLaterRequested);
    connect(add("mnuAlertDismiss", tr("&Dismiss"), m_controls.btnDismiss->shortcut()), &QAction::triggered,
        this, &AlertActions::dismissRequested);
}

void AlertActions::show(const QPoint& place)
{
    if (m_menu == nullptr) {
        makeMenu();
    }
    const bool hasTask = m_controls.grdTasks->selectedRow() >= 0;
    for (QAction* entry : m_menu->actions()) {
        entry->setEnabled(hasTask);
    }
    popUpAt(*m_menu, place);
}
