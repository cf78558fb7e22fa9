#pragma once

#include "tasks/RepeatChoices.h"

#include <QObject>
#include <memory>

class TaskDetailsControls;
class frmRepeat;
struct FormServices;

/// Fills `cmbRepeat` of the task dialog, each entry with its rule as its data, and keeps it in step with the
/// due moment. Opens the window for other rules.
class RepeatByHand : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive this object.
    RepeatByHand(QWidget& form, const TaskDetailsControls& controls, const FormServices& services);
    ~RepeatByHand() override;

    // Both take the due moment from the pickers, and close the other window.
    void reset();
    void load(const Repeat& repeat);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Moment due() const;
    void followDue();
    /// Lists the entries and selects the one that is chosen.
    void show();
    void choose(int index);
    void openWindow();
    void closeWindow();

    QWidget& m_form;
    const TaskDetailsControls& m_controls;
    const FormServices& m_services;
    RepeatChoices m_choices;
    std::unique_ptr<frmRepeat> m_window;
};
