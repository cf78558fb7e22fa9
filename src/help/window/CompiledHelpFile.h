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
/// throws or takes more than the limits below: the directory and the unpacking take 8 MiB, the names as many.
class CompiledHelpFile
{
public:
    /// Larger files are not opened, larger objects not read.
    static constexpr qint64 LargestFile = qint64{256} * 1024 * 1024;
    static constexpr qint64 LargestObject = qint64{16} * 1024 * 1024;
    /// A file with more objects, or with one whose name takes more bytes, is not opened.
    static constexpr qsizetype MostObjects = 10000;
    static constexpr std::size_t LongestName = 512;

    /// Null when the file is missing, too large or no readable help file.
    static std::unique_ptr<CompiledHelpFile> open(const QString& path);
    ~CompiledHelpFile();
    CompiledHelpFile(const CompiledHelpFile&) = delete;
    CompiledHelpFile& operator=(const CompiledHelpFile&) = delete;

    /// The names of all objects, each with its leading "/".
    QStringList names() const { return m_names; }
    bool contains(const QString& name) const;
    /// The object of that name, in whatever letter case. Nothing when there is none, when it is damaged or
    /// has more than `largest` bytes.
    std::optional<QByteArray> read(const QString& name, qint64 largest = LargestObject) const;
    /// How many bytes have to be read and unpacked for that object at most; 0 for what is not read.
    qint64 effortOf(const QString& name) const;

private:
    struct System;

    explicit CompiledHelpFile(const QString& path);
    bool load();
    /// Null for what is not read.
    mschmd_file* readable(const QString& name, qint64 largest) const;

    std::unique_ptr<System> m_system;
    mschm_decompressor* m_decompressor = nullptr;
    mschmd_header* m_header = nullptr;
    QByteArray m_path;
    QHash<QString, mschmd_file*> m_objects;
    QStringList m_names;
};
