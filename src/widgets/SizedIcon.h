#pragma once

#include <QIcon>
#include <QList>

/// One picture as a file for each size: rows of red, green, blue and alpha, one byte each, premultiplied.
/// For an image format Qt would load all of its image plugins.
struct SizedPicture {
    QString file;
    QSize size;
};

/// An icon of a picture in several sizes, smallest first, none empty. A file is read when the icon is first
/// painted in about that size; QIcon would read all of them at once.
QIcon sizedIcon(const QList<SizedPicture>& pictures);
