#pragma once

#include <QAction>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QTest>

/// The context menu of a list: it opens by the menu key, for what is selected.
class ContextMenu
{
public:
    /// `list` outlives this object and is the parent of the menu, which is made when it is first asked for.
    ContextMenu(QWidget& list, const char* name) : m_list(list), m_name(name) { }

    /// Opens the menu.
    QMenu* open() const
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(&m_list, &event);
        return m_list.findChild<QMenu*>(m_name);
    }
    /// Opens the menu; null when it has no entry of that name.
    QAction* entry(const char* name) const
    {
        for (QAction* action : open()->actions()) {
            if (action->objectName() == QLatin1String(name)) {
                return action;
            }
        }
        return nullptr;
    }
    void trigger(const char* name) const { entry(name)->trigger(); }
    /// Chooses from the menu below an entry.
    void chooseFrom(const char* name, const QString& caption) const
    {
        for (QAction* action : entry(name)->menu()->actions()) {
            if (action->text() == caption) {
                action->trigger();
                return;
            }
        }
        QFAIL(qPrintable(caption));
    }

private:
    QWidget& m_list;
    QLatin1String m_name;
};
