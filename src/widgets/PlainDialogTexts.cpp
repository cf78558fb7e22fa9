#include "widgets/PlainDialogTexts.h"

#include "widgets/PlainText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFileDialog>
#include <QHelpEvent>
#include <QMessageBox>
#include <QToolTip>

namespace
{

/// The tool tip of the entry at `position` if `widget` shows a list of a file dialog.
QString entryTip(const QWidget& widget, QPoint position)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
    const bool isEntries = view != nullptr && view->viewport() == &widget;
    if (!isEntries || qobject_cast<const QFileDialog*>(widget.window()) == nullptr) {
        return {};
    }
    return view->indexAt(position).data(Qt::ToolTipRole).toString();
}

} // namespace

PlainDialogTexts::PlainDialogTexts()
{
    qApp->installEventFilter(this);
}

bool PlainDialogTexts::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Polish) {
        if (auto* box = qobject_cast<QMessageBox*>(watched)) {
            box->setTextFormat(Qt::PlainText);
        }
    } else if (event->type() == QEvent::ToolTip && watched->isWidgetType()) {
        auto& widget = *static_cast<QWidget*>(watched);
        const auto& help = *static_cast<QHelpEvent*>(event);
        if (const QString tip = entryTip(widget, help.pos()); !tip.isEmpty()) {
            QToolTip::showText(help.globalPos(), plainToolTip(tip), &widget);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
