#include "data/SqlText.h"

#include "data/RepeatRules.h"

#include <QStringList>
#include <algorithm>

QString EscapeSqlText(const QString& text)
{
    QString escaped = text;
    return escaped.replace(QLatin1Char('\''), QLatin1String("''"));
}

QString sqlDate(Moment moment)
{
    const auto day = dayOf(moment);
    return QStringLiteral("%1/%2/%3")
        .arg(static_cast<unsigned>(day.month()))
        .arg(static_cast<unsigned>(day.day()))
        .arg(static_cast<int>(day.year()), 4, 10, QLatin1Char('0'));
}

QString sqlDateTime(Moment moment)
{
    const int minutes = static_cast<int>(timeOfDayOf(moment).count()) / 60;
    return QStringLiteral("%1 %2:%3")
        .arg(sqlDate(moment))
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

QString sqlMoment(Moment moment)
{
    return u'\'' + QString::fromStdString(storedText(moment)) + u'\'';
}

QString sqlRepeat(qint32 ofTask, const Repeat& repeat)
{
    return QStringList{QString::number(ofTask),
        u'\'' + EscapeSqlText(QString::fromStdString(repeat.rule)) + u'\'', sqlMoment(repeat.first),
        QString::number(repeat.lead.count()), QString::number(repeat.done)}
        .join(u',');
}

QString sqlTaskIsOneOf(const QList<qint32>& ids)
{
    if (ids.size() == 1) {
        return QLatin1String("task_id = ") + QString::number(ids.first());
    }
    QStringList digits;
    for (const qint32 id : ids) {
        digits.append(QString::number(id));
    }
    return QLatin1String("task_id in (") + digits.join(u',') + u')';
}

QString sqlFlag(bool flag)
{
    return flag ? QStringLiteral("1") : QStringLiteral("0");
}

QString fillMarkers(QStringView pattern, std::initializer_list<Marker> markers)
{
    qsizetype size = pattern.size();
    for (const Marker& marker : markers) {
        size += marker.value.size();
    }
    QString filled;
    filled.reserve(size);
    qsizetype copied = 0;
    qsizetype position = pattern.indexOf(QLatin1Char('<'));
    while (position != -1) {
        const QStringView rest = pattern.mid(position);
        const auto* marker = std::find_if(markers.begin(), markers.end(),
            [rest](const Marker& candidate) { return rest.startsWith(candidate.marker); });
        qsizetype next = position + 1;
        if (marker != markers.end()) {
            filled += pattern.mid(copied, position - copied);
            filled += marker->value;
            next = position + marker->marker.size();
            copied = next;
        }
        position = pattern.indexOf(QLatin1Char('<'), next);
    }
    filled += pattern.mid(copied);
    return filled;
}
