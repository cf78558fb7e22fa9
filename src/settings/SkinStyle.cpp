#include "settings/SkinStyle.h"

#include "settings/JoinedText.h"
#include "settings/SkinPainting.h"
#include "settings/SkinPictures.h"
#include "settings/SkinProgress.h"
#include "widgets/LetterScale.h"
#include "widgets/PlainText.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QTextCharFormat>
#include <QWidget>
#include <utility>

namespace
{

constexpr int IndicatorSide = 18;
/// Pixels above and below the text of a one-line field.
constexpr int FieldPadding = 7;
/// Width of the buttons of a time or number field.
constexpr int ButtonsWidth = 18;
constexpr int LeastButtonsWidth = 14;
/// Width of the arrow of a list or date field.
constexpr int ArrowWidth = 20;
/// Pixels around the text of a list, time or number field.
constexpr int FieldFrame = 3;
/// Pixels beside the text of a list, both sides together.
constexpr int LabelMargin = 4;
constexpr int CursorWidth = 2;
/// Pixels between the caption of a tab and the focus ring.
constexpr int TabAir = 12;
constexpr int SmallPicture = 16;
constexpr int LargePicture = 32;
constexpr int BoxPicture = 48;

QColor ink(const QPalette& palette, bool enabled, QPalette::ColorRole role)
{
    return palette.color(enabled ? QPalette::Active : QPalette::Disabled, role);
}

QColor ink(const QStyleOption& option, QPalette::ColorRole role)
{
    return ink(option.palette, option.state.testFlag(QStyle::State_Enabled), role);
}

QFont letters(const QWidget* widget)
{
    return widget == nullptr ? QGuiApplication::font() : widget->font();
}

int buttonsWidth(const QWidget* widget)
{
    return qMax(ButtonsWidth, withLetters(LeastButtonsWidth, letters(widget)));
}

/// The side on which a field has its arrows. A picker reads from left to right, whatever its form does.
Qt::LayoutDirection sideOfArrows(const QStyleOption& option, const QWidget* widget)
{
    const auto* picker = qobject_cast<const QDateTimeEdit*>(widget);
    return picker != nullptr && picker->parentWidget() != nullptr ? picker->parentWidget()->layoutDirection()
                                                                  : option.direction;
}

bool isFieldFrame(const QWidget* widget)
{
    return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

bool isMonthButton(const QWidget* widget)
{
    return widget != nullptr && widget->objectName() == QLatin1String("qt_calendar_monthbutton");
}

} // namespace

SkinStyle::SkinStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

SkinStyle::SkinStyle(Look look) : SkinStyle()
{
    m_look = std::move(look);
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
        drawFocus(*option, *painter, widget);
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

void SkinStyle::drawFocus(const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    if (qobject_cast<const QPushButton*>(widget) != nullptr) {
        paintButtonFocus(painter, widget->rect(), option.palette);
    } else if (qobject_cast<const QTabBar*>(widget) != nullptr) {
        // Qt asks for it close around the caption, where it would cross the letters.
        paintFocusRing(painter, option.rect.adjusted(-TabAir, -TabAir / 2, TabAir, TabAir / 2));
    } else {
        paintFocusRing(painter, option.rect);
    }
}

void SkinStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
    if (control == CC_ComboBox) {
        drawComboBox(*option, *painter, widget);
    } else if (control == CC_ToolButton && button != nullptr && isMonthButton(widget)) {
        // The menu indicator would cover the name of the month.
        QStyleOptionToolButton unmarked = *button;
        unmarked.features.setFlag(QStyleOptionToolButton::HasMenu, false);
        QProxyStyle::drawComplexControl(control, &unmarked, painter, widget);
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

void SkinStyle::drawBusyBar(const QStyleOptionProgressBar& bar, QPainter& to, const QWidget* widget) const
{
    // Painted nowhere, to keep Qt's animation running; its stripes can hardly be seen.
    QPixmap nowhere(1, 1);
    QPainter unseen(&nowhere);
    QProxyStyle::drawControl(CE_ProgressBarContents, &bar, &unseen, widget);
    const auto part = busyPartOf(bar);
    QProxyStyle::drawControl(CE_ProgressBarContents, &part, &to, widget);
}

void SkinStyle::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    if (element == CE_ProgressBarGroove) {
        paintField(*painter, option->rect, *option);
        return;
    }
    const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    if (element == CE_ProgressBarContents && bar != nullptr && bar->minimum == bar->maximum) {
        drawBusyBar(*bar, *painter, widget);
        return;
    }
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (element == CE_ComboBoxLabel && combo != nullptr) {
        QStyleOptionComboBox elided = *combo;
        const int picture = combo->currentIcon.isNull() ? 0 : combo->iconSize.width() + LabelMargin;
        const int room =
            proxy()->subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget).width() - LabelMargin;
        elided.currentText =
            inOwnDirection(combo->fontMetrics.elidedText(combo->currentText, Qt::ElideRight, room - picture));
        QProxyStyle::drawControl(element, &elided, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

QRect SkinStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const
{
    const QRect& all = option->rect;
    if (control == CC_ComboBox && (part == SC_ComboBoxArrow || part == SC_ComboBoxEditField)) {
        const int arrow = withLetters(ArrowWidth, letters(widget));
        const QRect place = part == SC_ComboBoxArrow
            ? QRect(all.right() - arrow + 1, all.top(), arrow, all.height())
            : all.adjusted(FieldFrame, FieldFrame, -FieldFrame - arrow, -FieldFrame);
        return visualRect(sideOfArrows(*option, widget), all, place);
    }
    const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if (control == CC_SpinBox && spin != nullptr && spin->buttonSymbols != QAbstractSpinBox::NoButtons
        && part != SC_SpinBoxFrame) {
        const int width = buttonsWidth(widget);
        const QRect inner = all.adjusted(FieldFrame, FieldFrame, -FieldFrame, -FieldFrame);
        const QRect buttons(inner.right() - width + 1, inner.top(), width, inner.height());
        const int half = buttons.height() / 2;
        const QRect place = part == SC_SpinBoxUp ? buttons.adjusted(0, 0, 0, half - buttons.height())
            : part == SC_SpinBoxDown             ? buttons.adjusted(0, half, 0, 0)
                                                 : inner.adjusted(0, 0, -width, 0);
        return visualRect(sideOfArrows(*option, widget), all, place);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

int SkinStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return withLetters(IndicatorSide, letters(widget));
    case PM_SpinBoxFrameWidth:
    case PM_ComboBoxFrameWidth:
        return FieldFrame;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
        return withLetters(SmallPicture, letters(widget));
    case PM_LargeIconSize:
    case PM_IconViewIconSize:
        return withLetters(LargePicture, letters(widget));
    case PM_MessageBoxIconSize:
        return withLetters(BoxPicture, letters(widget));
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
    if (hint == SH_MenuBar_AltKeyNavigation) {
        // Workaround: with assistive technology Qt 6.4.2 delivers keys late. The Alt of the mnemonic that
        // opened a menu arrives after the menu is open, and must not close it (tst_skins,
        // aMenuStaysOpenWhenTheAltOfItsMnemonicComesLate).
        return 0;
    }
    if (hint == SH_EtchDisabledText || hint == SH_DitherDisabledText
        || hint == SH_DialogButtonBox_ButtonsHaveIcons) {
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
    if (type == CT_ComboBox) {
        const int around = withLetters(ArrowWidth, letters(widget)) + 2 * FieldFrame + 2 * LabelMargin;
        result.setWidth(qMax(result.width(), size.width() + around));
    }
    if (type == CT_SpinBox) {
        const auto* picker = qobject_cast<const QDateTimeEdit*>(widget);
        const bool isDate = picker != nullptr && picker->calendarPopup();
        const int beside = isDate ? withLetters(ArrowWidth, letters(widget)) : buttonsWidth(widget);
        result.setWidth(qMax(result.width(), size.width() + beside + 2 * FieldFrame + CursorWidth));
    }
    return result;
}

QPixmap SkinStyle::generatedIconPixmap(
    QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const
{
    switch (mode) {
    case QIcon::Selected:
        return pixmap;
    case QIcon::Disabled:
        return fadedPicture(pixmap);
    default:
        return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    }
}

QIcon SkinStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    if (qobject_cast<const QCalendarWidget*>(widget) != nullptr
        && (icon == SP_ArrowLeft || icon == SP_ArrowRight)) {
        return headArrow(icon == SP_ArrowLeft ? Qt::LeftArrow : Qt::RightArrow);
    }
    if (isMessagePicture(icon)) {
        return messagePicture(icon);
    }
    return QProxyStyle::standardIcon(icon, option, widget);
}

void SkinStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* calendar = qobject_cast<QCalendarWidget*>(widget)) {
        // The calendar's red is not readable on every background.
        calendar->setWeekdayTextFormat(Qt::Saturday, {});
        calendar->setWeekdayTextFormat(Qt::Sunday, {});
        // Otherwise it would take the direction of its picker.
        calendar->setLayoutDirection(QGuiApplication::layoutDirection());
    }
}

void SkinStyle::polish(QApplication* application)
{
    QProxyStyle::polish(application);
    if (const std::optional<Look> look = std::exchange(m_look, std::nullopt)) {
        // The sheet first: a widget that asks for its style when the palette changes must find the new one.
        application->setStyleSheet(look->sheet);
        QApplication::setPalette(look->palette);
    }
}
