#pragma once

#include "widgets/printing/PrintedPages.h"

#include <QPageLayout>
#include <QString>
#include <optional>
#include <vector>

class Progress;
class QPagedPaintDevice;
class QPrinter;

/// The usual paper of the user's country, upright, with margins that every printer can keep.
QPageLayout usualPage();

/// The printable area of a page, in units.
QSizeF printableArea(const QPageLayout& page);

/// The numbers of all pages, from 0.
std::vector<int> allPages(const PrintedPages& pages);

/// The pages, counted from 0, that a print dialog has set `printer` to print, in the order of printing. Of a
/// current page that is no more, as the paper has become larger, the last one takes the place.
std::vector<int> chosenPages(const QPrinter& printer, int pageCount, int currentPage);

/// Paints one page onto a device whose origin is the top left corner of the printable area.
void paintPage(QPainter& painter, const PrintedPages& pages, int page);

/// Paints the pages in that order. False when the device cannot be painted on. `progress` may be null and
/// is told of each page. Throws Cancelled.
bool paintPages(QPagedPaintDevice& device, const PrintedPages& pages, const std::vector<int>& order,
    Progress* progress = nullptr);

/// A PDF file to be written.
struct PdfTarget {
    QString file;
    QString title;
    QPageLayout page;
};

/// Writes the pages in that order to a PDF file, which appears complete or not at all. Returns the text of
/// a failure. `progress` may be null and is told of each page. Throws Cancelled.
std::optional<QString> writePdf(const PdfTarget& target, const PrintedPages& pages,
    const std::vector<int>& order, Progress* progress = nullptr);
