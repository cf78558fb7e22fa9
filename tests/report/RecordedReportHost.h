#pragma once

#include "report/ReportWindow.h"

#include <QStringList>

/// Answers the report window as a test has set, and remembers what it asked.
class RecordedReportHost final : public ReportHost
{
public:
    QString choosePdfFile(QWidget*) override { return file; }
    QString saveTasks(QWidget*) override
    {
        ++saved;
        return note;
    }
    void tellFailure(QWidget*, const QString& text) override { failures.append(text); }
    void windowClosed() override { ++closed; }

    QString file;
    QString note; ///< what it says of saved tasks
    QStringList failures;
    int closed = 0;
    int saved = 0;
};
