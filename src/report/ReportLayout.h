#pragma once

#include "report/RecordText.h"
#include "report/ReportWindow.h"

#include <QSizeF>
#include <map>
#include <memory>

class Progress;

/// A report laid out for one size of page: where its pages start, and how each of them is painted. A record
/// is kept whole on a page; one that is taller than a page begins on a page of its own and is split between
/// lines.
class ReportLayout final : public PrintedPages
{
public:
    /// `page` is the printable area, in units. Read from right to left, labels and logo stand at the right; a
    /// text itself runs in its own direction either way.
    /// `progress`, which may be null, is told of the records as they are measured. Throws Cancelled.
    ReportLayout(std::shared_ptr<const ReportContent> content, QSizeF page,
        Qt::LayoutDirection direction = Qt::LeftToRight, Progress* progress = nullptr);
    ~ReportLayout() override;

    QSizeF page() const { return m_page; }
    int pageCount() const override { return static_cast<int>(m_pages.size()); }
    /// The number of the first record that stands on that page; pages count from 0.
    std::size_t firstRecord(int page) const { return m_pages[static_cast<std::size_t>(page)].record; }
    /// The page on which that record begins.
    int pageOf(std::size_t record) const;
    void paintPage(QPainter& painter, int page) const override;

private:
    struct PageStart {
        std::size_t record;
        std::size_t band; ///< of the record: a strip that is not split
    };
    /// Where one of the short values of a record stands.
    struct CodePlace {
        qreal label; ///< where its label begins, from the edge at which reading begins
        qreal value; ///< where the value begins, from that edge
        qreal width; ///< what the value has
    };
    struct LaidRecord;

    QString captionOf(const QString& control) const;
    const QString& value(std::size_t record, const QString& control) const;
    CodePlace placeOf(std::size_t code) const;
    void placeCodes();
    /// The left edge of what has `width` from `left` on, counted from the edge at which reading begins.
    qreal mirrored(qreal left, qreal width) const;
    /// The same for a text of the row of short values or a label: it stands next to what precedes it.
    qreal mirroredText(const QString& text, const TextStyle& style, qreal left, qreal width) const;
    /// Whether the short values all fit beside each other.
    bool hasRoomSideBySide() const;
    /// Heights of the bands of a record, from its top to its line.
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
    bool m_stacked = false; ///< the short values stand below each other
    std::vector<CodePlace> m_places; ///< one a short value
    std::vector<PageStart> m_pages;
    /// The record that was laid out last: one that goes on for pages is laid out once.
    mutable std::unique_ptr<LaidRecord> m_laid;
    mutable KeptTexts m_kept;
};
