#include "help/window/MissingPictures.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <vector>

namespace
{

constexpr int FrameSize = 16;

QImage drawnFrame()
{
    QImage frame(FrameSize, FrameSize, QImage::Format_ARGB32_Premultiplied);
    frame.fill(Qt::transparent);
    QPainter painter(&frame);
    painter.setPen(QColor(0x80, 0x80, 0x80));
    painter.drawRect(0, 0, FrameSize - 1, FrameSize - 1);
    constexpr int begin = 4;
    constexpr int end = FrameSize - 1 - begin;
    painter.drawLine(begin, begin, end, end);
    painter.drawLine(begin, end, end, begin);
    return frame;
}

struct Picture {
    int position;
    QTextImageFormat format;
};

std::vector<Picture> missingIn(const QTextDocument& topic)
{
    std::vector<Picture> missing;
    for (QTextBlock block = topic.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            const QTextFragment fragment = part.fragment();
            const QTextImageFormat format = fragment.charFormat().toImageFormat();
            if (!format.isValid()) {
                continue;
            }
            const auto image =
                topic.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
            // Equal pictures in a row are one fragment.
            for (int i = 0; image.cacheKey() == noPicture().cacheKey() && i < fragment.length(); ++i) {
                missing.push_back({fragment.position() + i, format});
            }
        }
    }
    return missing;
}

/// The format of the text around the picture, including its link.
QTextCharFormat textFormat(QTextCharFormat format)
{
    format.setObjectType(QTextFormat::NoObject);
    for (const auto property : {QTextFormat::ImageName, QTextFormat::ImageTitle, QTextFormat::ImageAltText,
             QTextFormat::ImageWidth, QTextFormat::ImageHeight}) {
        format.clearProperty(property);
    }
    return format;
}

} // namespace

const QImage& noPicture()
{
    static const QImage frame = drawnFrame();
    return frame;
}

bool tellMissingPictures(QTextDocument& topic)
{
    const std::vector<Picture> missing = missingIn(topic);
    QTextCursor cursor(&topic);
    cursor.beginEditBlock();
    // From last to first, so that the positions of the others stay valid.
    for (auto picture = missing.rbegin(); picture != missing.rend(); ++picture) {
        QTextImageFormat format = picture->format;
        const QString text = format.stringProperty(QTextFormat::ImageAltText).simplified();
        format.clearProperty(QTextFormat::ImageWidth);
        format.clearProperty(QTextFormat::ImageHeight);
        cursor.setPosition(picture->position);
        cursor.setPosition(picture->position + 1, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
        if (!text.isEmpty()) {
            cursor.setPosition(picture->position + 1);
            cursor.insertText(QChar(QChar::Nbsp) + text, textFormat(format));
        }
    }
    cursor.endEditBlock();
    return !missing.empty();
}
