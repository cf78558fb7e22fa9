#include "app/UndoBar.h"

#include "data/UndoHistory.h"
#include "system/RuntimeError.h"
#include "widgets/NamedControls.h"
#include "widgets/PlainText.h"
#include "widgets/QuietLine.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPushButton>

namespace
{

/// "3 tasks deleted (Ctrl+Z)".
QString tipFor(const QString& step, const QKeySequence& keys)
{
    return plainToolTip(QStringLiteral("%1 (%2)").arg(step, keys.toString(QKeySequence::NativeText)));
}

/// Gives the focus of `from` to `to`.
void passFocus(const QWidget& from, QWidget& to)
{
    if (from.window()->focusWidget() == &from) {
        to.setFocus(Qt::OtherFocusReason);
    }
}

} // namespace

UndoBar::UndoBar(UndoHistory& history, QWidget* parent)
    : QFrame(parent), m_history(history), m_line(new QuietLine(QStringLiteral("lblUndo"), this)),
      m_undo(named(new QPushButton(tr("U&ndo")), "btnUndo")),
      m_redo(named(new QPushButton(tr("&Redo")), "btnRedo")),
      m_close(named(new QPushButton(tr("&Close")), "btnUndoClose"))
{
    setObjectName(QStringLiteral("barUndo"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 4, 4, 4);
    layout->addWidget(m_line, 1);
    layout->addWidget(m_undo);
    layout->addWidget(m_redo);
    layout->addWidget(m_close);
    window()->installEventFilter(this);
    connect(m_undo, &QPushButton::clicked, this, &UndoBar::undo);
    connect(m_redo, &QPushButton::clicked, this, &UndoBar::redo);
    connect(m_close, &QPushButton::clicked, this, &UndoBar::leave);
    connect(&m_history, &UndoHistory::stepsChanged, this, &UndoBar::showSteps);
    showSteps();
}

void UndoBar::followInTabOrder(QWidget* before)
{
    setTabOrder(before, m_undo);
    setTabOrder(m_undo, m_redo);
    setTabOrder(m_redo, m_close);
}

bool UndoBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const QKeySequence keys(key.keyCombination());
        // A held mnemonic would press its button again and again.
        if (key.isAutoRepeat() && (keys == m_undo->shortcut() || keys == m_redo->shortcut())) {
            event->accept();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void UndoBar::undo()
{
    try {
        const QString step = m_history.undoText();
        m_history.undo();
        if (!step.isEmpty()) {
            say(tr("Undone: %1").arg(step));
        }
    } catch (const RuntimeError& error) {
        say(tr("Not undone: %1").arg(error.text()));
    }
}

void UndoBar::redo()
{
    try {
        m_history.redo();
    } catch (const RuntimeError& error) {
        say(tr("Not done again: %1").arg(error.text()));
    }
}

void UndoBar::showSteps()
{
    const QString done = m_history.undoText();
    const QString undone = m_history.redoText();
    // Before one of the two goes the keys pass to the other one; Qt would hand them to "Close".
    if (done.isEmpty() && !undone.isEmpty()) {
        m_redo->show();
        passFocus(*m_undo, *m_redo);
    } else if (undone.isEmpty() && !done.isEmpty()) {
        m_undo->setEnabled(true);
        passFocus(*m_redo, *m_undo);
    }
    m_undo->setEnabled(!done.isEmpty());
    m_undo->setToolTip(done.isEmpty() ? QString() : tipFor(done, QKeySequence::Undo));
    m_redo->setVisible(!undone.isEmpty());
    m_redo->setToolTip(undone.isEmpty() ? QString() : tipFor(undone, Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    // The buttons stay, so what they are about does, too.
    m_line->setStanding(done.isEmpty() && !undone.isEmpty() ? tr("Undone: %1").arg(undone) : done);
    // Last: the bar may come again to say why a step was forgotten.
    if (done.isEmpty() && undone.isEmpty()) {
        leave();
    } else {
        say(done);
    }
}

void UndoBar::say(const QString& text)
{
    // Shown first: assistive technology hears only what is on the screen.
    show();
    m_line->say(text);
}

void UndoBar::leave()
{
    const QWidget* focused = window()->focusWidget();
    const bool hadFocus = focused != nullptr && isAncestorOf(focused);
    hide();
    if (hadFocus) {
        emit focusLeft();
    }
}
