#include "settings/SkinSheet.h"

#include "settings/SkinGrammar.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>
#include <array>

namespace
{

struct SkinSheet {
    Q_DECLARE_TR_FUNCTIONS(SkinSheet)
};

bool isWordCharacter(QChar c)
{
    return c == u'_' || (c < QChar(0x80) && c.isLetterOrNumber());
}

/// Where the run of word characters and hyphens that begins at `start` ends.
qsizetype endOfWord(QStringView text, qsizetype start)
{
    while (start < text.size() && (isWordCharacter(text[start]) || text[start] == u'-')) {
        ++start;
    }
    return start;
}

QString withColors(QStringView sheet, int firstLine, const SkinColors& colors)
{
    QString expanded;
    expanded.reserve(sheet.size() + sheet.size() / 8);
    qsizetype copied = 0;
    for (qsizetype token = sheet.indexOf(u'$'); token >= 0; token = sheet.indexOf(u'$', copied)) {
        const qsizetype end = endOfWord(sheet, token + 1);
        const QString name = sheet.mid(token + 1, end - token - 1).toString();
        const auto color = colors.find(name);
        if (color == colors.end()) {
            throw SkinLineError(firstLine + static_cast<int>(sheet.first(token).count(u'\n')),
                SkinSheet::tr("unknown colour \"$%1\"").arg(name));
        }
        expanded += sheet.mid(copied, token - copied);
        expanded += color->name();
        copied = end;
    }
    expanded += sheet.mid(copied);
    return expanded;
}

/// Within quotation marks Qt's reader knows escapes and no line breaks: what it took for the end of
/// a text would be another place than here.
void requirePlainText(QStringView text, int line)
{
    for (const QChar c : text) {
        if (c == u'\n' || c == u'\r' || c == u'\f') {
            throw SkinLineError(line, SkinSheet::tr("a text in quotes has no end"));
        }
        if (c == u'\\' || (c < u' ' && c != u'\t') || c == u'\x7f') {
            throw SkinLineError(line, SkinSheet::tr("\"%1\" is not allowed").arg(c));
        }
    }
}

/// Replaces comments and the content of strings by blanks, so that what is left can be searched. Keeps line
/// breaks.
QString withoutCommentsAndStrings(QStringView sheet, int firstLine)
{
    QString plain = sheet.toString();
    int line = firstLine;
    for (qsizetype i = 0; i < sheet.size(); ++i) {
        const QChar c = sheet[i];
        const bool comment = c == u'/' && sheet.mid(i).startsWith(u"/*");
        if (!comment && c != u'"' && c != u'\'') {
            line += c == u'\n' ? 1 : 0;
            continue;
        }
        const QString close = comment ? QStringLiteral("*/") : QString(c);
        const qsizetype end = sheet.indexOf(close, i + (comment ? 2 : 1));
        if (end < 0) {
            throw SkinLineError(line,
                comment ? SkinSheet::tr("a comment has no end")
                        : SkinSheet::tr("a text in quotes has no end"));
        }
        const qsizetype last = end + close.size() - 1;
        if (!comment) {
            requirePlainText(sheet.mid(i + 1, end - i - 1), line);
        }
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
    /// Cheap, for patterns are slow: true for every text that the pattern matches somewhere.
    bool (*isSuspect)(QStringView text);
    QRegularExpression pattern;
    const char* why;
};

void refuse(const QString& text, int line, const Refusal& refusal)
{
    if (!refusal.isSuspect(text)) {
        return;
    }
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

bool hasDrawnPart(QStringView selectors)
{
    constexpr std::array<QStringView, 8> Beginnings{
        u"indicator", u"menu-", u"up-", u"down-", u"left-", u"right-", u"drop-", u"branch"};
    for (qsizetype part = selectors.indexOf(u"::"); part >= 0; part = selectors.indexOf(u"::", part + 1)) {
        const QStringView name = selectors.mid(part + 2);
        const bool drawn = std::any_of(Beginnings.begin(), Beginnings.end(),
            [name](QStringView beginning) { return name.startsWith(beginning, Qt::CaseInsensitive); });
        if (drawn) {
            return true;
        }
    }
    return false;
}

template <char16_t Sign> bool has(QStringView text)
{
    return text.contains(Sign);
}

/// The first letter of "qproperty-", which is rare.
bool hasQ(QStringView declarations)
{
    return declarations.contains(u'q') || declarations.contains(u'Q');
}

bool isAnything(QStringView /*text*/)
{
    return true;
}

/// What a selector says of the controls that it reaches: their type and their name, as far as it names them.
struct SelectorSubject {
    explicit SelectorSubject(QStringView selector)
    {
        QStringView rest = withoutBlanks(selector);
        for (qsizetype i = rest.size() - 1; i >= 0; --i) {
            if (rest[i].isSpace() || rest[i] == u'>') {
                rest = rest.mid(i + 1);
                break;
            }
        }
        if (rest.startsWith(u'.')) {
            rest = rest.mid(1);
        }
        type = rest.startsWith(u'*') ? rest.first(1) : word(rest);
        rest = rest.mid(type.size());
        for (qsizetype close = 0; rest.startsWith(u'[') && (close = rest.indexOf(u']')) > 0;) {
            rest = rest.mid(close + 1);
        }
        if (rest.startsWith(u'#')) {
            name = word(rest.mid(1));
        }
    }

    QStringView type;
    QStringView name;

private:
    static QStringView word(QStringView text)
    {
        const auto end = std::find_if_not(text.begin(), text.end(), isWordCharacter);
        return text.first(end - text.begin());
    }
};

/// Whether a selector reaches a control that has an arrow: by its own type, or because it reaches every
/// widget.
bool reachesArrows(QStringView selector)
{
    const SelectorSubject subject(selector);
    const QStringView type = subject.type;
    const QStringView name = subject.name;
    if (type.isEmpty() || type == u"*" || type == u"QWidget" || type == u"QObject") {
        return name.isEmpty() || name.startsWith(u"cmb") || name.startsWith(u"dtp");
    }
    constexpr std::array<QStringView, 7> Arrowed{u"QComboBox", u"QAbstractSpinBox", u"QSpinBox",
        u"QDoubleSpinBox", u"QDateTimeEdit", u"QDateEdit", u"QTimeEdit"};
    return std::find(Arrowed.begin(), Arrowed.end(), type) != Arrowed.end();
}

void checkRule(const QString& selectors, int selectorLine, const QString& declarations, int line)
{
    static const Refusal drawnParts{&hasDrawnPart,
        pattern(
            "::(indicator|menu-indicator|menu-button|menu-arrow|up-arrow|down-arrow|left-arrow|right-arrow"
            "|drop-down|up-button|down-button|branch)\\b"),
        QT_TRANSLATE_NOOP("SkinSheet", "\"%1\" is drawn by the program")};
    static const Refusal atRule{
        &has<u'@'>, pattern("@[\\w-]+"), QT_TRANSLATE_NOOP("SkinSheet", "\"%1\" is not allowed")};
    static const Refusal otherFiles{&has<u'('>, pattern("\\burl\\s*\\("),
        QT_TRANSLATE_NOOP("SkinSheet", "\"%1\": a skin is one file and holds no pictures")};
    static const Refusal properties{
        &hasQ, pattern("\\bqproperty-[\\w-]+"), QT_TRANSLATE_NOOP("SkinSheet", "\"%1\" is not allowed")};
    constexpr const char* takesArrow =
        QT_TRANSLATE_NOOP("SkinSheet", "\"%1\" would take the arrow of a list or picker away");
    static const Refusal borders{&isAnything, pattern("(^|[;\\s])border[\\w-]*\\s*:"), takesArrow};
    static const Refusal grounds{&isAnything, pattern("(^|[;\\s])background[\\w-]*\\s*:"), takesArrow};
    refuse(selectors, selectorLine, drawnParts);
    refuse(selectors, selectorLine, atRule);
    refuse(declarations, line, otherFiles);
    refuse(declarations, line, properties);
    for (const QStringView selector : QStringView(selectors).split(u',')) {
        if (!isSelector(selector)) {
            throw SkinLineError(selectorLine, SkinSheet::tr("a rule has no selector or no end"));
        }
        if (!selector.contains(u"::") && reachesArrows(selector)) {
            refuse(declarations, line, borders);
            refuse(declarations, line, grounds);
        }
    }
}

void checkDeclarations(QStringView declarations, int line)
{
    for (const QStringView declaration : declarations.split(u';')) {
        const QStringView text = withoutBlanks(declaration);
        if (!text.isEmpty() && !isDeclaration(text)) {
            const auto blankLines = declaration.first(text.begin() - declaration.begin()).count(u'\n');
            throw SkinLineError(line + static_cast<int>(blankLines),
                SkinSheet::tr("\"%1\" is no property with a value")
                    .arg(text.toString().section(u'\n', 0, 0)));
        }
        line += static_cast<int>(declaration.count(u'\n'));
    }
}

/// Each control weighs all properties of all selectors: a sheet of hundreds of thousands would keep the
/// program from its user at every start.
constexpr qsizetype MostProperties = 5000;

void checkRules(const QString& plain, int line)
{
    qsizetype properties = 0;
    qsizetype start = 0;
    for (;;) {
        const qsizetype open = plain.indexOf(u'{', start);
        const qsizetype close = plain.indexOf(u'}', start);
        const QString selectors = plain.mid(start, (open < 0 ? plain.size() : open) - start);
        const QString trimmed = withoutBlanks(selectors).toString();
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
        checkRule(trimmed, selectorLine, declarations, bodyLine);
        checkDeclarations(declarations, bodyLine);
        properties += (selectors.count(u',') + 1) * (declarations.count(u';') + 1);
        if (properties > MostProperties) {
            throw SkinLineError(selectorLine, SkinSheet::tr("more than %1 properties").arg(MostProperties));
        }
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
