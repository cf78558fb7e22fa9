#include "support/PdfFile.h"

#include <QProcess>
#include <QTest>

QStringList pagesOfPdf(const QString& file)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), file, QStringLiteral("-")});
    if (!reader.waitForFinished() || reader.exitCode() != 0) {
        QTest::qFail(qPrintable(reader.errorString() + QString::fromLocal8Bit(reader.readAllStandardError())),
            __FILE__, __LINE__);
        return {};
    }
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f');
    // Each page ends with a form feed.
    pages.removeLast();
    return pages;
}
