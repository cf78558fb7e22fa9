#pragma once

#include <QObject>

/// Shows the whole text of a list, an edit or an entry as its tool tip where it does not fit. One instance
/// in a program, made after the application object; it filters the events of all windows. A control's own
/// tool tip takes precedence.
class ElidedTextTips : public QObject
{
    Q_OBJECT

public:
    explicit ElidedTextTips(QObject* parent = nullptr);

    /// The whole text at `position` in `widget` when part of it cannot be seen; otherwise empty.
    static QString hiddenText(const QWidget& widget, QPoint position);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
