#pragma once

#include <QObject>

/// Turns requests to end the process into a Qt signal: SIGTERM, SIGINT and SIGHUP (which stays ignored if it
/// was), on Windows Ctrl+C and Ctrl+Break in a console and the event that the installer sets. (A log-out is a
/// request to the application.) One instance in a process; its destructor restores the previous handlers.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

signals:
    void terminationRequested();
};
