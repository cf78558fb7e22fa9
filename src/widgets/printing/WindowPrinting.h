#pragma once

#include "widgets/printing/PageOutput.h"

#include <functional>
#include <memory>

class QWidget;

// Printing from a window. A box shows how far it is and offers to cancel it when it takes long.

/// What is to be printed.
struct PrintRequest {
    QString title; ///< of the job, in the queue of the printer
    QPageLayout page; ///< paper to begin with
    int pageCount = 1; ///< on that page
    int currentPage = 0; ///< counted from 0
    /// Lays the pages out for a printable area of that size, in units.
    std::function<std::shared_ptr<const PrintedPages>(QSizeF area)> layOut;
};

/// Whether there is a printer. The first call loads the system's printing libraries.
bool hasPrinter();

/// How a request ended.
struct PrintResult {
    /// Cancelled: nothing was printed, which is not a failure.
    enum class Kind { Done, Cancelled, Failed };
    Kind kind = Kind::Cancelled;
    QString file; ///< that was written instead of printing, or failed to be; empty for a printer
    QString reason; ///< why the file could not be written
};

/// Lets the user choose printer and pages, and prints them.
PrintResult printThroughDialog(QWidget& window, const PrintRequest& request);

/// Writes all pages to a PDF file, which appears complete or not at all.
PrintResult writePdfFrom(QWidget& window, const PdfTarget& target, const PrintedPages& pages);
