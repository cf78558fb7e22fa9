#pragma once

#include "system/ErrorReport.h"

#include <QCoreApplication>
#include <functional>

/// The run-time error report on the screen: a critical box that offers "Close program" and "Continue".
class ScreenErrorReport final : public ErrorReport
{
    Q_DECLARE_TR_FUNCTIONS(ScreenErrorReport)

public:
    /// `closeProgram` is called when the user chooses to end the program.
    explicit ScreenErrorReport(std::function<void()> closeProgram);

    /// While a report is open, further ones are dropped: a timer may repeat the same fault.
    void report(const QString& text) override;

    /// Reports a failed start, with an OK button only.
    static void reportFailedStart(const QString& text);

private:
    std::function<void()> m_closeProgram;
    bool m_open = false;
};
