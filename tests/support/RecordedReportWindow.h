#pragma once

#include "report/ReportWindow.h"

#include <QWidget>

/// A window for a report that only remembers what it was given.
class RecordedReportWindow final : public QWidget, public ReportWindow
{
public:
    QWidget* widget() override { return this; }
    void setContent(ReportContent newContent) override { content = std::move(newContent); }

    ReportContent content;
    /// Whether it was topmost already when it appeared.
    bool appearedTopmost = false;

protected:
    void showEvent(QShowEvent* event) override
    {
        appearedTopmost = windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        QWidget::showEvent(event);
    }
};
