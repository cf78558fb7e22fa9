#include "tests/translations/SourceTexts.h"

#include <QRegularExpression>

namespace
{

/// The code without comments and included files, literals that follow each other joined.
QString plainCode(const QString& code)
{
    static const QRegularExpression literalOrComment(
        QStringLiteral("(\"(?:[^\"\\\\\\n]|\\\\.)*\"|'\"')|//[^\\n]*|/\\*.*?\\*/|^\\s*#include[^\\n]*$"),
        QRegularExpression::DotMatchesEverythingOption | QRegularExpression::MultilineOption);
    QString plain;
    qsizetype copied = 0;
    for (auto matches = literalOrComment.globalMatch(code); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        plain += code.mid(copied, match.capturedStart() - copied) + match.captured(1);
        copied = match.capturedEnd();
    }
    static const QRegularExpression seam(QStringLiteral("\"\\s*\""));
    return plain.append(QStringView(code).mid(copied)).remove(seam);
}

/// A statement or a piece of one that begins where a value has been put in, or a style rule. Told by the
/// beginning: what a user reads may hold any of these words.
bool isStatement(const QString& text)
{
    static const QRegularExpression statement(QStringLiteral(
        "^[#',]?\\s*(select (\\*|(count|ifnull|max|min)\\(|[\\w.]+(,| from))|insert (or replace )?into "
        "|DELETE "
        "FROM |delete "
        "from "
        "\\w+( where|\\s*$)"
        "|[Uu]pdate +\\w+ set |pragma \\w+$|PRAGMA |SELECT |CREATE (INDEX|TABLE) |UPDATE \\w+ SET "
        "|BEGIN IMMEDIATE$"
        "|(where|and) [\\w.]+ ?(<?=|in) ?|order by ?\\w*$)|^,\\w+='|^\\w+ <= now\\(\\)|^\\w+ in \\($"));
    static const QRegularExpression styleRule(QStringLiteral("^Q[A-Z]\\w+(::[\\w-]+)? \\{"));
    return text.contains(statement) || text.contains(styleRule);
}

} // namespace

QStringList untranslatedSentences(QString code)
{
    code = plainCode(code);
    static const QRegularExpression literal(QStringLiteral("\"((?:[^\"\\\\\\n]|\\\\.)*)\""));
    static const QRegularExpression call(
        QStringLiteral("(\\btr|translate|QT_TRANSLATE_NOOP)\\(\\s*(\"[^\"]*\",\\s*)?$"));
    static const QRegularExpression words(QStringLiteral("[A-Za-z]{2,}( [A-Za-z])? [A-Za-z]{2,}"));
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{2,}"));
    static const QRegularExpression caption(QStringLiteral(
        "(set(Text|Title|WindowTitle|ToolTip|StatusTip|WhatsThis|PlaceholderText|AccessibleName"
        "|AccessibleDescription)|add(Action|Button|Item|Tab)|Q(Label|GroupBox|PushButton|CheckBox|"
        "RadioButton))"
        "\\(\\s*((QStringLiteral|QLatin1String)\\(\\s*)?$"));
    QStringList found;
    for (auto matches = literal.globalMatch(code); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString text = match.captured(1);
        const qsizetype lookBehind = qMin<qsizetype>(match.capturedStart(), 200);
        const QString before = code.mid(match.capturedStart() - lookBehind, lookBehind);
        const bool isShown = text.contains(words) || (text.contains(word) && before.contains(caption));
        if (isShown && !isStatement(text) && !before.contains(call)) {
            found.append(text);
        }
    }
    return found;
}
