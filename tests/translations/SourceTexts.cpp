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

} // namespace

QStringList untranslatedSentences(QString code)
{
    code = plainCode(code);
    static const QRegularExpression literal(QStringLiteral("\"((?:[^\"\\\\\\n]|\\\\.)*)\""));
    static const QRegularExpression call(
        QStringLiteral("(\\btr|translate|QT_TRANSLATE_NOOP)\\(\\s*(\"[^\"]*\",\\s*)?$"));
    static const QRegularExpression sentence(QStringLiteral("[A-Za-z]{2,} [a-z]{2,}"));
    static const QRegularExpression statement(QStringLiteral("[{_]|\\b(select|update|delete|pragma|where) "),
        QRegularExpression::CaseInsensitiveOption);
    QStringList found;
    for (auto matches = literal.globalMatch(code); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString text = match.captured(1);
        const qsizetype lookBehind = qMin<qsizetype>(match.capturedStart(), 200);
        const QString before = code.mid(match.capturedStart() - lookBehind, lookBehind);
        if (text.contains(sentence) && !text.contains(statement) && !before.contains(call)) {
            found.append(text);
        }
    }
    return found;
}
