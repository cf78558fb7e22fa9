#pragma once

#include <QDialog>

class QProgressBar;

/// Shows how far something is that takes long, and offers to cancel it; closing the box cancels too. Modal to
/// its owner alone.
class ProgressBox final : public QDialog
{
    Q_OBJECT

public:
    ProgressBox(QWidget& owner, const QString& text, int steps);
    void setDone(int steps);

private:
    QProgressBar* m_bar;
};
