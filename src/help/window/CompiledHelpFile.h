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
/// throws or reads more than the limits below.
class CompiledHelpFile
{
public:
    /// Larger files are not opened, larger objects not read.
    static constexpr qint64 LargestFile = qint64{256} * 1024 * 1024;
    static constexpr qint64 LargestObject = qint64{16} * 1024 * 1024;

    /// Null when the file is missing, too large or no readable help file.
    static std::unique_ptr<CompiledHelpFile> open(const QString& path);
    ~CompiledHelpFile();
    CompiledHelpFile(const CompiledHelpFile&) = delete;
    CompiledHelpFile& operator=(const CompiledHelpFile&) = delete;

    /// The names of all objects, each with its leading "/".
    QStringList names() const { return m_names; }
    bool contains(const QString& name) const;
    /// The object of that name, in whatever letter case. Nothing when there is none, when it is damaged or
    /// too large.
    std::optional<QByteArray> read(const QString& name) const;

private:
    struct System;

    explicit CompiledHelpFile(const QString& path);
    bool load();

    std::unique_ptr<System> m_system;
    mschm_decompressor* m_decompressor = nullptr;
    mschmd_header* m_header = nullptr;
    QByteArray m_path;
    QHash<QString, mschmd_file*> m_objects;
    QStringList m_names;
};
