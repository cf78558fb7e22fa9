#pragma once

#include "help/window/CompiledHelpFile.h"
#include "help/window/HelpSitemap.h"

#include <QMap>

/// A topic that a search has found.
struct HelpHit {
    QString topic;
    QString title;
};

/// The structure of a help file: contents, index, context numbers, and the topics as plain text. Limits:
/// tables of more than 1 MiB count as empty; contexts beyond the 4,096th or with names of more than 512
/// bytes are ignored; a search reads 2 MiB of topics with 10,000 tags and ignores the rest.
class HelpBook
{
public:
    /// Null when there is no readable help file.
    static std::unique_ptr<HelpBook> open(const QString& path);

    const QString& title() const { return m_title; }
    /// The name of the topic that is shown first, with its leading "/".
    const QString& defaultTopic() const { return m_defaultTopic; }
    const std::vector<HelpEntry>& contents() const { return m_contents; }
    /// Sorted by name.
    const std::vector<HelpEntry>& index() const { return m_index; }
    /// The topic of a context number; none when the file does not know the number.
    std::optional<QString> topicOf(qint32 context) const;
    const QMap<qint32, QString>& contexts() const { return m_contexts; }
    /// Whether contents, index and context numbers could be read, if the file says that it has them.
    bool isWhole() const { return m_isWhole; }
    /// The names of all topics.
    QStringList topics() const;
    const CompiledHelpFile& file() const { return *m_file; }

    /// The topics that contain every word of `query`, regardless of case and of how marked letters are
    /// typed; those with a word in their title first. None for an empty query.
    std::vector<HelpHit> find(const QString& query) const;
    static QStringList wordsOf(const QString& query);

private:
    struct TopicText {
        QString topic;
        QString title;
        QString text;
    };

    explicit HelpBook(std::unique_ptr<CompiledHelpFile> file);
    void readSystem();
    void readContexts();
    /// Empty when it cannot be read, and then the book is not whole.
    QByteArray table(const QString& name);
    std::vector<HelpEntry> sitemap(const QString& name);
    const std::vector<TopicText>& texts() const;

    std::unique_ptr<CompiledHelpFile> m_file;
    QString m_title;
    QString m_defaultTopic;
    QString m_contentsName;
    QString m_indexName;
    std::vector<HelpEntry> m_contents;
    std::vector<HelpEntry> m_index;
    QMap<qint32, QString> m_contexts;
    bool m_isWhole = true;
    /// Made by the first search.
    mutable std::optional<std::vector<TopicText>> m_texts;
};

/// The name of an object with exactly one leading "/".
QString objectPath(const QString& name);
