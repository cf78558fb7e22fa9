#pragma once

#include <QObject>
#include <QString>
#include <functional>

class QProcess;

using ProgramPath = std::function<QString()>;

/// A process of our own for work that could crash or block the program. The first `write` starts it; it
/// runs while there is something to do. Its error output is the program's. Interface thread only.
class HelperProcess final : public QObject
{
    Q_OBJECT

public:
    /// `program` answers the path of the executable; it is called at each start.
    explicit HelperProcess(ProgramPath program, QObject* parent = nullptr);
    /// Ends the process.
    ~HelperProcess() override;

    bool isRunning() const { return m_process != nullptr; }
    /// Sends `bytes` to the process without waiting.
    void write(const QByteArray& bytes);
    /// Ends the process at once. Nothing that it has answered is emitted any more.
    void end();

signals:
    /// Output of the process, in pieces of any size.
    void answered(const QByteArray& bytes);
    /// The process could not be started or has ended by itself; the next `write` starts another.
    void lost();

private:
    void start();
    void lose();

    ProgramPath m_program;
    QProcess* m_process = nullptr;
};
