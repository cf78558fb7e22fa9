#include "platform/PlainToolTip.h"

namespace
{

constexpr qsizetype LongestText = 2000;

}

QString plainToolTip(const QString& text)
{
    if (text.isEmpty()) {
        return {};
    }
    QString shown = text.size() <= LongestText ? text : text.left(LongestText) + QChar(0x2026);
    shown = shown.toHtmlEscaped().replace(u'\n', QLatin1String("<br>"));
    return QLatin1String("<qt>") + shown + QLatin1String("</qt>");
}
