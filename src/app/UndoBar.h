#pragma once

#include <QFrame>

class QPushButton;
class QuietLine;
class UndoHistory;

/// The bar under the task list that says what was done last and takes it back. It comes with a change and
/// stays until it is closed or nothing can be taken back or done again any more.
class UndoBar : public QFrame
{
    Q_OBJECT

public:
    /// `history` outlives the bar.
    explicit UndoBar(UndoHistory& history, QWidget* parent = nullptr);

    /// Puts the buttons behind `before`, which is in the same window, in the order of the Tab key.
    void followInTabOrder(QWidget* before);
    /// Takes the last change back; the bar says why when that fails.
    void undo();
    /// Does the change again that was taken back last; as `undo()`.
    void redo();

signals:
    /// The bar has been closed and had the focus.
    void focusLeft();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showSteps();
    void say(const QString& text);
    void leave();

    UndoHistory& m_history;
    QuietLine* m_line;
    QPushButton* m_undo;
    QPushButton* m_redo;
    QPushButton* m_close;
};
