#pragma once

#include <QRect>

class QAbstractItemView;
class QString;

/// Where a calm line stands that says why a view has nothing to show: wrapped in the middle of its viewport.
/// An empty rectangle for no text.
QRect emptyTextPlace(const QAbstractItemView& view, const QString& text);
/// Paints `text` there. To be called by the view's paint event, after everything else.
void paintEmptyText(QAbstractItemView& view, const QString& text);
