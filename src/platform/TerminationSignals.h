#pragma once

#include <QObject>

/// Turns the system's requests to end the process (SIGTERM, SIGINT, SIGHUP) into a signal of the event loop.
/// One instance in a process, while it lives.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

signals:
    void terminationRequested();
};
