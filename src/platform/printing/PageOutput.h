#pragma once

#include "platform/printing/PrintedPages.h"

#include <QPageLayout>
#include <QString>
#include <functional>
#include <vector>

class QPagedPaintDevice;
class QPrinter;

/// The paper that is usual where the program runs, upright, with margins that every printer can keep.
QPageLayout usualPage();

/// The printable area of a page, in units.
QSizeF printableArea(const QPageLayout& page);

/// What became of pages that were put out.
enum class Outcome { Done, Cancelled, Failed };

/// Called after each page that has been painted; answers whether to go on.
using PageDone = std::function<bool()>;

/// Paints one page onto a device whose origin is the corner of the printable area.
void paintPage(QPainter& painter, const PrintedPages& pages, int page);

/// Paints the pages of that order onto `device`. Fails when the device cannot be painted on.
Outcome paintPages(QPagedPaintDevice& device, const PrintedPages& pages, const std::vector<int>& order,
    const PageDone& pageDone = {});

/// The pages, counted from 0, that a print dialog has set `printer` to print, in the order of printing.
std::vector<int> chosenPages(const QPrinter& printer, int pageCount, int currentPage);

struct PdfOutcome {
    Outcome outcome = Outcome::Done;
    QString failure; ///< why it failed
};

/// Writes all pages to a PDF file, which appears complete or not at all.
PdfOutcome writePdf(const PrintedPages& pages, const QPageLayout& page, const QString& title,
    const QString& file, const PageDone& pageDone = {});
