#pragma once

#include <QImage>
#include <QStringList>

/// The text of each page of a PDF file, read by an independent program; fails the test when that cannot
/// read it.
QStringList pagesOfPdf(const QString& file);

/// A page of a PDF file, counted from 1, rendered by an independent program at 100 dots an inch; fails the
/// test when that cannot read it.
QImage pictureOfPdf(const QString& file, int page);
