#pragma once

#include <QImage>
#include <QStringList>

/// The text of each page of a PDF file, as a reader of PDF files sees it; fails the test when it is none.
QStringList pagesOfPdf(const QString& file);

/// A page of a PDF file, counted from 1, as a reader of PDF files paints it, 100 points an inch; fails the
/// test when it is none.
QImage pictureOfPdf(const QString& file, int page);
