#include "platform/ScrollFrame.h"

#include "platform/WindowPlacement.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

namespace
{

/// Lines and frames around what stands in a window.
constexpr int Lines = 8;

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
            ensureWidgetVisible(now);
        }
    });
}

void ScrollFrame::hold(QWidget* content)
{
    setWidget(content);
    // The ground is the window's.
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
    // A bar takes its place from the other direction.
    if (size.height() > room.height()) {
        size.rwidth() += verticalScrollBar()->sizeHint().width();
    }
    if (size.width() > room.width()) {
        size.rheight() += horizontalScrollBar()->sizeHint().height();
    }
    return size.boundedTo(room);
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
    // The layout around asks again when what it holds wants another size.
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}
