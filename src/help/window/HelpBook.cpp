#include "help/window/HelpBook.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QUrl>
#include <QVariant>
#include <QtEndian>
#include <algorithm>

namespace
{

// Entries of /#SYSTEM.
enum SystemEntry : quint16 { ContentsFile = 0, IndexFile = 1, DefaultTopic = 2, Title = 3 };

constexpr qsizetype ContextSize = 8;
constexpr qsizetype LongestText = qsizetype{64} * 1024 * 1024;

/// The text of `bytes` from `begin` to the next zero; empty beyond the end.
QString stringAt(const QByteArray& bytes, qsizetype begin)
{
    if (begin < 0 || begin >= bytes.size()) {
        return {};
    }
    const qsizetype end = bytes.indexOf('\0', begin);
    return QString::fromUtf8(bytes.mid(begin, end < 0 ? -1 : end - begin));
}

bool isTopicName(const QString& name)
{
    return name.endsWith(QLatin1String(".html"), Qt::CaseInsensitive)
        || name.endsWith(QLatin1String(".htm"), Qt::CaseInsensitive);
}

/// A document that reads nothing from anywhere.
class ClosedDocument final : public QTextDocument
{
protected:
    QVariant loadResource(int /*type*/, const QUrl& /*name*/) override { return {}; }
};

std::vector<HelpEntry> readSitemap(const CompiledHelpFile& file, const QString& name)
{
    const auto bytes = file.read(objectPath(name));
    return bytes ? parseSitemap(htmlText(*bytes)) : std::vector<HelpEntry>();
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
    m_contents = readSitemap(*m_file, m_contentsName);
    m_index = readSitemap(*m_file, m_indexName);
    std::sort(m_index.begin(), m_index.end(), [](const HelpEntry& left, const HelpEntry& right) {
        return QString::localeAwareCompare(left.name, right.name) < 0;
    });
    const QStringList names = topics();
    if (!m_file->contains(m_defaultTopic) && !names.isEmpty()) {
        m_defaultTopic = names.first();
    }
}

void HelpBook::readSystem()
{
    const QByteArray bytes = m_file->read(QStringLiteral("/#SYSTEM")).value_or(QByteArray());
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
    const QByteArray map = m_file->read(QStringLiteral("/#IVB")).value_or(QByteArray());
    const QByteArray strings = m_file->read(QStringLiteral("/#STRINGS")).value_or(QByteArray());
    constexpr qsizetype LengthSize = 4;
    for (qsizetype entry = LengthSize; entry + ContextSize <= map.size(); entry += ContextSize) {
        const auto context = qFromLittleEndian<qint32>(map.constData() + entry);
        const auto offset = qFromLittleEndian<quint32>(map.constData() + entry + LengthSize);
        const QString topic = stringAt(strings, static_cast<qsizetype>(offset));
        if (!topic.isEmpty()) {
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
        qsizetype length = 0;
        for (const QString& topic : topics()) {
            const auto bytes = m_file->read(topic);
            if (!bytes) {
                continue;
            }
            ClosedDocument document;
            document.setHtml(htmlText(*bytes));
            const QString text = document.toPlainText();
            length += text.size();
            if (length > LongestText) {
                break;
            }
            const QString title = document.metaInformation(QTextDocument::DocumentTitle);
            m_texts->push_back({topic, title.isEmpty() ? topic : title, text});
        }
    }
    return *m_texts;
}

QStringList HelpBook::wordsOf(const QString& query)
{
    static const QRegularExpression blanks(
        QStringLiteral("\\s+"), QRegularExpression::UseUnicodePropertiesOption);
    return query.split(blanks, Qt::SkipEmptyParts);
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
