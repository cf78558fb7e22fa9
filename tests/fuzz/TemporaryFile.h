#pragma once

#include "Require.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

/// A file in a folder of its own that is written anew for every input; in memory where the machine has such a
/// place.
class TemporaryFile
{
public:
    explicit TemporaryFile(const QString& name) : m_path(m_folder.filePath(name)) { }

    QString folder() const { return m_folder.path(); }
    QString path() const { return m_path; }
    void write(const QByteArray& bytes) const
    {
        QFile file(m_path);
        require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the file is written");
    }
    QByteArray read() const
    {
        QFile file(m_path);
        require(file.open(QIODevice::ReadOnly), "the file is there");
        return file.readAll();
    }

private:
    static QString place()
    {
        const QString memory = QStringLiteral("/dev/shm");
        return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath())
            + QStringLiteral("/ambertask-XXXXXX");
    }

    QTemporaryDir m_folder{place()};
    QString m_path;
};
