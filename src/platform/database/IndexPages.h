#pragma once

#include <QByteArray>
#include <QFile>
#include <functional>
#include <string_view>
#include <vector>

class Progress;

/// A whole number or a text that a data file holds.
struct StoredValue {
    bool isText = false;
    qint64 number = 0;
    std::string_view text; ///< valid as long as what it was read from
};

/// Reads the entries of indexes off the pages of a data file, without the engine: so it sees how they are
/// written, and not only what the engine makes of them. For a file in rollback-journal mode without a journal
/// that nobody writes or locks meanwhile.
///
/// It knows what an index of whole numbers and texts plainly looks like, and gives up at anything else. Used
/// on one thread.
class IndexPages
{
public:
    /// Sees the parts of an entry; false ends the reading.
    using Visit = std::function<bool(const std::vector<StoredValue>&)>;

    /// `progress` is told after each page and outlives the object; it may be null.
    IndexPages(const QString& file, Progress* progress);

    /// Hands the entries of the index whose first page is `root`, of `parts` parts each, to `visit`, in the
    /// order in which the engine would find them. False when it gave up or was ended.
    bool read(qint64 root, std::size_t parts, const Visit& visit);

private:
    using Byte = unsigned char;
    /// A part of a page that is not to be left.
    struct Span {
        const Byte* at;
        const Byte* end;
    };

    bool readPage(qint64 number, int depth, const Visit& visit);
    bool readEntry(const QByteArray& page, qsizetype place, const Visit& visit);
    static bool takeSize(Span& span, qsizetype& size);
    static bool takeValue(Span& content, qsizetype type, StoredValue& value);

    QFile m_file;
    Progress* m_progress;
    qsizetype m_pageSize = 0;
    std::vector<StoredValue> m_parts;
};
