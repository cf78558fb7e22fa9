#include "widgets/QuietLine.h"

#include "widgets/AccessibleControls.h"
#include "widgets/PlainText.h"

#include <QAccessible>
#include <QApplication>
#include <QHideEvent>
#include <QKeyEvent>
#include <QTimer>
#include <chrono>

namespace
{

/// Longer texts are cut: nobody reads more in one line.
constexpr qsizetype MostCharacters = 1000;
/// Who goes on typing is not interrupted.
constexpr std::chrono::milliseconds PauseBeforeAnnouncing(800);

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

/// For keys that are shortcuts only the ShortcutOverride event arrives.
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
    // A click on the line is no click on the page, which would clear it.
    setAttribute(Qt::WA_NoMousePropagation);
    // A long text does not widen the page.
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
        if (m_pause != nullptr) {
            m_pause->stop();
        }
        qApp->installEventFilter(this);
        tell(QAccessible::ObjectShow);
        tell(QAccessible::Alert);
    }
}

void QuietLine::setStanding(const QString& text)
{
    if (text == m_standing) {
        return;
    }
    m_standing = text;
    if (m_pause == nullptr) {
        m_pause = new QTimer(this);
        m_pause->setSingleShot(true);
        m_pause->setInterval(PauseBeforeAnnouncing);
        connect(m_pause, &QTimer::timeout, this, [this] {
            tell(QAccessible::ObjectShow);
            tell(QAccessible::Alert);
        });
    }
    if (!m_said.isEmpty()) {
        return;
    }
    if (text.isEmpty()) {
        m_pause->stop();
        tell(QAccessible::ObjectHide);
    } else {
        m_pause->start();
    }
    fit();
    tell(QAccessible::NameChanged);
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
    // QLabel would align by the direction of its text, which may begin with a name.
    setAlignment(Qt::AlignAbsolute | Qt::AlignVCenter | (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
    const QString whole = shown();
    const QString elided = fontMetrics().elidedText(whole, Qt::ElideMiddle, width());
    setText(elided);
    setToolTip(elided == whole ? QString() : plainToolTip(whole));
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
    // Minimizing the window does not leave the page.
    if (!event->spontaneous()) {
        hush();
    }
}

void QuietLine::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fit();
}
