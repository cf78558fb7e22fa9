#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QString>

/// A picture file from outside: whatever its name says, it may hold anything. GIF, JPEG and PNG are told by
/// their content; everything else is refused, as is what is incomplete or larger than 4096 x 4096 pixels (a
/// JPEG that can be read line by line, as cameras write it: 12000 x 12000) or 64 MiB.
class PictureFile
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)

public:
    /// Touches nothing yet.
    explicit PictureFile(const QString& path);

    /// The picture, the first one of an animation, made to fit a square of `edge` pixels; a smaller one keeps
    /// its size. Throws RuntimeError that names the file and says why.
    QImage load(int edge) const;

    /// What is said of a damaged picture.
    static QString refusal(const QString& path);

private:
    QByteArray read() const;
    [[noreturn]] void refuse(const QString& reason) const;

    QString m_path;
};
