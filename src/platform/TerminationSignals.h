#pragma once

#include <QObject>

/// Turns the system's requests to end the process (SIGTERM, SIGINT, SIGHUP) into a signal of the event loop.
/// SIGHUP stays ignored where it was. One instance in a process; when it goes, the requests do what they did
/// before.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

signals:
    void terminationRequested();
};
