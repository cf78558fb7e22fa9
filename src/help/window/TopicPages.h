#pragma once

#include "widgets/printing/PrintedPages.h"

#include <QImage>
#include <QSizeF>
#include <memory>
#include <vector>

class QTextDocument;

/// A help topic on paper: text and pictures in black on white, whatever the skin and text size on the
/// screen. Lines, pictures and table rows are split between pages only when they are taller than a page.
/// Copies what it needs from `topic`.
class TopicPages final : public PrintedPages
{
public:
    /// `area` is the printable area of a page, in units.
    TopicPages(const QTextDocument& topic, QSizeF area);
    ~TopicPages() override;

    int pageCount() const override;
    void paintPage(QPainter& painter, int page) const override;

private:
    void copyPictures(const QTextDocument& topic);
    void dress();
    void findPageStarts();

    QSizeF m_area;
    QImage m_device; ///< with so many dots per inch as there are units
    std::unique_ptr<QTextDocument> m_document;
    /// Where the pages begin in the document, and at the end where it ends.
    std::vector<qreal> m_cuts;
};
