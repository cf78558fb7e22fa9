#include "widgets/printing/WindowPrinting.h"

#include "widgets/FileDialogs.h"
#include "widgets/PlainDialogTexts.h"
#include "widgets/ScreenProgress.h"
#include "widgets/printing/WithheldPrinting.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace
{

/// Withdraws the print job when the user cancels.
class PrinterProgress final : public Progress
{
public:
    PrinterProgress(QPrinter& printer, Progress& progress) : m_printer(printer), m_progress(progress) { }

    void advance(qint64 done, qint64 total) override
    {
        try {
            m_progress.advance(done, total);
        } catch (const Cancelled&) {
            m_printer.abort();
            m_withheld.emplace();
            throw;
        }
    }

private:
    QPrinter& m_printer;
    Progress& m_progress;
    std::optional<WithheldPrinting> m_withheld;
};

/// `putOut` returns the reason of a failure, if any.
PrintResult putOutWithProgress(QWidget& window, const QString& text, const QString& file,
    const std::function<std::optional<QString>(Progress&)>& putOut)
{
    std::optional<QString> failure;
    try {
        ScreenProgress(&window, text).run([&](Progress& progress) { failure = putOut(progress); });
    } catch (const Cancelled&) {
        return {PrintResult::Kind::Cancelled, file, {}};
    }
    return {failure ? PrintResult::Kind::Failed : PrintResult::Kind::Done, file, failure.value_or(QString())};
}

PrintResult print(
    QWidget& window, QPrinter& printer, const PrintedPages& pages, const std::vector<int>& order)
{
    const QString text = QCoreApplication::translate("Printing", "Printing...");
    return putOutWithProgress(window, text, {}, [&](Progress& progress) -> std::optional<QString> {
        PrinterProgress withdrawing(printer, progress);
        const bool painted = paintPages(printer, pages, order, &withdrawing);
        return painted ? std::nullopt : std::optional(QString());
    });
}

PrintResult writePages(
    QWidget& window, const PdfTarget& target, const PrintedPages& pages, const std::vector<int>& order)
{
    const QString text = QCoreApplication::translate("Printing", "Writing the PDF file...");
    return putOutWithProgress(window, text, target.file,
        [&](Progress& progress) { return writePdf(target, pages, order, &progress); });
}

} // namespace

bool hasPrinter()
{
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

PrintResult printThroughDialog(QWidget& window, const PrintRequest& request)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(request.page);
    printer.setDocName(request.title);
    const PlainDialogTexts plainTexts;
    QPrintDialog dialog(&printer, &window);
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint, window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, request.pageCount);
    if (auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"))) {
        // Workaround: QPrintDialog proposes a file in the current folder or the home folder and has no call
        // to change that (Qt 6.4.2; tst_qt_workarounds, aPrintDoesNotGoToTheDocuments).
        file->setText(
            QDir(userFolder(QStandardPaths::DocumentsLocation)).filePath(QFileInfo(file->text()).fileName()));
    }
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    // The user may have chosen another paper in the dialog.
    const auto pages = request.layOut(printableArea(printer.pageLayout()));
    const std::vector<int> order = chosenPages(printer, pages->pageCount(), request.currentPage);
    if (order.empty()) {
        return {};
    }
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        const QString file = printer.outputFileName();
        return writePages(window, {file, request.title, printer.pageLayout()}, *pages, order);
    }
    return print(window, printer, *pages, order);
}

PrintResult writePdfFrom(QWidget& window, const PdfTarget& target, const PrintedPages& pages)
{
    return writePages(window, target, pages, allPages(pages));
}
