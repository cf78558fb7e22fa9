#include "Require.h"
#include "data/SqlText.h"
#include "store/DatabaseError.h"
#include "store/Dialect.h"

#include <QStringList>
#include <cstdint>

namespace
{

/// The texts between single quotes of a statement, the doubled quotes in them single again.
QStringList stringsOf(const QString& statement)
{
    QStringList strings;
    for (qsizetype i = 0; i < statement.size(); ++i) {
        if (statement[i] != u'\'') {
            continue;
        }
        QString text;
        for (++i;
             i < statement.size() && (statement[i] != u'\'' || statement.mid(i, 2) == QLatin1String("''"));
             ++i) {
            text += statement[i];
            i += statement[i] == u'\'' ? 1 : 0;
        }
        strings.append(text);
    }
    return strings;
}

} // namespace

// Three texts, separated by zero bytes, as values of a statement: whatever markers, quotes or literals they
// hold, they can be read back unchanged, and the rest of the statement is unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QList<QByteArray> parts =
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)).split('\0');
    const QString first = QString::fromUtf8(parts.value(0));
    const QString second = QString::fromUtf8(parts.value(1));
    const QString third = QString::fromUtf8(parts.value(2));
    const QString filled = fillMarkers(u"insert into t(a,b,c,d) values('<a/>','<b/>',#<d/>#,'<c/>','<a/>')",
        {{u"<a/>", EscapeSqlText(first)}, {u"<b/>", EscapeSqlText(second)}, {u"<c/>", EscapeSqlText(third)},
            {u"<d/>", QStringLiteral("1/31/2007 23:59")}});
    require(filled
            == QLatin1String("insert into t(a,b,c,d) values('") + EscapeSqlText(first) + QLatin1String("','")
                + EscapeSqlText(second) + QLatin1String("',#1/31/2007 23:59#,'") + EscapeSqlText(third)
                + QLatin1String("','") + EscapeSqlText(first) + QLatin1String("')"),
        "each marker is replaced once and nothing else is");
    const QString translated = QString::fromStdString(translateDialect(filled.toStdString()));
    require(stringsOf(translated)
            == QStringList({first, second, QStringLiteral("2007-01-31 23:59:00"), third, first}),
        "every text comes out as it went in");
    return 0;
}
