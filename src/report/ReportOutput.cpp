#include "report/ReportOutput.h"

#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <algorithm>
#include <numeric>

QSizeF printableArea(const QPageLayout& page)
{
    return QSizeF(page.paintRectPixels(UnitsPerInch).size());
}

void paintReportPage(QPainter& painter, const ReportLayout& layout, int page)
{
    painter.save();
    painter.scale(painter.device()->logicalDpiX() / qreal(UnitsPerInch),
        painter.device()->logicalDpiY() / qreal(UnitsPerInch));
    layout.paintPage(painter, page);
    painter.restore();
}

bool paintReportPages(QPagedPaintDevice& device, const ReportLayout& layout, const std::vector<int>& pages)
{
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    bool first = true;
    for (const int page : pages) {
        if (!first && !device.newPage()) {
            return false;
        }
        first = false;
        paintReportPage(painter, layout, page);
    }
    return painter.end();
}

std::vector<int> chosenPages(const QPrinter& printer, int pageCount, int currentPage)
{
    int first = 1;
    int last = pageCount;
    if (printer.printRange() == QPrinter::CurrentPage) {
        first = last = currentPage + 1;
    } else if (printer.printRange() == QPrinter::PageRange) {
        first = std::max(1, printer.fromPage());
        last = printer.toPage() == 0 ? pageCount : std::min(pageCount, printer.toPage());
    }
    std::vector<int> pages(static_cast<std::size_t>(std::max(0, last - first + 1)));
    std::iota(pages.begin(), pages.end(), first - 1);
    if (printer.pageOrder() == QPrinter::LastPageFirst) {
        std::reverse(pages.begin(), pages.end());
    }
    return pages;
}

std::optional<QString> exportReportPdf(
    const ReportLayout& layout, const QPageLayout& page, const QString& title, const QString& file)
{
    // Writes beside the target; commit flushes to the disk and renames, and anything else leaves no trace.
    QSaveFile target(file);
    if (!target.open(QIODevice::WriteOnly)) {
        return target.errorString();
    }
    bool painted = false;
    {
        QPdfWriter writer(&target);
        writer.setResolution(UnitsPerInch);
        writer.setPageLayout(page);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Ambertask"));
        std::vector<int> pages(static_cast<std::size_t>(layout.pageCount()));
        std::iota(pages.begin(), pages.end(), 0);
        painted = paintReportPages(writer, layout, pages);
    }
    if (!painted) {
        target.cancelWriting();
    }
    if (!target.commit()) {
        return target.errorString();
    }
    return std::nullopt;
}
