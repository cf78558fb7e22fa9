#pragma once

#include "report/ReportWindow.h"

/// Paints the values of all records, and the captions of the detail section, with a plain painter to a PDF
/// file on A4: the least that a report takes. Descriptions wrap; a record that does not fit begins a page.
/// Throws std::runtime_error.
void paintTextsToPdf(const ReportContent& content, const QString& file);
