#include "help/window/HelpSitemap.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringDecoder>
#include <algorithm>

namespace
{

constexpr std::size_t DeepestLevel = 16;
constexpr int MostEntries = 10000;
constexpr qsizetype LongestTag = 4096;

QString withoutEntities(QString text)
{
    text.replace(QLatin1String("&lt;"), QLatin1String("<"));
    text.replace(QLatin1String("&gt;"), QLatin1String(">"));
    text.replace(QLatin1String("&quot;"), QLatin1String("\""));
    text.replace(QLatin1String("&#39;"), QLatin1String("'"));
    return text.replace(QLatin1String("&amp;"), QLatin1String("&"));
}

/// The attributes of a tag, by name in lower case.
QHash<QString, QString> attributesOf(const QString& tag)
{
    static const QRegularExpression attribute(
        QStringLiteral("([a-z]+)\\s*=\\s*\"([^\"]*)\""), QRegularExpression::CaseInsensitiveOption);
    QHash<QString, QString> attributes;
    auto matches = attribute.globalMatch(tag);
    while (matches.hasNext()) {
        const auto match = matches.next();
        attributes.insert(match.captured(1).toLower(), withoutEntities(match.captured(2)));
    }
    return attributes;
}

class SitemapReader
{
public:
    SitemapReader() { m_levels.push_back(&m_entries); }

    void tag(const QString& tag)
    {
        const auto end = std::find_if(tag.begin(), tag.end(), [](QChar c) { return c.isSpace(); });
        const QString name = tag.left(end - tag.begin()).toLower();
        if (name == QLatin1String("ul")) {
            deeper();
        } else if (name == QLatin1String("/ul")) {
            if (m_levels.size() > 1) {
                m_levels.pop_back();
            }
        } else if (name == QLatin1String("object")) {
            m_entry = HelpEntry();
        } else if (name == QLatin1String("param")) {
            param(attributesOf(tag));
        } else if (name == QLatin1String("/object")) {
            finishEntry();
        }
    }

    std::vector<HelpEntry> take() { return std::move(m_entries); }

private:
    void deeper()
    {
        std::vector<HelpEntry>* level = m_levels.back();
        // Too deep, or a list without an entry before it: its entries join the level around it.
        const bool belongs = !level->empty() && m_levels.size() < DeepestLevel;
        m_levels.push_back(belongs ? &level->back().children : level);
    }

    void param(const QHash<QString, QString>& attributes)
    {
        const QString name = attributes.value(QStringLiteral("name")).toLower();
        const QString value = attributes.value(QStringLiteral("value"));
        // An index entry may name further topics; it opens the first one.
        if (name == QLatin1String("name") && m_entry.name.isEmpty()) {
            m_entry.name = value;
        } else if (name == QLatin1String("local") && m_entry.topic.isEmpty()) {
            m_entry.topic = value;
        }
    }

    void finishEntry()
    {
        if (!m_entry.name.isEmpty() && m_count < MostEntries) {
            ++m_count;
            m_levels.back()->push_back(std::move(m_entry));
        }
        m_entry = HelpEntry();
    }

    std::vector<HelpEntry> m_entries;
    // Only the last level grows, so the pointers below it stay valid.
    std::vector<std::vector<HelpEntry>*> m_levels;
    HelpEntry m_entry;
    int m_count = 0;
};

} // namespace

std::vector<HelpEntry> parseSitemap(const QString& html)
{
    SitemapReader reader;
    qsizetype begin = html.indexOf(u'<');
    while (begin >= 0) {
        const qsizetype end = html.indexOf(u'>', begin);
        if (end < 0) {
            break;
        }
        if (end - begin - 1 <= LongestTag) {
            reader.tag(html.mid(begin + 1, end - begin - 1));
        }
        begin = html.indexOf(u'<', end);
    }
    return reader.take();
}

QString htmlText(const QByteArray& bytes)
{
    QStringDecoder decoder = QStringDecoder::decoderForHtml(bytes);
    if (!decoder.isValid()) {
        decoder = QStringDecoder(QStringDecoder::Utf8);
    }
    return decoder(bytes);
}
