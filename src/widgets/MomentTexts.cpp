#include "widgets/MomentTexts.h"

#include "system/Language.h"

#include <QLocale>

QString shortTimeFormat()
{
    return QStringLiteral("HH:mm");
}

QString shortDate(Moment moment)
{
    return QLocale().toString(toQDate(moment), shortDateFormat());
}

QString longTime(Moment moment)
{
    // In the format "t" stands for the time zone; quoted text stays.
    QString format;
    bool quoted = false;
    for (const QChar c : QLocale().timeFormat(QLocale::LongFormat)) {
        if (c == u'\'') {
            quoted = !quoted;
        }
        if (quoted || c != u't') {
            format += c;
        }
    }
    // The zone may have been in brackets.
    format.remove(QStringLiteral("()")).remove(QStringLiteral("[]"));
    return QLocale().toString(toQTime(moment), format.trimmed());
}

QString dateAndLongTime(Moment moment)
{
    return shortDate(moment) + u' ' + longTime(moment);
}
