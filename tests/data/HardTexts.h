#pragma once

#include <QString>
#include <QStringList>

/// Texts that a careless store would spoil.
inline QStringList hardTexts()
{
    return {QString(), QStringLiteral("Bob's call"), QStringLiteral("'"), QStringLiteral("''"),
        QStringLiteral("'; --"), QStringLiteral("#1/1/2007#"), QStringLiteral("half # a literal"),
        QStringLiteral("where order by"),
        QStringLiteral("<task_name/><task_desc/><cat_id/>#<task_due_date_time/>#"),
        QStringLiteral("a\\b %1 %2 \"q\" [x]"), QStringLiteral("  blanks  "),
        QStringLiteral("line\r\nline\tend"), QStringLiteral("/* no comment */ -- no comment"),
        QStringLiteral(u"שלום עולם"), QStringLiteral(u"\u202Eright to left\u202C"),
        QStringLiteral(u"\U0001F600\U0001F468\u200D\U0001F469"), QStringLiteral(u"e\u0301 \u00E9"),
        QStringLiteral("<b>bold</b>"), QStringLiteral("true"), QStringLiteral("now()")};
}

/// A megabyte of quotes.
inline QString longTextOfQuotes()
{
    return QString(1'000'000, QLatin1Char('\''));
}
