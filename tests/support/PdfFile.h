#pragma once

#include <QStringList>

/// The text of each page of a PDF file, as a reader of PDF files sees it; fails the test when it is none.
QStringList pagesOfPdf(const QString& file);
