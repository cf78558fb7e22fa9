#include "app/FilterFold.h"

#include "widgets/NamedControls.h"
#include "widgets/PlainText.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

namespace
{

constexpr int FrameWidth = 3;

/// Shows as much of its text as it has room for, and never asks for more.
class ElidedLabel final : public QLabel
{
public:
    using QLabel::QLabel;

    QSize sizeHint() const override { return {0, fontMetrics().height()}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
        style()->drawItemText(&painter, rect(),
            static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)),
            palette(), isEnabled(), shown, foregroundRole());
    }
};

} // namespace

FilterFold::FilterFold(QWidget* parent)
    : QWidget(parent), m_frames(new QHBoxLayout), m_button(named(new QToolButton(this), "btnFold"))
{
    m_button->setCheckable(true);
    m_button->setAutoRaise(true);
    // Under a style sheet an icon as large as usual asks for more room than the arrow needs.
    const int side = fontMetrics().height();
    m_button->setIconSize(QSize(side, side));
    // The button stands over the upper corner of the frames, and at the end of the line.
    m_corner = new QVBoxLayout;
    m_corner->addWidget(m_button);
    m_corner->addStretch();
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->setColumnStretch(0, 1);
    layout->addLayout(m_frames, 0, 0, 1, 2);
    layout->addLayout(m_corner, 0, 1);
    connect(m_button, &QToolButton::clicked, this, &FilterFold::btnFold_Click);
    dressButton();
}

void FilterFold::addFrame(QWidget* frame, int stretch)
{
    // Left alone: told to be visible, it would lay itself out before it has its style.
    m_frames->addWidget(frame, stretch);
    m_button->raise();
}

bool FilterFold::isFolded() const
{
    return m_button->isChecked();
}

void FilterFold::setFolded(bool folded)
{
    if (folded != isFolded()) {
        m_button->setChecked(folded);
        followFold();
    }
}

void FilterFold::setLine(const QString& text)
{
    m_text = text;
    if (m_line != nullptr) {
        m_line->setText(text);
        m_line->setToolTip(plainToolTip(text));
    }
}

void FilterFold::makeLine()
{
    m_line = named(new ElidedLabel, "lblFilters");
    m_line->setTextFormat(Qt::PlainText);
    m_line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setLine(m_text);
    static_cast<QGridLayout*>(layout())->addWidget(m_line, 0, 0);
}

void FilterFold::btnFold_Click()
{
    // A click does not take the focus from the list, but a control that goes must not leave it to chance.
    const QWidget* focused = window()->focusWidget();
    if (isFolded() && isAncestorOf(focused) && focused != m_button) {
        m_button->setFocus(Qt::OtherFocusReason);
    }
    followFold();
    emit foldChanged();
}

void FilterFold::followFold()
{
    for (int index = 0; index < m_frames->count(); ++index) {
        m_frames->itemAt(index)->widget()->setVisible(!isFolded());
    }
    if (m_line == nullptr) {
        makeLine();
    }
    m_line->setVisible(isFolded());
    dressButton();
}

void FilterFold::dressButton()
{
    const QString does = isFolded() ? tr("Unfold the filters") : tr("Fold the filters away");
    m_button->setAccessibleName(does);
    m_button->setToolTip(does);
    const int frame = isFolded() ? 0 : FrameWidth;
    m_corner->setContentsMargins(0, frame, frame, 0);
    pointArrow();
}

void FilterFold::pointArrow()
{
    const Qt::ArrowType forward = isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow;
    m_button->setArrowType(isFolded() ? forward : Qt::DownArrow);
}

void FilterFold::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        pointArrow();
    }
}
