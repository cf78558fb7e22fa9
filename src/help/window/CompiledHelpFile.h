#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

struct mschm_decompressor;
struct mschmd_file;
struct mschmd_header;

/// A compiled HTML help file (.chm), read object by object. Whatever the file holds, nothing here crashes,
/// throws or exceeds these limits; in addition the directory and the unpacking take up to 8 MiB, the names
/// as much.
class CompiledHelpFile
{
public:
    /// Larger files are not opened, larger objects are not read.
    static constexpr qint64 LargestFile = qint64{256} * 1024 * 1024;
    static constexpr qint64 LargestObject = qint64{16} * 1024 * 1024;
    /// A file with more objects, or with a name of more bytes, is not opened.
    static constexpr qsizetype MostObjects = 10000;
    static constexpr std::size_t LongestName = 512;

    /// Null when the file is missing, too large or not a readable help file.
    static std::unique_ptr<CompiledHelpFile> open(const QString& path);
    ~CompiledHelpFile();
    CompiledHelpFile(const CompiledHelpFile&) = delete;
    CompiledHelpFile& operator=(const CompiledHelpFile&) = delete;

    /// The names of all objects, each with its leading "/".
    QStringList names() const { return m_names; }
    bool contains(const QString& name) const;
    /// The object of that name, regardless of case. None when it does not exist, is damaged or has more
    /// than `largest` bytes.
    std::optional<QByteArray> read(const QString& name, qint64 largest = LargestObject) const;
    /// The most bytes that have to be read and unpacked for that object; 0 for one that is not read.
    qint64 effortOf(const QString& name) const;

private:
    struct System;

    explicit CompiledHelpFile(const QString& path);
    bool load();
    /// Null for an object that is not read.
    mschmd_file* readable(const QString& name, qint64 largest) const;

    std::unique_ptr<System> m_system;
    mschm_decompressor* m_decompressor = nullptr;
    mschmd_header* m_header = nullptr;
    QByteArray m_path;
    QHash<QString, mschmd_file*> m_objects;
    QStringList m_names;
};
