#pragma once

#include "platform/printing/PrintedPages.h"

#include <QPageLayout>
#include <QString>
#include <optional>
#include <vector>

class Progress;
class QPagedPaintDevice;
class QPrinter;

/// The paper that is usual where the program runs, upright, with margins that every printer can keep.
QPageLayout usualPage();

/// The printable area of a page, in units.
QSizeF printableArea(const QPageLayout& page);

/// The numbers of all pages, from 0.
std::vector<int> allPages(const PrintedPages& pages);

/// The pages, counted from 0, that a print dialog has set `printer` to print, in the order of printing.
std::vector<int> chosenPages(const QPrinter& printer, int pageCount, int currentPage);

/// Paints one page onto a device whose origin is the corner of the printable area.
void paintPage(QPainter& painter, const PrintedPages& pages, int page);

/// Paints the pages of that order onto `device`. False when the device cannot be painted on. `progress`,
/// which may be null, is told of each page. Throws Cancelled.
bool paintPages(QPagedPaintDevice& device, const PrintedPages& pages, const std::vector<int>& order,
    Progress* progress = nullptr);

/// A PDF file that is to be written.
struct PdfTarget {
    QString file;
    QString title;
    QPageLayout page;
};

/// Writes the pages of that order to a PDF file, which appears complete or not at all. The text of the
/// failure, if any. `progress`, which may be null, is told of each page. Throws Cancelled.
std::optional<QString> writePdf(const PdfTarget& target, const PrintedPages& pages,
    const std::vector<int>& order, Progress* progress = nullptr);
