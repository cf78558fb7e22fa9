#pragma once

#include <QObject>
#include <QString>
#include <functional>

class QProcess;

using ProgramPath = std::function<QString()>;

/// A process of ours that does what could end or hold up the program. It runs while there is something to do:
/// the first `write` starts it. Its errors go where the program's go. Interface thread only.
class HelperProcess final : public QObject
{
    Q_OBJECT

public:
    /// `program` answers the path of its executable; it is asked at each start.
    explicit HelperProcess(ProgramPath program, QObject* parent = nullptr);
    /// Ends the process.
    ~HelperProcess() override;

    bool isRunning() const { return m_process != nullptr; }
    /// Passes `bytes` to it; never waits for it.
    void write(const QByteArray& bytes);
    /// Ends it at once. Nothing that it has answered is told any more.
    void end();

signals:
    /// What it has written, in pieces of any size.
    void answered(const QByteArray& bytes);
    /// It could not be started, or has ended by itself; the next `write` starts another.
    void lost();

private:
    void start();
    void lose();

    ProgramPath m_program;
    QProcess* m_process = nullptr;
};
