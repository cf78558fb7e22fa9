#pragma once

#include <QLineEdit>

class QTabWidget;
class TasksPage;

/// The field `txtFind` beside the tabs of `tabs`. It is as wide as the tabs leave room, between a few letters
/// and a few words.
class FindField : public QLineEdit
{
    Q_OBJECT

public:
    explicit FindField(const QTabWidget& tabs);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The user has come to the field and may begin to type.
    void entered();
    /// The field has lost the focus, or its text was changed while it had none.
    void exited();
    /// The text has changed, also by a syllable of Hangul that is still being composed.
    void sought(const QString& text);
    /// Escape was pressed, and the text is cleared.
    void left();
    /// Down or Enter was pressed.
    void listWanted();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSize sizeFor(int letters) const;
    void tellText();

    const QTabWidget& m_tabs;
    QString m_composed;
};

/// Puts a FindField beside the tabs and lets it search the task list. `page` is the first page; what is typed
/// while another one is in front turns to it, as does Ctrl+F.
void addFindField(QTabWidget& tabs, TasksPage& page);
