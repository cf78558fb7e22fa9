#pragma once

#include <QTextDocument>
#include <memory>

/// Larger objects are not read as topics. In bytes.
inline constexpr qint64 LargestTopic = qint64{256} * 1024;

/// An upper bound of the number of tags. A topic with more than `MostTags` is not read.
qsizetype tagsOf(const QString& html);
inline constexpr qsizetype MostTags = 2000;

/// The text of a topic, composed (NFC) as keyboards type it.
QString topicText(const QByteArray& bytes);

/// A topic as a document without colours and fonts, which reads nothing from anywhere. Null for what would
/// take Qt 6.4.2 very long: too many tags (unclosed tags take quadratic time) or tables nested too deeply
/// (each level doubles the time of the layout); tst_hostile_help,
/// aTopicThatQtWouldReadForHoursIsToldInstead.
std::unique_ptr<QTextDocument> readTopic(const QString& html);
