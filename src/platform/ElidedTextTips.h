#pragma once

#include <QObject>

/// Shows the whole text of a list, an edit or an entry whose text does not fit, as its tool tip. One instance
/// in a program, made after the application object; it looks at all windows. A tool tip of the control's own
/// comes first.
class ElidedTextTips : public QObject
{
    Q_OBJECT

public:
    explicit ElidedTextTips(QObject* parent = nullptr);

    /// The whole text of what lies under `position` in `widget`, when not all of it can be seen; otherwise
    /// empty.
    static QString hiddenText(const QWidget& widget, QPoint position);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
