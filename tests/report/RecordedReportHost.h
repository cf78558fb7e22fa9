#pragma once

#include "report/ReportWindow.h"
#include "support/RecordedLongWork.h"

#include <QStringList>

/// Answers the report window as a test has set, and remembers what it asked.
class RecordedReportHost final : public ReportHost
{
public:
    QString choosePdfFile(QWidget*) override { return file; }
    void tellFailure(QWidget*, const QString& text) override { failures.append(text); }
    void work(const std::function<void(Progress&)>& work) override
    {
        longWork.work.run(QStringLiteral("Preparing"), LongWork::Kind::Cancellable, [&](Progress& progress) {
            longWork.now += workTakes;
            work(progress);
        });
    }
    void windowClosed() override { ++closed; }

    QString file;
    QStringList failures;
    int closed = 0;
    RecordedLongWork longWork;
    std::chrono::milliseconds workTakes{}; ///< before its first telling
};
