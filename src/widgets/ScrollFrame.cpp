#include "widgets/ScrollFrame.h"

#include "widgets/WindowPlacement.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

namespace
{

/// Pixels for lines and frames around the content of a window.
constexpr int Lines = 8;
/// Pixels to show around a control that is scrolled into view.
constexpr int Margin = 50;

} // namespace

ScrollFrame::ScrollFrame(QWidget* content, QList<const QWidget*> beside, QWidget* parent)
    : ScrollFrame(std::move(beside))
{
    setParent(parent);
    hold(content);
}

ScrollFrame::ScrollFrame(QList<const QWidget*> beside) : m_beside(std::move(beside))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) {
        if (now != nullptr && isAncestorOf(now)) {
            reveal(*now);
        }
    });
}

void ScrollFrame::hold(QWidget* content)
{
    setWidget(content);
    // The background is the window's.
    content->setAutoFillBackground(false);
    updateGeometry();
}

QSize ScrollFrame::sizeHint() const
{
    return widget() == nullptr ? QSize() : boundedToScreen(widget()->sizeHint());
}

QSize ScrollFrame::minimumSizeHint() const
{
    if (widget() == nullptr) {
        return {};
    }
    return boundedToScreen(widget()->minimumSizeHint().expandedTo(widget()->minimumSize()));
}

QSize ScrollFrame::boundedToScreen(QSize size) const
{
    const auto metric = [this](QStyle::PixelMetric which) {
        return style()->pixelMetric(which, nullptr, window());
    };
    QSize room = roomFor(*window())
        - QSize(metric(QStyle::PM_LayoutLeftMargin) + metric(QStyle::PM_LayoutRightMargin) + Lines,
            metric(QStyle::PM_LayoutTopMargin) + metric(QStyle::PM_LayoutBottomMargin) + Lines);
    const int spacing = window()->layout() == nullptr ? 0 : window()->layout()->spacing();
    for (const QWidget* other : m_beside) {
        room.rheight() -= other->sizeHint().height() + spacing;
    }
    // A scroll bar takes room in the other direction.
    if (size.height() > room.height()) {
        size.rwidth() += verticalScrollBar()->sizeHint().width();
    }
    if (size.width() > room.width()) {
        size.rheight() += horizontalScrollBar()->sizeHint().height();
    }
    return size.boundedTo(room);
}

void ScrollFrame::reveal(const QWidget& shown)
{
    // In a list or a text the place of the cursor, of any other control the whole.
    const QVariant place = shown.inputMethodQuery(Qt::ImCursorRectangle);
    const bool hasPlace = place.toRect() != shown.QWidget::inputMethodQuery(Qt::ImCursorRectangle).toRect();
    QRect wanted = hasPlace ? place.toRect() : shown.rect();
    wanted.translate(shown.mapTo(widget(), QPoint()));
    // Workaround: from right to left QScrollArea::ensureVisible() of Qt 6.4.2 counts from the wrong side
    // (tst_qt_workarounds, aScrollAreaRevealsTheWrongSideFromRightToLeft).
    wanted = QStyle::visualRect(layoutDirection(), widget()->rect(), wanted);
    const auto bring = [](QScrollBar* bar, int begin, int end, int room) {
        if (begin < bar->value() || end - begin > room) {
            bar->setValue(begin);
        } else if (end > bar->value() + room) {
            bar->setValue(end - room);
        }
    };
    wanted.adjust(-Margin, -Margin, Margin, Margin);
    bring(horizontalScrollBar(), wanted.left(), wanted.right(), viewport()->width());
    bring(verticalScrollBar(), wanted.top(), wanted.bottom(), viewport()->height());
}

bool ScrollFrame::event(QEvent* event)
{
    if (event->type() == QEvent::ScreenChangeInternal) {
        updateGeometry();
    }
    return QScrollArea::event(event);
}

bool ScrollFrame::eventFilter(QObject* watched, QEvent* event)
{
    // Makes the layout around this frame ask for the new size of the content.
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}
