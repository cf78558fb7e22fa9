#pragma once

#include "platform/printing/PrintedPages.h"

#include <QImage>
#include <QSizeF>
#include <memory>
#include <vector>

class QTextDocument;

/// A help topic on paper: its text and pictures in black on white, whatever skin it is read in and however
/// large its letters are there. Lines, pictures and rows of tables are split between pages only where they
/// are taller than one. Reads nothing but `topic`, which it copies.
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
    QImage m_device; ///< says how many units an inch has
    std::unique_ptr<QTextDocument> m_document;
    /// Where the pages begin in the document, and below them where it ends.
    std::vector<qreal> m_cuts;
};
