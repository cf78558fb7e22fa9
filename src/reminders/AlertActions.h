#pragma once

#include "system/Moment.h"

#include <QObject>

class Clock;
class QMenu;
class AlertControls;

/// The context menu of the list of due reminders. It is made when it is first asked for. Its entries have
/// the keys of the buttons, where there is one for the same.
class AlertActions final : public QObject
{
    Q_OBJECT

public:
    /// `clock` and the controls outlive this object.
    AlertActions(const AlertControls& controls, const Clock& clock, QObject* parent = nullptr);

    /// Whether the user is choosing what to do with the selected rows.
    bool isMenuOpen() const;

signals:
    void completeRequested();
    void openRequested();
    /// `moment` lies ahead.
    void remindLaterRequested(Moment moment);
    void dismissRequested();

private:
    void show(const QPoint& place);
    void makeMenu();

    const AlertControls& m_controls;
    const Clock& m_clock;
    QMenu* m_menu = nullptr;
};
