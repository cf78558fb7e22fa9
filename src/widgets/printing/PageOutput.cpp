#include "widgets/printing/PageOutput.h"

#include "system/FileReplace.h"
#include "system/Progress.h"

#include <QFileInfo>
#include <QLocale>
#include <QPageRanges>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <algorithm>
#include <cerrno>
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

std::vector<int> allPages(const PrintedPages& pages)
{
    std::vector<int> all(static_cast<std::size_t>(pages.pageCount()));
    std::iota(all.begin(), all.end(), 0);
    return all;
}

std::vector<int> chosenPages(const QPrinter& printer, int pageCount, int currentPage)
{
    const QPageRanges ranges = printer.pageRanges();
    const auto isChosen = [&](int page) {
        switch (printer.printRange()) {
        case QPrinter::CurrentPage:
            return page == std::min(currentPage, pageCount - 1);
        case QPrinter::PageRange:
            return ranges.isEmpty() || ranges.contains(page + 1);
        default:
            return true;
        }
    };
    std::vector<int> pages;
    for (int page = 0; page < pageCount; ++page) {
        if (isChosen(page)) {
            pages.push_back(page);
        }
    }
    if (printer.pageOrder() == QPrinter::LastPageFirst) {
        std::reverse(pages.begin(), pages.end());
    }
    return pages;
}

void paintPage(QPainter& painter, const PrintedPages& pages, int page)
{
    painter.save();
    painter.scale(painter.device()->logicalDpiX() / qreal(UnitsPerInch),
        painter.device()->logicalDpiY() / qreal(UnitsPerInch));
    pages.paintPage(painter, page);
    painter.restore();
}

bool paintPages(
    QPagedPaintDevice& device, const PrintedPages& pages, const std::vector<int>& order, Progress* progress)
{
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    qint64 done = 0;
    for (const int page : order) {
        if (done > 0 && !device.newPage()) {
            return false;
        }
        paintPage(painter, pages, page);
        ++done;
        if (progress != nullptr) {
            progress->advance(done, static_cast<qint64>(order.size()));
        }
    }
    return painter.end();
}

std::optional<QString> writePdf(
    const PdfTarget& target, const PrintedPages& pages, const std::vector<int>& order, Progress* progress)
{
    const QFileInfo present(target.file);
    if (present.isFile() && !present.isWritable()) {
        // replaceByWriting() could replace it nevertheless, but that is not what write protection means.
        return FileError::reason(EACCES);
    }
    const auto permissions = present.isFile() ? present.permissions() : PublicFile;
    try {
        replaceByWriting(target.file, permissions, [&](QIODevice& file) {
            QPdfWriter writer(&file);
            writer.setResolution(UnitsPerInch);
            writer.setPageLayout(target.page);
            writer.setTitle(target.title);
            writer.setCreator(QStringLiteral("Ambertask"));
            if (!paintPages(writer, pages, order, progress)) {
                throw FileError(target.file, file.errorString());
            }
        });
    } catch (const FileError& error) {
        return error.why();
    }
    return std::nullopt;
}
