#pragma once

#include <QImage>

class QTextDocument;

/// What stands for a picture that the help file does not hold: a small frame with a cross in it, grey, to be
/// seen on light and dark ground. For a null picture Qt would read the file of that name on the
/// disk.
const QImage& noPicture();

/// Lets the alternative text follow each picture of `topic` that is missing, for which noPicture() is the
/// resource, and gives that its own size. To be done once, when the topic has been read. Answers whether
/// there were any.
bool tellMissingPictures(QTextDocument& topic);
