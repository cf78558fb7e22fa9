#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QString>

// Picture files for tests.

/// The bytes of a JPEG of one colour.
QByteArray jpegOf(QSize size, QColor colour = Qt::red);
/// A JPEG of one colour in several scans, each of the whole picture.
QByteArray progressiveJpegOf(QSize size);
/// A JPEG that claims that size; the pixels of a smaller one follow.
QByteArray jpegClaiming(QSize size);
/// The bytes of a PNG of one colour.
QByteArray pngOf(QSize size, QColor colour = Qt::red);
/// The bytes of a GIF of one red pixel, on a screen of the given size.
QByteArray gifOf(QSize screen = QSize(1, 1));
/// A PNG whose header claims that size; its pixels are missing.
QByteArray pngHeaderClaiming(QSize size);

/// Writes the file, makes its folder first, and answers its path.
QString writeFile(const QString& folder, const QString& name, const QByteArray& bytes);
/// The bytes of a file; fails the test when it cannot be read.
QByteArray bytesOf(const QString& path);
