#include "support/PdfFile.h"

#include <QProcess>
#include <QTest>

namespace
{

/// What the reader writes; empty, and the test fails, when it cannot read.
QByteArray outputOf(const QString& program, const QStringList& arguments)
{
    QProcess reader;
    reader.start(program, arguments);
    constexpr int Patience = 120'000; // in milliseconds; two thousand pages on a busy machine
    if (!reader.waitForFinished(Patience) || reader.exitCode() != 0) {
        QTest::qFail(qPrintable(reader.errorString() + QString::fromLocal8Bit(reader.readAllStandardError())),
            __FILE__, __LINE__);
        return {};
    }
    return reader.readAllStandardOutput();
}

} // namespace

QStringList pagesOfPdf(const QString& file)
{
    QStringList pages = QString::fromUtf8(
        outputOf(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), file, QStringLiteral("-")}))
                            .split(u'\f');
    // Each page ends with a form feed.
    pages.removeLast();
    return pages;
}

QImage pictureOfPdf(const QString& file, int page)
{
    const QString number = QString::number(page);
    return QImage::fromData(outputOf(QStringLiteral("pdftoppm"),
        {QStringLiteral("-r"), QStringLiteral("100"), QStringLiteral("-f"), number, QStringLiteral("-l"),
            number, file}));
}
