#include "settings/SkinSheet.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>
#include <array>

namespace
{

struct SkinSheet {
    Q_DECLARE_TR_FUNCTIONS(SkinSheet)
};

QString withColors(QStringView sheet, int firstLine, const SkinColors& colors)
{
    static const QRegularExpression token(QStringLiteral("\\$([A-Za-z0-9_-]*)"));
    QString expanded;
    int line = firstLine;
    qsizetype copied = 0;
    for (auto matches = token.globalMatch(sheet.toString()); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QStringView before = sheet.mid(copied, match.capturedStart() - copied);
        line += static_cast<int>(before.count(u'\n'));
        const auto color = colors.find(match.captured(1));
        if (color == colors.end()) {
            throw SkinLineError(line, SkinSheet::tr("unknown colour \"$%1\"").arg(match.captured(1)));
        }
        expanded += before;
        expanded += color->name();
        copied = match.capturedEnd();
    }
    expanded += sheet.mid(copied);
    return expanded;
}

/// Replaces comments and the content of strings by blanks, so that what is left can be searched. Keeps line
/// breaks.
QString withoutCommentsAndStrings(QStringView sheet, int firstLine)
{
    QString plain = sheet.toString();
    int line = firstLine;
    for (qsizetype i = 0; i < plain.size(); ++i) {
        const bool comment = QStringView(plain).mid(i).startsWith(u"/*");
        if (!comment && plain[i] != u'"' && plain[i] != u'\'') {
            line += plain[i] == u'\n' ? 1 : 0;
            continue;
        }
        const QString close = comment ? QStringLiteral("*/") : QString(plain[i]);
        const qsizetype end = plain.indexOf(close, i + (comment ? 2 : 1));
        if (end < 0) {
            throw SkinLineError(line,
                comment ? SkinSheet::tr("a comment has no end")
                        : SkinSheet::tr("a text in quotes has no end"));
        }
        const qsizetype last = end + close.size() - 1;
        for (qsizetype blank = i; blank <= last; ++blank) {
            line += plain[blank] == u'\n' ? 1 : 0;
            // The quotation marks stay: a text is a value.
            if (plain[blank] != u'\n' && (comment || (blank != i && blank != last))) {
                plain[blank] = u' ';
            }
        }
        i = last;
    }
    return plain;
}

/// What a style sheet may not do, wherever it does it.
struct Refusal {
    QRegularExpression pattern;
    const char* why;
};

void refuse(const QString& text, int line, const Refusal& refusal)
{
    const QRegularExpressionMatch match = refusal.pattern.match(text);
    if (match.hasMatch()) {
        const qsizetype before = QStringView(text).first(match.capturedStart()).count(u'\n');
        throw SkinLineError(
            line + static_cast<int>(before), SkinSheet::tr(refusal.why).arg(match.captured().trimmed()));
    }
}

QRegularExpression pattern(const char* text)
{
    return QRegularExpression(QLatin1String(text), QRegularExpression::CaseInsensitiveOption);
}

/// Whether a selector reaches a control that has an arrow: by its own type, or because it reaches every
/// widget.
bool reachesArrows(QStringView selector)
{
    static const QRegularExpression subject(QStringLiteral("([^\\s>]+)\\s*$"));
    static const QRegularExpression parts(
        QStringLiteral("^\\.?(\\*|[A-Za-z_]\\w*)?(?:\\[[^\\]]*\\])*(?:#(\\w+))?"));
    const QRegularExpressionMatch match = parts.match(subject.match(selector.toString()).captured(1));
    const QString type = match.captured(1);
    const QString name = match.captured(2);
    if (type.isEmpty() || type == u"*" || type == u"QWidget" || type == u"QObject") {
        return name.isEmpty() || name.startsWith(u"cmb") || name.startsWith(u"dtp");
    }
    constexpr std::array<QStringView, 7> Arrowed{u"QComboBox", u"QAbstractSpinBox", u"QSpinBox",
        u"QDoubleSpinBox", u"QDateTimeEdit", u"QDateEdit", u"QTimeEdit"};
    return std::find(Arrowed.begin(), Arrowed.end(), type) != Arrowed.end();
}

void checkRule(const QString& selectors, int selectorLine, const QString& declarations, int line)
{
    static const Refusal drawnParts{
        pattern(
            "::(indicator|menu-indicator|menu-button|menu-arrow|up-arrow|down-arrow|left-arrow|right-arrow"
            "|drop-down|up-button|down-button|branch)\\b"),
        QT_TRANSLATE_NOOP("SkinSheet", "\"%1\" is drawn by the program")};
    static const Refusal atRule{pattern("@[\\w-]+"), QT_TRANSLATE_NOOP("SkinSheet", "\"%1\" is not allowed")};
    static const Refusal otherFiles{pattern("\\burl\\s*\\("),
        QT_TRANSLATE_NOOP("SkinSheet", "\"%1\": a skin is one file and holds no pictures")};
    static const Refusal properties{
        pattern("\\bqproperty-[\\w-]+"), QT_TRANSLATE_NOOP("SkinSheet", "\"%1\" is not allowed")};
    static const Refusal boxes{pattern("(^|[;\\s])(border|background)[\\w-]*\\s*:"),
        QT_TRANSLATE_NOOP("SkinSheet", "\"%1\" would take the arrow of a list or picker away")};
    refuse(selectors, selectorLine, drawnParts);
    refuse(selectors, selectorLine, atRule);
    refuse(declarations, line, otherFiles);
    refuse(declarations, line, properties);
    for (const QStringView selector : QStringView(selectors).split(u',')) {
        if (!selector.contains(u"::") && reachesArrows(selector)) {
            refuse(declarations, line, boxes);
        }
    }
}

void checkDeclarations(const QString& declarations, int line)
{
    static const QRegularExpression form(QStringLiteral("^\\s*[\\w-]+\\s*:\\s*\\S[\\s\\S]*$"));
    for (const QString& declaration : declarations.split(u';')) {
        const QString text = declaration.trimmed();
        const auto blankLines = QStringView(declaration)
                                    .first(declaration.indexOf(text.isEmpty() ? QString() : text))
                                    .count(u'\n');
        if (!text.isEmpty() && !form.match(text).hasMatch()) {
            throw SkinLineError(line + static_cast<int>(blankLines),
                SkinSheet::tr("\"%1\" is no property with a value").arg(text.section(u'\n', 0, 0)));
        }
        line += static_cast<int>(declaration.count(u'\n'));
    }
}

void checkRules(const QString& plain, int line)
{
    qsizetype start = 0;
    for (;;) {
        const qsizetype open = plain.indexOf(u'{', start);
        const qsizetype close = plain.indexOf(u'}', start);
        const QString selectors = plain.mid(start, (open < 0 ? plain.size() : open) - start);
        const QString trimmed = selectors.trimmed();
        const qsizetype before = trimmed.isEmpty() ? selectors.size() : selectors.indexOf(trimmed);
        const int selectorLine = line + static_cast<int>(QStringView(selectors).first(before).count(u'\n'));
        if (open < 0) {
            if (!trimmed.isEmpty()) {
                throw SkinLineError(selectorLine, SkinSheet::tr("expected a rule"));
            }
            return;
        }
        const qsizetype nested = plain.indexOf(u'{', open + 1);
        if (trimmed.isEmpty() || close < open || (nested >= 0 && nested < close)) {
            throw SkinLineError(selectorLine, SkinSheet::tr("a rule has no selector or no end"));
        }
        const int bodyLine = line + static_cast<int>(selectors.count(u'\n'));
        const QString declarations = plain.mid(open + 1, close - open - 1);
        checkDeclarations(declarations, bodyLine);
        checkRule(trimmed, selectorLine, declarations, bodyLine);
        line = bodyLine + static_cast<int>(declarations.count(u'\n'));
        start = close + 1;
    }
}

} // namespace

QString expandedSheet(QStringView sheet, int firstLine, const SkinColors& colors)
{
    QString expanded = withColors(sheet, firstLine, colors);
    checkRules(withoutCommentsAndStrings(expanded, firstLine), firstLine);
    return expanded;
}
