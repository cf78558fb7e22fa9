#pragma once

#include <QByteArray>
#include <QImage>

/// The edge, in pixels, of the square that holds a picture's small rendition: enough for lists at a scale
/// of 3.
inline constexpr int RenditionEdge = 96;
inline constexpr qsizetype LargestPackedPicture = 16 + qsizetype{4} * RenditionEdge * RenditionEdge;

/// A rendition as bytes: size and pixels. The bytes may come back from an untrusted place.
QByteArray packedPicture(const QImage& picture);
/// Null when the bytes are no rendition.
QImage unpackedPicture(const QByteArray& bytes);
