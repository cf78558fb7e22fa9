#pragma once

#include "report/ReportLayout.h"

#include <QPageLayout>
#include <optional>

class QPagedPaintDevice;
class QPrinter;

/// The printable area of a page, in units.
QSizeF printableArea(const QPageLayout& page);

/// Paints one page of `layout` onto a device whose origin is the corner of the printable area.
void paintReportPage(QPainter& painter, const ReportLayout& layout, int page);

/// Paints the pages, in that order, onto `device`. False when the device cannot be painted on, or fails.
bool paintReportPages(QPagedPaintDevice& device, const ReportLayout& layout, const std::vector<int>& pages);

/// The pages, counted from 0, that a print dialog has set `printer` to print, in the order of printing.
std::vector<int> chosenPages(const QPrinter& printer, int pageCount, int currentPage);

/// Writes the whole report to a PDF file, which appears complete or not at all. The text of the failure, if
/// any.
std::optional<QString> exportReportPdf(
    const ReportLayout& layout, const QPageLayout& page, const QString& title, const QString& file);
