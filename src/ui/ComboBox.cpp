#include "ui/ComboBox.h"

#include "ui/AccessibleControls.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyleHints>

namespace
{

bool writesLetter(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().front().isPrint()
        && !event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

} // namespace

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent)
{
    installAccessibleControls();
}

void ComboBox::choose(int row)
{
    if (!isEnabled() || row < 0 || row >= count()) {
        return;
    }
    hidePopup();
    setCurrentIndex(row);
    emit activated(row);
    emit textActivated(itemText(row));
}

bool ComboBox::goesOnWriting(const QKeyEvent& event) const
{
    const auto patience = static_cast<quint64>(QGuiApplication::styleHints()->keyboardInputInterval());
    return m_lastLetter.has_value() && event.timestamp() - *m_lastLetter < patience;
}

void ComboBox::keyPressEvent(QKeyEvent* event)
{
    if (!writesLetter(*event)) {
        m_lastLetter.reset();
        QComboBox::keyPressEvent(event);
        return;
    }
    const bool opensList = event->key() == Qt::Key_Space && !goesOnWriting(*event);
    if (opensList) {
        m_lastLetter.reset();
        QComboBox::keyPressEvent(event);
        return;
    }
    m_lastLetter = event->timestamp();
    if (event->key() != Qt::Key_Space) {
        QComboBox::keyPressEvent(event);
        return;
    }
    // As a letter among others; the toolkit tells the key that opens the list by its code.
    QKeyEvent blank(QEvent::KeyPress, Qt::Key_nobreakspace, event->modifiers(), event->text());
    QComboBox::keyPressEvent(&blank);
}
