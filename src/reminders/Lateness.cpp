#include "reminders/Lateness.h"

#include "widgets/MomentTexts.h"

#include <QCoreApplication>
#include <QLocale>

using namespace std::chrono_literals;

namespace
{

struct Lateness {
    Q_DECLARE_TR_FUNCTIONS(Lateness)
};

} // namespace

QString latenessText(Moment reminder, Moment now)
{
    const std::chrono::seconds late = now - reminder;
    if (late < 1min) {
        return Lateness::tr("due now");
    }
    // English is not translated, so the singular needs a text of its own.
    if (late < 1h) {
        const int n = static_cast<int>(late / 1min);
        return n == 1 ? Lateness::tr("1 minute late") : Lateness::tr("%n minutes late", nullptr, n);
    }
    if (late < 24h) {
        const int n = static_cast<int>(late / 1h);
        return n == 1 ? Lateness::tr("1 hour late") : Lateness::tr("%n hours late", nullptr, n);
    }
    const int n = static_cast<int>(late / 24h);
    return n == 1 ? Lateness::tr("1 day late") : Lateness::tr("%n days late", nullptr, n);
}

QString missedText(int times, Moment first, Moment now)
{
    if (times < 2) {
        return {};
    }
    // The same weekday a week ago would be taken for today.
    const bool isOfThisWeek = startOfDay(now) - startOfDay(first) < std::chrono::days(7);
    const QString since = isOfThisWeek
        ? QLocale().standaloneDayName(toQDate(first).dayOfWeek(), QLocale::LongFormat)
        : shortDate(first);
    return Lateness::tr("%n times since %1", nullptr, times).arg(since);
}
