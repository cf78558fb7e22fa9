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

/// How a request ended.
struct PrintResult {
    /// Who cancels a dialog or the printing has nothing printed, and that is no failure.
    enum class Kind { Done, Cancelled, Failed };
    Kind kind = Kind::Cancelled;
    QString file; ///< that was written, or was to be, in place of a printer; empty for a printer
    QString reason; ///< why the file could not be written
};

/// Lets the user choose printer and pages, and prints them.
PrintResult printThroughDialog(QWidget& window, const PrintRequest& request);

/// Writes all pages to a PDF file, which appears complete or not at all.
PrintResult writePdfFrom(QWidget& window, const PdfTarget& target, const PrintedPages& pages);
