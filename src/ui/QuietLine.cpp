#include "ui/QuietLine.h"

#include "platform/PlainText.h"
#include "ui/AccessibleControls.h"

#include <QAccessible>
#include <QApplication>
#include <QHideEvent>
#include <QKeyEvent>

namespace
{

/// More is not read in one line; a name in it may be of any length.
constexpr qsizetype MostCharacters = 1000;

bool isModifier(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return false;
    }
}

/// Of a key that is a shortcut, only the question who takes it comes by.
bool isAction(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        return !isModifier(static_cast<const QKeyEvent&>(event));
    default:
        return false;
    }
}

} // namespace

QuietLine::QuietLine(const QString& name, QWidget* parent) : QLabel(parent)
{
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    // To click at the line is to read it: that is no press on the page.
    setAttribute(Qt::WA_NoMousePropagation);
    // However much it says, it makes no page wider.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    installAccessibleControls();
}

void QuietLine::say(const QString& text)
{
    if (m_said.isEmpty() && text.isEmpty()) {
        return;
    }
    if (!m_said.isEmpty()) {
        qApp->removeEventFilter(this);
        tell(QAccessible::ObjectHide);
    }
    m_said = withoutMiddle(text, MostCharacters).simplified();
    fit();
    tell(QAccessible::NameChanged);
    if (!m_said.isEmpty()) {
        qApp->installEventFilter(this);
        tell(QAccessible::ObjectShow);
        tell(QAccessible::Alert);
    }
}

void QuietLine::tell(int kind)
{
    if (isVisible()) {
        QAccessibleEvent event(this, static_cast<QAccessible::Event>(kind));
        QAccessible::updateAccessibility(&event);
    }
}

QSize QuietLine::sizeHint() const
{
    return {0, fontMetrics().height()};
}

QSize QuietLine::minimumSizeHint() const
{
    return sizeHint();
}

void QuietLine::fit()
{
    // A label would follow the script of its text, which may begin with a name.
    setAlignment(Qt::AlignAbsolute | Qt::AlignVCenter | (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
    const QString shown = fontMetrics().elidedText(m_said, Qt::ElideMiddle, width());
    setText(shown);
    setToolTip(shown == m_said ? QString() : plainToolTip(m_said));
}

bool QuietLine::isOnPage(const QObject* watched) const
{
    const QWidget* page = parentWidget();
    const auto* widget = qobject_cast<const QWidget*>(watched);
    return widget != nullptr && page != nullptr && (widget == page || page->isAncestorOf(widget));
}

bool QuietLine::eventFilter(QObject* watched, QEvent* event)
{
    if (isAction(*event) && watched != this && isOnPage(watched)) {
        hush();
    }
    return QLabel::eventFilter(watched, event);
}

void QuietLine::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange
        || event->type() == QEvent::LayoutDirectionChange) {
        updateGeometry();
        fit();
    }
}

void QuietLine::hideEvent(QHideEvent* event)
{
    QLabel::hideEvent(event);
    // A window that is minimized is not left.
    if (!event->spontaneous()) {
        hush();
    }
}

void QuietLine::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fit();
}
