#pragma once

#include <QImage>

class QTextDocument;

/// Shown for a picture that the help file does not hold: a small grey frame with a cross, visible on light
/// and dark backgrounds. Workaround: for a null image Qt 6.4.2 reads the file of that name from the disk
/// (tst_qt_workarounds, aPictureThatIsNotThereIsReadFromTheDisk).
const QImage& noPicture();

/// Adds the alternative text behind each missing picture of `topic`, whose resource must be noPicture(),
/// and gives that its own size. To be called once, after the topic was read. Returns whether any picture
/// was missing.
bool tellMissingPictures(QTextDocument& topic);
