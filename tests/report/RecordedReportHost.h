#pragma once

#include "report/ReportWindow.h"

#include <QStringList>

/// Answers the report window as a test has set, and remembers what it asked.
class RecordedReportHost final : public ReportHost
{
public:
    QString choosePdfFile(QWidget*) override { return file; }
    void tellFailure(QWidget*, const QString& text) override { failures.append(text); }
    void windowClosed() override { ++closed; }

    QString file;
    QStringList failures;
    int closed = 0;
};
