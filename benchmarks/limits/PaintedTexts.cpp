#include "limits/PaintedTexts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <stdexcept>

void paintTextsToPdf(const ReportContent& content, const QString& file)
{
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(600);
    QPainter painter;
    if (!painter.begin(&writer)) {
        throw std::runtime_error("the PDF file could not be written");
    }
    QStringList captions;
    for (const ReportSection& section : content.sections) {
        for (const ReportControl& control : section.controls) {
            if (section.name == QLatin1String("cmdTasks_Detail")
                && control.kind == ReportControl::Kind::Label) {
                captions.append(control.caption);
            }
        }
    }
    const qreal line = QFontMetricsF(painter.font(), &writer).lineSpacing();
    const QRectF page(0, 0, writer.width(), writer.height());
    qreal y = 0;
    for (const std::vector<QString>& record : content.records) {
        QRectF description =
            painter.boundingRect(QRectF(0, 0, page.width(), page.height()), Qt::TextWordWrap, record.back());
        if (y + 4 * line + description.height() > page.height()) {
            writer.newPage();
            y = 0;
        }
        const qreal column = page.width() / static_cast<qreal>(captions.size());
        for (qsizetype i = 0; i < captions.size(); ++i) {
            painter.drawText(QPointF(column * static_cast<qreal>(i), y + line), captions[i]);
        }
        for (std::size_t i = 0; i + 1 < record.size(); ++i) {
            painter.drawText(QPointF(column * static_cast<qreal>(i), y + 2 * line), record[i]);
        }
        description.moveTop(y + 3 * line);
        painter.drawText(QRectF(description.topLeft(), QSizeF(page.width(), description.height())),
            Qt::TextWordWrap, record.back());
        y += 4 * line + description.height();
        painter.drawLine(QPointF(0, y - line / 2), QPointF(page.width(), y - line / 2));
    }
    painter.end();
}
