#include "help/window/HelpBook.h"

#include "help/window/TopicHtml.h"

#include <QRegularExpression>
#include <QtEndian>
#include <algorithm>

namespace
{

// Entries of the object /#SYSTEM.
enum SystemEntry : quint16 { ContentsFile = 0, IndexFile = 1, DefaultTopic = 2, Title = 3 };

constexpr qsizetype ContextSize = 8;
constexpr int MostContexts = 4096;
constexpr qsizetype LongestString = 512;
constexpr qint64 LargestTable = qint64{1024} * 1024;
// Text of all topics together that a search reads.
constexpr qint64 MostText = qint64{2} * 1024 * 1024;
constexpr qint64 MostTagsOfAll = 10000;
constexpr qint64 MostEffort = qint64{64} * 1024 * 1024;

/// The text of `bytes` from `begin` to the next zero; empty beyond the end and when it is too long.
QString stringAt(const QByteArray& bytes, qsizetype begin)
{
    if (begin < 0 || begin >= bytes.size()) {
        return {};
    }
    const QByteArray string = bytes.mid(begin, LongestString + 1);
    const qsizetype end = string.indexOf('\0');
    return QString::fromUtf8(end >= 0       ? string.left(end)
            : string.size() > LongestString ? QByteArray()
                                            : string);
}

bool isTopicName(const QString& name)
{
    return name.endsWith(QLatin1String(".html"), Qt::CaseInsensitive)
        || name.endsWith(QLatin1String(".htm"), Qt::CaseInsensitive);
}

} // namespace

QString objectPath(const QString& name)
{
    return name.startsWith(u'/') ? name : u'/' + name;
}

std::unique_ptr<HelpBook> HelpBook::open(const QString& path)
{
    auto file = CompiledHelpFile::open(path);
    if (file == nullptr) {
        return nullptr;
    }
    std::unique_ptr<HelpBook> book(new HelpBook(std::move(file)));
    // A help file without a topic is of no use.
    return book->m_file->contains(book->m_defaultTopic) ? std::move(book) : nullptr;
}

HelpBook::HelpBook(std::unique_ptr<CompiledHelpFile> file) : m_file(std::move(file))
{
    readSystem();
    readContexts();
    m_contents = sitemap(m_contentsName);
    m_index = sitemap(m_indexName);
    std::sort(m_index.begin(), m_index.end(), [](const HelpEntry& left, const HelpEntry& right) {
        return QString::localeAwareCompare(left.name, right.name) < 0;
    });
    const QStringList names = topics();
    if (!m_file->contains(m_defaultTopic) && !names.isEmpty()) {
        m_defaultTopic = names.first();
    }
}

QByteArray HelpBook::table(const QString& name)
{
    const auto bytes = m_file->read(name, LargestTable);
    m_isWhole = m_isWhole && (bytes || !m_file->contains(name));
    return bytes.value_or(QByteArray());
}

std::vector<HelpEntry> HelpBook::sitemap(const QString& name)
{
    const QString object = objectPath(name);
    // The file names this object, so it must exist.
    m_isWhole = m_isWhole && (name.isEmpty() || m_file->contains(object));
    return parseSitemap(htmlText(table(object)));
}

void HelpBook::readSystem()
{
    const QByteArray bytes = table(QStringLiteral("/#SYSTEM"));
    constexpr qsizetype VersionSize = 4;
    constexpr qsizetype EntryHeaderSize = 4;
    qsizetype position = VersionSize;
    while (position + EntryHeaderSize <= bytes.size()) {
        const auto code = qFromLittleEndian<quint16>(bytes.constData() + position);
        const auto size = qFromLittleEndian<quint16>(bytes.constData() + position + 2);
        const QString value = stringAt(bytes.mid(position + EntryHeaderSize, size), 0);
        switch (code) {
        case ContentsFile:
            m_contentsName = value;
            break;
        case IndexFile:
            m_indexName = value;
            break;
        case DefaultTopic:
            m_defaultTopic = objectPath(value);
            break;
        case Title:
            m_title = value;
            break;
        default:
            break;
        }
        position += EntryHeaderSize + size;
    }
}

void HelpBook::readContexts()
{
    const QByteArray map = table(QStringLiteral("/#IVB"));
    const QByteArray strings = table(QStringLiteral("/#STRINGS"));
    constexpr qsizetype LengthSize = 4;
    for (qsizetype entry = LengthSize; entry + ContextSize <= map.size(); entry += ContextSize) {
        const auto context = qFromLittleEndian<qint32>(map.constData() + entry);
        const auto offset = qFromLittleEndian<quint32>(map.constData() + entry + LengthSize);
        const QString topic = stringAt(strings, static_cast<qsizetype>(offset));
        if (!topic.isEmpty() && m_contexts.size() < MostContexts) {
            m_contexts.insert(context, objectPath(topic));
        }
    }
}

std::optional<QString> HelpBook::topicOf(qint32 context) const
{
    const auto found = m_contexts.find(context);
    return found == m_contexts.end() ? std::nullopt : std::optional(*found);
}

QStringList HelpBook::topics() const
{
    QStringList names = m_file->names();
    names.removeIf([](const QString& name) { return !isTopicName(name); });
    return names;
}

const std::vector<HelpBook::TopicText>& HelpBook::texts() const
{
    if (!m_texts) {
        m_texts.emplace();
        qint64 effort = 0;
        qint64 length = 0;
        qint64 tags = 0;
        for (const QString& topic : topics()) {
            effort += m_file->effortOf(topic);
            if (effort > MostEffort) {
                break;
            }
            const QString html = topicText(m_file->read(topic, LargestTopic).value_or(QByteArray()));
            length += html.size();
            tags += tagsOf(html) > MostTags ? 0 : tagsOf(html);
            if (length > MostText || tags > MostTagsOfAll) {
                break;
            }
            const auto document = readTopic(html);
            if (document != nullptr) {
                const QString title = document->metaInformation(QTextDocument::DocumentTitle);
                m_texts->push_back({topic, title.isEmpty() ? topic : title, document->toPlainText()});
            }
        }
    }
    return *m_texts;
}

QStringList HelpBook::wordsOf(const QString& query)
{
    static const QRegularExpression blanks(
        QStringLiteral("\\s+"), QRegularExpression::UseUnicodePropertiesOption);
    return query.normalized(QString::NormalizationForm_C).split(blanks, Qt::SkipEmptyParts);
}

std::vector<HelpHit> HelpBook::find(const QString& query) const
{
    const QStringList words = wordsOf(query);
    if (words.isEmpty()) {
        return {};
    }
    std::vector<HelpHit> inTitle;
    std::vector<HelpHit> inText;
    for (const TopicText& topic : texts()) {
        const auto in = [](const QString& text) {
            return [&text](const QString& word) {
                return text.contains(word, Qt::CaseInsensitive);
            };
        };
        if (std::all_of(words.begin(), words.end(), in(topic.text))) {
            const bool named = std::any_of(words.begin(), words.end(), in(topic.title));
            (named ? inTitle : inText).push_back({topic.topic, topic.title});
        }
    }
    inTitle.insert(inTitle.end(), inText.begin(), inText.end());
    return inTitle;
}
