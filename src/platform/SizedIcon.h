#pragma once

#include <QIcon>
#include <QList>

/// One picture in a file of its own for each size: rows of red, green, blue and alpha, one byte each, the
/// colours multiplied with the alpha. For a format with a name Qt loads all the readers that it has.
struct SizedPicture {
    QString file;
    QSize size;
};

/// An icon of a picture that comes in several sizes, the smallest first, none of them empty. A file is read
/// when the picture is first painted in about that size: Qt's own icons read all of them at once.
QIcon sizedIcon(const QList<SizedPicture>& pictures);
