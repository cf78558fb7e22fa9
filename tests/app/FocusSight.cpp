#include "tests/app/FocusSight.h"

#include "support/Contrast.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>

namespace
{

constexpr double Owed = 2;
constexpr int RoundCorners = 20;

bool isReachedByTab(const QWidget& widget, const QWidget& window)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled() && widget.isVisibleTo(&window)
        && widget.window() == &window && widget.focusProxy() == nullptr && !widget.visibleRegion().isEmpty();
}

/// Where the focus is to be seen, in coordinates of the control.
QRect focusPlace(const QWidget& control)
{
    QStyleOptionButton option;
    option.initFrom(&control);
    if (const auto* box = qobject_cast<const QCheckBox*>(&control)) {
        option.text = box->text();
        return control.style()->subElementRect(QStyle::SE_CheckBoxFocusRect, &option, &control);
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) {
        return tabs->tabRect(tabs->currentIndex());
    }
    if (const auto* radio = qobject_cast<const QRadioButton*>(&control);
        radio != nullptr && !radio->text().isEmpty()) {
        option.text = radio->text();
        return control.style()->subElementRect(QStyle::SE_RadioButtonFocusRect, &option, &control);
    }
    return control.rect();
}

/// The pixels that differ clearly.
int changedPixels(const QImage& with, const QImage& without)
{
    int changed = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            changed += contrastOf(with.pixel(x, y), without.pixel(x, y)) >= Owed ? 1 : 0;
        }
    }
    return changed;
}

QImage pictureOf(QWidget& window, const QWidget& control, const QRect& place)
{
    return window.grab(QRect(control.mapTo(&window, place.topLeft()), place.size()) & window.rect())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

} // namespace

FocusSight lookForFocus(QWidget& window)
{
    FocusSight result;
    const int flashTime = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0);
    QList<QWidget*> controls;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (isReachedByTab(*widget, window)) {
            controls.append(widget);
        }
    }
    for (QWidget* control : std::as_const(controls)) {
        ++result.controls;
        const QRect place = focusPlace(*control) & control->visibleRegion().boundingRect();
        control->setFocus(Qt::TabFocusReason);
        if (auto* edit = control->findChild<QLineEdit*>(); edit != nullptr) {
            edit->deselect();
        }
        const bool focused = control->hasFocus();
        const QImage with = pictureOf(window, *control, place);
        control->clearFocus();
        const QImage without = pictureOf(window, *control, place);
        const int changed = changedPixels(with, without);
        // A ring around round corners is shorter.
        const int owed = 2 * (place.width() + place.height()) - RoundCorners;
        if (!focused || changed < owed) {
            result.faults.append(
                QStringLiteral("%1 %2: %3 of %4 pixels%5")
                    .arg(QLatin1String(control->metaObject()->className()), control->objectName())
                    .arg(changed)
                    .arg(owed)
                    .arg(focused ? QString() : QStringLiteral(", it takes no focus")));
        }
    }
    QApplication::setCursorFlashTime(flashTime);
    return result;
}
