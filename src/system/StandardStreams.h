#pragma once

#include <QByteArray>
#include <QFile>

/// Opens `file` for reading what the process is given on its standard input, as bytes. False when there is
/// none.
bool openStandardInput(QFile& file);

/// Bytes for somebody who may go away. What is written is gathered, and out when `flush()` has returned.
/// Writing goes on quietly after a failure, see `error()`.
class OutputStream final : public QIODevice
{
public:
    /// Writes to an open handle, which stays open. From then on the signal is ignored that ends a process
    /// when nobody reads what it writes.
    explicit OutputStream(int handle);
    /// On the standard output.
    OutputStream();
    ~OutputStream() override;

    bool isSequential() const override { return true; }
    /// False when something of what was written is lost.
    bool flush();
    /// The system's error number of the first failure; 0 for none.
    int error() const { return m_error; }
    /// The failure is that nobody reads any more.
    bool hasNoReader() const;

protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    /// Lets the process go on when nobody reads what it writes.
    static void outliveReader();

    QFile m_file;
    QByteArray m_gathered;
    int m_error = 0;
};
