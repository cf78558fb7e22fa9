#pragma once

#include <QIcon>
#include <QLatin1String>
#include <span>

/// A picture that the program brings along, as a file for each size: rows of red, green, blue and alpha, one
/// byte each, premultiplied. For an image format Qt would load all of its image plugins.
struct SizedPicture {
    QLatin1String folder; ///< holds a folder for each height
    QLatin1String name; ///< of the file, without ".pixels"
    std::span<const int> heights; ///< in pixels, the smallest first
    int proportion = 1; ///< the picture is so many times as wide as high
};

/// An icon of it. A file is read when the icon is first painted in about that size; QIcon would read all of
/// them at once. What `picture` points to lives as long as the program.
QIcon sizedIcon(const SizedPicture& picture);
