#include "widgets/ElidedTextTips.h"

#include "widgets/PlainText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolTip>

namespace
{

/// Pixels between a text and the edge of its field.
constexpr int EditMargin = 4;

QString hiddenIn(const QComboBox& combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const QRect field =
        combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
    const int written = combo.fontMetrics().horizontalAdvance(shownPart(combo.currentText()));
    return written > field.width() - EditMargin ? combo.currentText() : QString();
}

QString hiddenIn(const QLineEdit& edit)
{
    const int written = edit.fontMetrics().horizontalAdvance(shownPart(edit.text()));
    const bool isSecret = edit.echoMode() != QLineEdit::Normal;
    return written > edit.contentsRect().width() - 2 * EditMargin && !isSecret ? edit.text() : QString();
}

QString hiddenIn(const QAbstractItemView& view, QPoint position)
{
    const QModelIndex index = view.indexAt(position);
    if (!index.isValid() || !index.data(Qt::ToolTipRole).toString().isEmpty()) {
        return {};
    }
    const QString text = index.data().toString();
    const bool hasPicture = index.data(Qt::DecorationRole).isValid();
    const int picture = hasPicture ? view.iconSize().width() + EditMargin : 0;
    const int needed = view.fontMetrics().horizontalAdvance(shownPart(text)) + picture + 2 * EditMargin;
    return needed > view.visualRect(index).width() ? text : QString();
}

} // namespace

ElidedTextTips::ElidedTextTips(QObject* parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

QString ElidedTextTips::hiddenText(const QWidget& widget, QPoint position)
{
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        return hiddenIn(*combo);
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        return hiddenIn(*edit);
    }
    if (const auto* view = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
        view != nullptr && view->viewport() == &widget) {
        return hiddenIn(*view, position);
    }
    return {};
}

bool ElidedTextTips::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ToolTip && watched->isWidgetType()) {
        auto& widget = *static_cast<QWidget*>(watched);
        const auto& help = *static_cast<QHelpEvent*>(event);
        const QString text = widget.toolTip().isEmpty() ? hiddenText(widget, help.pos()) : QString();
        if (!text.isEmpty()) {
            QToolTip::showText(help.globalPos(), plainToolTip(text), &widget);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
