#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QString>

/// A picture file from outside, which may hold anything whatever its name says. GIF, JPEG and PNG are
/// recognized by their content; everything else is refused, and so is what is incomplete, larger than 64
/// MiB or larger than 4096 x 4096 pixels (12000 x 12000 for a JPEG that can be read line by line, as
/// cameras write it).
class PictureFile
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)

public:
    /// Does not touch the file yet.
    explicit PictureFile(const QString& path);

    /// The picture (of an animation the first one), scaled down to fit a square of `edge` pixels but never
    /// up. Throws RuntimeError that names the file and the reason.
    QImage load(int edge) const;

    /// The sentence for a damaged picture.
    static QString refusal(const QString& path);

private:
    QByteArray read() const;
    [[noreturn]] void refuse(const QString& reason) const;

    QString m_path;
};
