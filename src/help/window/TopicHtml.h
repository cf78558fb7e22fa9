#pragma once

#include <QTextDocument>
#include <memory>

/// Objects with a topic that are larger are not read. In bytes.
inline constexpr qint64 LargestTopic = qint64{256} * 1024;

/// How many tags that text has at most. A topic with more than `MostTags` is not read.
qsizetype tagsOf(const QString& html);
inline constexpr qsizetype MostTags = 2000;

/// The text of a topic. A letter with marks is one character where there is one, as keyboards type it.
QString topicText(const QByteArray& bytes);

/// A topic as a document that has no look yet and reads nothing from anywhere. Null for what Qt
/// would take very long for: too many tags (tags that are not closed cost it the square of their number),
/// tables too deep in tables (each level doubles the time of laying them out).
std::unique_ptr<QTextDocument> readTopic(const QString& html);
