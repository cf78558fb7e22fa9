#include "platform/printing/PageOutput.h"

#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <algorithm>
#include <numeric>

namespace
{

constexpr qreal MarginMillimetres = 15;

} // namespace

QPageLayout usualPage()
{
    const bool isImperial = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(isImperial ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
        QMarginsF(MarginMillimetres, MarginMillimetres, MarginMillimetres, MarginMillimetres),
        QPageLayout::Millimeter};
}

QSizeF printableArea(const QPageLayout& page)
{
    return QSizeF(page.paintRectPixels(UnitsPerInch).size());
}

void paintPage(QPainter& painter, const PrintedPages& pages, int page)
{
    painter.save();
    painter.scale(painter.device()->logicalDpiX() / qreal(UnitsPerInch),
        painter.device()->logicalDpiY() / qreal(UnitsPerInch));
    pages.paintPage(painter, page);
    painter.restore();
}

Outcome paintPages(QPagedPaintDevice& device, const PrintedPages& pages, const std::vector<int>& order,
    const PageDone& pageDone)
{
    QPainter painter;
    if (!painter.begin(&device)) {
        return Outcome::Failed;
    }
    bool first = true;
    for (const int page : order) {
        if (!first && !device.newPage()) {
            return Outcome::Failed;
        }
        first = false;
        paintPage(painter, pages, page);
        if (pageDone && !pageDone()) {
            return Outcome::Cancelled;
        }
    }
    return painter.end() ? Outcome::Done : Outcome::Failed;
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

PdfOutcome writePdf(const PrintedPages& pages, const QPageLayout& page, const QString& title,
    const QString& file, const PageDone& pageDone)
{
    // Writes beside the target; commit flushes to the disk and renames, and anything else leaves no trace.
    QSaveFile target(file);
    if (!target.open(QIODevice::WriteOnly)) {
        return {Outcome::Failed, target.errorString()};
    }
    Outcome outcome = Outcome::Failed;
    {
        QPdfWriter writer(&target);
        writer.setResolution(UnitsPerInch);
        writer.setPageLayout(page);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Ambertask"));
        std::vector<int> order(static_cast<std::size_t>(pages.pageCount()));
        std::iota(order.begin(), order.end(), 0);
        outcome = paintPages(writer, pages, order, pageDone);
    }
    if (outcome == Outcome::Cancelled) {
        return {outcome, {}};
    }
    if (outcome == Outcome::Failed || !target.commit()) {
        return {Outcome::Failed, target.errorString()};
    }
    return {};
}
