#include "categories/IconBox.h"

#include "widgets/LetterScale.h"
#include "widgets/Outline.h"

#include <QMouseEvent>
#include <QPainter>

namespace
{

constexpr int PictureEdge = 32;
constexpr int Margin = 5;
constexpr int BorderWidth = 1;
constexpr int FocusWidth = 2;
/// Visible on the white panel under every skin.
const QColor FocusInk(0x0B, 0x5F, 0xC4);

} // namespace

IconBox::IconBox(QWidget* parent) : QRadioButton(parent)
{
    followLetters();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize IconBox::sizeHint() const
{
    return iconSize() + QSize(2 * Margin, 2 * Margin);
}

QSize IconBox::minimumSizeHint() const
{
    return sizeHint();
}

void IconBox::changeEvent(QEvent* event)
{
    QRadioButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        followLetters();
    }
}

void IconBox::followLetters()
{
    const int edge = withLetters(PictureEdge, font());
    setIconSize(QSize(edge, edge));
}

bool IconBox::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

void IconBox::mousePressEvent(QMouseEvent* event)
{
    setChecked(true);
    event->accept();
}

void IconBox::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void IconBox::paintEvent(QPaintEvent* /*event*/)
{
    // Painted by hand in the panel's colours: a skin's radio button does not fit here.
    QPainter painter(this);
    const QRect picture = rect().adjusted(Margin, Margin, -Margin, -Margin);
    icon().paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const QColor line = parentWidget()->palette().color(QPalette::WindowText);
    if (isChecked()) {
        paintOutline(painter, rect(), BorderWidth, line);
    }
    if (hasFocus()) {
        paintOutline(painter, rect().adjusted(2, 2, -2, -2), FocusWidth, FocusInk);
    }
}
