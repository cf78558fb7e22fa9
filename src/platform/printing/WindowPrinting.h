#pragma once

#include "platform/printing/PageOutput.h"

#include <memory>

class QWidget;

// Printing from a window: the program goes on answering, the window takes no input until it is over.

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

/// Lets the user choose printer and pages, and prints them. The user may cancel the dialog and the printing.
Outcome printThroughDialog(QWidget& window, const PrintRequest& request);

/// Writes all pages to a PDF file, which appears complete or not at all. The user may cancel.
PdfOutcome writePdfFrom(QWidget& window, const PrintedPages& pages, const QPageLayout& page,
    const QString& title, const QString& file);
