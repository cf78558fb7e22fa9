#pragma once

#include "platform/printing/PageOutput.h"

#include <functional>
#include <memory>

class QWidget;

// Printing from a window, with a box that shows how far it is and offers to cancel it once it takes long.

/// What is to be printed.
struct PrintRequest {
    QString title; ///< of the job, in the queue of the printer
    QPageLayout page; ///< proposed to the user
    int pageCount = 1; ///< on that page
    int currentPage = 0; ///< counted from 0
    /// Lays it out for a printable area of that size, in units.
    std::function<std::shared_ptr<const PrintedPages>(QSizeF area)> layOut;
};

/// Whether there is a printer to print on. The first question loads what the system has for printing.
bool hasPrinter();

/// What kept a request from being printed.
struct PrintFailure {
    QString file; ///< that was chosen in place of a printer; else empty, and so is the reason
    QString reason;
};

/// Lets the user choose printer and pages, and prints them. Who cancels dialog or printing has nothing
/// printed, and that is no failure.
std::optional<PrintFailure> printThroughDialog(QWidget& window, const PrintRequest& request);

/// Writes all pages to a PDF file, which appears complete or not at all. The text of the failure, if any; to
/// be cancelled is none.
std::optional<QString> writePdfFrom(QWidget& window, const PdfTarget& target, const PrintedPages& pages);
