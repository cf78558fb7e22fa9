#pragma once

#include <QObject>

/// Turns requests to end the process (SIGTERM, SIGINT, SIGHUP) into a Qt signal. SIGHUP stays ignored if it
/// was. One instance in a process; its destructor restores the previous handlers.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

signals:
    void terminationRequested();
};
