#pragma once

#include <QCoreApplication>
#include <QTemporaryFile>

class OutputStream;

/// A place for the output of a command until it is complete, and for its input: nobody who reads or writes
/// slowly keeps the data file locked or lets what was read of it grow old, and nobody gets a part of the
/// output. Private, and gone with the process. One thread.
class Draft
{
    Q_DECLARE_TR_FUNCTIONS(Draft)

public:
    /// Throws FileError.
    Draft();

    /// What is written comes at the end.
    QIODevice& device() { return m_file; }
    /// Everything, until `output` fails. Throws FileError.
    void copyTo(OutputStream& output);
    /// Reads `input` to its end. Throws RuntimeError when it is too large to be imported, FileError when
    /// there is no room for it.
    void takeFrom(QIODevice& input);
    /// To read all of it, as often as it is asked for. Throws FileError.
    QIODevice& fromItsBeginning();

private:
    void flush();

    QTemporaryFile m_file;
};
