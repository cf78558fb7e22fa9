#include "tests/app/PseudoTranslator.h"

#include <QRegularExpression>

namespace
{

QString accented(const QString& text)
{
    const QString plain = QStringLiteral("acdeghijlnorstuwyzACDEGHIJLNORSTUWYZ");
    const QString changed =
        QStringLiteral("\u00e1\u00e7\u010f\u00e9\u0121\u0125\u00ed\u0135\u013c\u00f1\u00f6\u0155\u0161"
                       "\u0165\u00fc\u0175\u00fd\u017e\u00c1\u00c7\u010e\u00c9\u0120\u0124\u00cd\u0134"
                       "\u013b\u00d1\u00d6\u0154\u0160\u0164\u00dc\u0174\u00dd\u017d");
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        // The letter behind these belongs to the program.
        const bool isMarker = i > 0 && (text[i - 1] == u'%' || text[i - 1] == u'&');
        const qsizetype letter = isMarker ? -1 : plain.indexOf(text[i]);
        result += letter < 0 ? text[i] : changed[letter];
    }
    return result;
}

} // namespace

QString PseudoTranslator::translate(const char*, const char* source, const char*, int) const
{
    const QString text = QString::fromUtf8(source);
    if (text == QLatin1String("QT_LAYOUT_DIRECTION")) {
        return {};
    }
    // The part of a file filter that is not for the eye.
    static const QRegularExpression patterns(QStringLiteral("\\s*(\\(\\*[^)]*\\))?(\\|.*)?$"));
    const qsizetype end = patterns.match(text).capturedStart();
    const QString words = text.left(end);
    static const QRegularExpression ownedByTheProgram(QStringLiteral("%(n|L?\\d+)|&(?=\\S)|\\n"));
    const QString again = QString(words).remove(ownedByTheProgram);
    return u'[' + accented(words) + u' ' + accented(again) + u']' + text.mid(end);
}
