#pragma once

#include "report/RecordText.h"
#include "report/ReportWindow.h"

#include <QSizeF>
#include <map>
#include <memory>

class Progress;

/// A report laid out for one page size: where the pages start and how to paint them. A record is kept on
/// one page; one that is taller than a page starts on a new page and is split between lines.
class ReportLayout final : public PrintedPages
{
public:
    /// `page` is the printable area, in units. Right-to-left, labels and logo are on the right; each text
    /// keeps its own direction. `progress` may be null and is told of the records that are measured. Throws
    /// Cancelled.
    ReportLayout(std::shared_ptr<const ReportContent> content, QSizeF page,
        Qt::LayoutDirection direction = Qt::LeftToRight, Progress* progress = nullptr);
    ~ReportLayout() override;

    QSizeF page() const { return m_page; }
    int pageCount() const override { return static_cast<int>(m_pages.size()); }
    /// The number of the first record on that page; pages count from 0.
    std::size_t firstRecord(int page) const { return m_pages[static_cast<std::size_t>(page)].record; }
    /// The page on which that record begins.
    int pageOf(std::size_t record) const;
    void paintPage(QPainter& painter, int page) const override;

private:
    struct PageStart {
        std::size_t record;
        std::size_t band; ///< of the record: a strip that is not split
    };
    /// Where a short value of a record is placed.
    struct CodePlace {
        qreal label; ///< where its label begins, from the edge at which reading begins
        qreal value; ///< where the value begins, from that edge
        qreal width; ///< width of the value
    };
    struct LaidRecord;

    QString captionOf(const QString& control) const;
    const QString& value(std::size_t record, const QString& control) const;
    CodePlace placeOf(std::size_t code) const;
    void placeCodes();
    /// The left edge of something `width` wide whose distance from the edge at which reading begins is
    /// `left`.
    qreal mirrored(qreal left, qreal width) const;
    /// The same for a text in the row of short values: it stands next to the text before it.
    qreal mirroredText(const QString& text, const TextStyle& style, qreal left, qreal width) const;
    /// Whether the short values fit side by side.
    bool hasRoomSideBySide() const;
    /// The heights of the bands of a record, from its top to its closing line.
    void measure(std::size_t record, std::vector<qreal>& bands) const;
    void findPageStarts(Progress* progress);
    const LaidRecord& laidRecord(std::size_t record) const;
    std::unique_ptr<LaidRecord> layOut(std::size_t record) const;
    void paintHeader(QPainter& painter) const;

    std::shared_ptr<const ReportContent> m_content;
    QSizeF m_page;
    Qt::LayoutDirection m_direction;
    TextStyle m_label;
    TextStyle m_text;
    TextStyle m_name;
    TextStyle m_title;
    TextStyle m_subtitle;
    std::map<QString, std::size_t> m_columns;
    std::map<QString, QString> m_captions;
    qreal m_labelWidth = 0;
    bool m_stacked = false; ///< the short values are below each other
    std::vector<CodePlace> m_places; ///< one for each short value
    std::vector<PageStart> m_pages;
    /// The record laid out last: one that continues for pages is laid out once.
    mutable std::unique_ptr<LaidRecord> m_laid;
    mutable KeptTexts m_kept;
};
