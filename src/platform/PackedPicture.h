#pragma once

#include <QByteArray>
#include <QImage>

/// The edge of the square that holds a small rendition of a picture: enough for the lists on a screen with
/// three device pixels to each of ours.
inline constexpr int RenditionEdge = 96;
inline constexpr qsizetype LargestPackedPicture = 16 + qsizetype{4} * RenditionEdge * RenditionEdge;

/// A rendition as bytes: its size and its pixels. What it is unpacked from may come from anyone.
QByteArray packedPicture(const QImage& picture);
/// Null when the bytes are no rendition.
QImage unpackedPicture(const QByteArray& bytes);
