#include "settings/SkinStyle.h"

#include "settings/JoinedText.h"
#include "settings/SkinPainting.h"

#include <QAbstractScrollArea>
#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTextCharFormat>
#include <QWidget>

namespace
{

constexpr int IndicatorSide = 18;
/// Above and below the text of a one-line field.
constexpr int FieldPadding = 7;
constexpr int ButtonsWidth = 22;

/// A chevron in the colour of text on the accent, as the calendar's head is; it follows a change of skin.
class HeadArrowEngine final : public QIconEngine
{
public:
    explicit HeadArrowEngine(Qt::ArrowType direction) : m_direction(direction) { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        const QColor ink = QGuiApplication::palette().color(QPalette::HighlightedText);
        paintArrow(*painter, rect, m_direction, ink);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new HeadArrowEngine(*this); }

private:
    Qt::ArrowType m_direction;
};

QColor ink(const QPalette& palette, bool enabled, QPalette::ColorRole role)
{
    return palette.color(enabled ? QPalette::Active : QPalette::Disabled, role);
}

QColor ink(const QStyleOption& option, QPalette::ColorRole role)
{
    return ink(option.palette, option.state.testFlag(QStyle::State_Enabled), role);
}

bool isFieldFrame(const QWidget* widget)
{
    return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

/// The width in which a picker of that size has room for a text of `textWidth`. It is drawn as a list, whose
/// arrow grows with the resolution, and hints at its size as a spin box, whose buttons do not.
int calendarPickerWidth(int textWidth, QSize size, const QDateTimeEdit& picker)
{
    constexpr int CursorWidth = 2;
    QStyleOptionComboBox option;
    option.initFrom(&picker);
    option.rect = QRect(QPoint(), size);
    const QRect written =
        picker.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &picker);
    return textWidth + size.width() - written.width() + CursorWidth;
}

} // namespace

SkinStyle::SkinStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void SkinStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        paintCheckBox(*painter, option->rect, *option);
        return;
    case PE_IndicatorRadioButton:
        paintRadioButton(*painter, option->rect, *option);
        return;
    case PE_IndicatorArrowUp:
        paintArrow(*painter, option->rect, Qt::UpArrow, ink(*option, QPalette::ButtonText));
        return;
    case PE_IndicatorArrowDown:
        paintArrow(*painter, option->rect, Qt::DownArrow, ink(*option, QPalette::ButtonText));
        return;
    case PE_IndicatorArrowLeft:
        paintArrow(*painter, option->rect, Qt::LeftArrow, ink(*option, QPalette::ButtonText));
        return;
    case PE_IndicatorArrowRight:
        paintArrow(*painter, option->rect, Qt::RightArrow, ink(*option, QPalette::ButtonText));
        return;
    case PE_FrameFocusRect:
        paintFocusRing(*painter, option->rect);
        return;
    case PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame != nullptr && frame->lineWidth > 0) {
            paintField(*painter, option->rect, *option);
            return;
        }
        break;
    case PE_FrameLineEdit:
        paintFieldFrame(*painter, option->rect, *option);
        return;
    case PE_Frame:
        if (isFieldFrame(widget)) {
            paintFieldFrame(*painter, option->rect, *option);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void SkinStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    if (control == CC_ComboBox) {
        drawComboBox(*option, *painter, widget);
    } else if (control == CC_SpinBox) {
        drawSpinBox(*option, *painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void SkinStyle::drawComboBox(
    const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const
{
    paintField(painter, option.rect, option);
    paintArrow(painter, proxy()->subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget),
        Qt::DownArrow, ink(option, QPalette::Text));
}

void SkinStyle::drawSpinBox(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const
{
    const auto* spinBox = qstyleoption_cast<const QStyleOptionSpinBox*>(&option);
    if (spinBox == nullptr || spinBox->frame) {
        paintField(painter, option.rect, option);
    }
    if (spinBox == nullptr || spinBox->buttonSymbols == QAbstractSpinBox::NoButtons) {
        return;
    }
    const auto paintButton = [&](SubControl button, QAbstractSpinBox::StepEnabledFlag step,
                                 Qt::ArrowType direction) {
        const bool enabled = option.state.testFlag(State_Enabled) && spinBox->stepEnabled.testFlag(step);
        paintArrow(painter, proxy()->subControlRect(CC_SpinBox, &option, button, widget), direction,
            ink(option.palette, enabled, QPalette::Text));
    };
    paintButton(SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, Qt::UpArrow);
    paintButton(SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, Qt::DownArrow);
}

void SkinStyle::drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
    bool enabled, const QString& text, QPalette::ColorRole role) const
{
    if (!(flags & Qt::TextShowMnemonic) || !hasJoinedLetters(text)) {
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
        return;
    }
    const int unmarked = (flags & ~Qt::TextShowMnemonic) | Qt::TextHideMnemonic;
    QProxyStyle::drawItemText(painter, rect, unmarked, palette, enabled, text, role);
    painter->save();
    if (role != QPalette::NoRole) {
        painter->setPen(palette.color(role));
    }
    underlineMnemonic(*painter, itemTextRect(painter->fontMetrics(), rect, unmarked, enabled, text), text);
    painter->restore();
}

int SkinStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return IndicatorSide;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
    case PM_DefaultFrameWidth:
        // Room for the focus ring around lists and edits.
        return isFieldFrame(widget) ? 2 : QProxyStyle::pixelMetric(metric, option, widget);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int SkinStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const
{
    if (hint == SH_Table_GridLineColor && option != nullptr) {
        return static_cast<int>(option->palette.color(QPalette::Midlight).rgba());
    }
    if (hint == SH_EtchDisabledText || hint == SH_DitherDisabledText) {
        return 0;
    }
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

QSize SkinStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_LineEdit || type == CT_ComboBox || type == CT_SpinBox) {
        result.setHeight(qMax(result.height(), option->fontMetrics.height() + 2 * FieldPadding));
    }
    if (type == CT_SpinBox) {
        result.rwidth() += ButtonsWidth - 16;
        if (const auto* picker = qobject_cast<const QDateTimeEdit*>(widget);
            picker != nullptr && picker->calendarPopup()) {
            result.setWidth(qMax(result.width(), calendarPickerWidth(size.width(), result, *picker)));
        }
    }
    return result;
}

QIcon SkinStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    if (qobject_cast<const QCalendarWidget*>(widget) != nullptr
        && (icon == SP_ArrowLeft || icon == SP_ArrowRight)) {
        return QIcon(new HeadArrowEngine(icon == SP_ArrowLeft ? Qt::LeftArrow : Qt::RightArrow));
    }
    return QProxyStyle::standardIcon(icon, option, widget);
}

void SkinStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* calendar = qobject_cast<QCalendarWidget*>(widget)) {
        // The calendar's own red is not readable on every ground.
        calendar->setWeekdayTextFormat(Qt::Saturday, {});
        calendar->setWeekdayTextFormat(Qt::Sunday, {});
    }
}
