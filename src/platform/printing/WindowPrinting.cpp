#include "platform/printing/WindowPrinting.h"

#include "platform/printing/OutputProgress.h"

#include <QCoreApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

bool hasPrinter()
{
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

Outcome printThroughDialog(QWidget& window, const PrintRequest& request)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(request.page);
    printer.setDocName(request.title);
    QPrintDialog dialog(&printer, &window);
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint, window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, request.pageCount);
    if (dialog.exec() != QDialog::Accepted) {
        return Outcome::Cancelled;
    }
    // The dialog may have chosen another paper.
    const auto pages = request.layOut(printableArea(printer.pageLayout()));
    const std::vector<int> order = chosenPages(printer, pages->pageCount(), request.currentPage);
    if (order.empty()) {
        return Outcome::Done;
    }
    OutputProgress progress(
        window, QCoreApplication::translate("Printing", "Printing..."), static_cast<int>(order.size()));
    return paintPages(printer, *pages, order, [&] {
        const bool goOn = progress.pageDone();
        if (!goOn) {
            printer.abort();
        }
        return goOn;
    });
}

PdfOutcome writePdfFrom(QWidget& window, const PrintedPages& pages, const QPageLayout& page,
    const QString& title, const QString& file)
{
    OutputProgress progress(
        window, QCoreApplication::translate("Printing", "Writing the PDF file..."), pages.pageCount());
    return writePdf(pages, page, title, file, [&progress] { return progress.pageDone(); });
}
