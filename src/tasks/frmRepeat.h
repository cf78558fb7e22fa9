#pragma once

#include "tasks/RepeatControls.h"

#include <QWidget>
#include <functional>

struct FormServices;

/// The window in which a rule of repetition is put together. Modal to the program, loaded once and reused:
/// call `fill`, then show it above its owner. It hides when it is done.
class frmRepeat : public QWidget
{
    Q_OBJECT

public:
    /// How a task repeats by a pattern.
    using RepeatBy = std::function<Repeat(const RepeatPattern& pattern)>;

    /// `services` outlives the form.
    explicit frmRepeat(const FormServices& services);

    /// Shows `pattern` for a task that is due then.
    void fill(const RepeatPattern& pattern, Moment due, RepeatBy repeatBy);

signals:
    /// OK: the form is hidden.
    void chosen(const RepeatPattern& pattern);
    /// Cancel, Escape or the close box: the form is hidden.
    void cancelled();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void connectControls();
    void btnOk_Click();
    void btnCancel_Click();
    /// Enables what counts and shows what it comes to.
    void follow();
    QString momentsText(const RepeatInput& entered) const;
    QWidget* controlOf(RepeatInput::Field field) const;

    const FormServices& m_services;
    RepeatControls m_controls;
    Moment m_due{};
    RepeatBy m_repeatBy;
};
