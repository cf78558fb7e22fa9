#include "settings/SheetTraces.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QVariant>

namespace
{

/// A limit of size, what Qt marks a widget with while a sheet sets it, and where its own one is
/// noted.
struct Limit {
    const char* markOfQt;
    const char* note;
    int (QWidget::*get)() const;
    void (QWidget::*set)(int);
    int none;
};

constexpr Limit Limits[] = {
    {"_q_stylesheet_minw", "ownMinimumWidth", &QWidget::minimumWidth, &QWidget::setMinimumWidth, 0},
    {"_q_stylesheet_minh", "ownMinimumHeight", &QWidget::minimumHeight, &QWidget::setMinimumHeight, 0},
    {"_q_stylesheet_maxw", "ownMaximumWidth", &QWidget::maximumWidth, &QWidget::setMaximumWidth,
        QWIDGETSIZE_MAX},
    {"_q_stylesheet_maxh", "ownMaximumHeight", &QWidget::maximumHeight, &QWidget::setMaximumHeight,
        QWIDGETSIZE_MAX},
};

/// Whether a control writes and draws into that widget.
bool isInside(const QWidget& widget)
{
    const QWidget* control = widget.parentWidget();
    if (const auto* area = qobject_cast<const QAbstractScrollArea*>(control)) {
        return area->viewport() == &widget;
    }
    return qobject_cast<const QLineEdit*>(&widget) != nullptr
        && (qobject_cast<const QAbstractSpinBox*>(control) != nullptr
            || qobject_cast<const QComboBox*>(control) != nullptr);
}

} // namespace

void noteOwnSizes(QWidget& widget)
{
    for (const Limit& limit : Limits) {
        const int own = (widget.*limit.get)();
        if (own != limit.none && !widget.property(limit.markOfQt).toBool()) {
            widget.setProperty(limit.note, own);
        }
    }
}

void removeSheetTraces(QWidget& widget)
{
    const QList<QByteArray> notes = widget.dynamicPropertyNames();
    for (const Limit& limit : Limits) {
        if (!notes.contains(limit.note)) {
            continue;
        }
        if (widget.property(limit.markOfQt).toBool()) {
            (widget.*limit.set)(widget.property(limit.note).toInt());
            widget.setProperty(limit.markOfQt, {});
        }
        widget.setProperty(limit.note, {});
    }
    if (isInside(widget)) {
        widget.setFont({});
    }
}
