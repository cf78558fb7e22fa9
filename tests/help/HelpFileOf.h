#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QtEndian>

// Help files as a test wants them, good or hostile. Nothing in them is compressed.

/// Objects by name (with the leading "/") and their bytes.
using HelpObjects = QList<QPair<QByteArray, QByteArray>>;

template <typename Number> QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// Seven bits a byte, the highest first.
inline QByteArray shortNumber(quint64 number)
{
    QByteArray bytes(1, static_cast<char>(number & 0x7f));
    while ((number >>= 7) != 0) {
        bytes.prepend(static_cast<char>((number & 0x7f) | 0x80));
    }
    return bytes;
}

/// One chunk of the directory with so many entries in it.
inline QByteArray helpDirectoryChunk(const QByteArray& entries, quint16 count)
{
    constexpr qsizetype Size = 0x1000;
    constexpr qsizetype HeadSize = 0x14;
    const qsizetype free = Size - HeadSize - entries.size();
    return "PMGL" + littleEndian(static_cast<quint32>(free)) + QByteArray(4, '\0') + QByteArray(8, '\xff')
        + entries + QByteArray(free - 2, '\0') + littleEndian(count);
}

inline QByteArray helpFileOf(const HelpObjects& objects)
{
    constexpr qsizetype Room = 0x1000 - 0x14 - 2;
    constexpr quint32 DirectoryHeaderSize = 0x54;
    constexpr quint64 HeadSize = 0x60;
    constexpr quint64 SizeRecord = 0x18;
    const QByteArray guids(32, '\x11');
    QByteArray content;
    QByteArray chunks;
    QByteArray entries;
    quint16 count = 0;
    quint32 chunkCount = 1;
    for (const auto& [name, bytes] : objects) {
        const QByteArray entry = shortNumber(name.size()) + name + shortNumber(0)
            + shortNumber(content.size()) + shortNumber(bytes.size());
        if (entries.size() + entry.size() > Room) {
            chunks += helpDirectoryChunk(entries, count);
            entries.clear();
            count = 0;
            ++chunkCount;
        }
        entries += entry;
        ++count;
        content += bytes;
    }
    chunks += helpDirectoryChunk(entries, count);
    const QByteArray directory = "ITSP" + littleEndian(quint32{1}) + littleEndian(DirectoryHeaderSize)
        + littleEndian(quint32{10}) + littleEndian(quint32{0x1000}) + littleEndian(quint32{2})
        + littleEndian(quint32{1}) + littleEndian(qint32{-1}) + littleEndian(quint32{0})
        + littleEndian(chunkCount - 1) + littleEndian(qint32{-1}) + littleEndian(chunkCount)
        + littleEndian(quint32{0x409}) + guids.left(16) + littleEndian(DirectoryHeaderSize)
        + QByteArray(12, '\xff') + chunks;
    const quint64 directoryStart = HeadSize + SizeRecord;
    const quint64 contentStart = directoryStart + directory.size();
    return "ITSF" + littleEndian(quint32{3}) + littleEndian(static_cast<quint32>(HeadSize))
        + littleEndian(quint32{1}) + littleEndian(quint32{0}) + littleEndian(quint32{0x409})
        + QByteArray::fromHex("10fd017caa7bd0119e0c00a0c922e6ec11fd017caa7bd0119e0c00a0c922e6ec")
        + littleEndian(HeadSize) + littleEndian(SizeRecord) + littleEndian(directoryStart)
        + littleEndian(static_cast<quint64>(directory.size())) + littleEndian(contentStart)
        + littleEndian(quint32{0x1fe}) + littleEndian(quint32{0})
        + littleEndian(contentStart + static_cast<quint64>(content.size())) + QByteArray(8, '\0') + directory
        + content;
}

/// What /#SYSTEM says of a file with these contents and that first topic.
inline QByteArray helpSystem(const QByteArray& defaultTopic, const QByteArray& contents = {})
{
    const auto entry = [](quint16 code, const QByteArray& text) {
        return littleEndian(code) + littleEndian(static_cast<quint16>(text.size() + 1)) + text + '\0';
    };
    return littleEndian(quint32{3}) + entry(2, defaultTopic) + entry(3, "Help")
        + (contents.isEmpty() ? QByteArray() : entry(0, contents));
}

/// /#IVB: a context number and a place in /#STRINGS an entry.
inline QByteArray helpContexts(const QList<QPair<quint32, quint32>>& places)
{
    QByteArray table = littleEndian(static_cast<quint32>(places.size() * 8));
    for (const auto& [context, place] : places) {
        table += littleEndian(context) + littleEndian(place);
    }
    return table;
}

inline QByteArray helpTopic(const QByteArray& body, const QByteArray& title = "A topic")
{
    return "<html><head><title>" + title + "</title></head><body>" + body + "</body></html>";
}
