#include "settings/SkinGrammar.h"

#include <QString>

namespace
{

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isHexDigit(QChar c)
{
    return isDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

/// Reads a text from left to right; what answers a bool has read what it is asked for, or does not go on.
class Reader
{
public:
    explicit Reader(QStringView text) : m_rest(text) { }

    bool atEnd() const { return m_rest.isEmpty(); }
    QChar next() const { return atEnd() ? QChar() : m_rest.front(); }
    bool take(QChar wanted)
    {
        return takeWhile(1, [wanted](QChar c) { return c == wanted; }) == 1;
    }
    bool takeAnyOf(QStringView wanted)
    {
        return takeWhile(1, [wanted](QChar c) { return wanted.contains(c); }) == 1;
    }
    bool takeBlanks() { return takeWhile(m_rest.size(), isBlank) > 0; }
    qsizetype takeDigits() { return takeWhile(m_rest.size(), isDigit); }
    qsizetype takeHexDigits() { return takeWhile(m_rest.size(), isHexDigit); }
    bool takeWord()
    {
        const bool minus = m_rest.size() > 1 && m_rest.front() == u'-';
        const QChar first = minus ? m_rest[1] : next();
        if (!isLetter(first) && first != u'_') {
            return false;
        }
        takeWhile(m_rest.size(), [](QChar c) { return isLetter(c) || isDigit(c) || c == u'_' || c == u'-'; });
        return true;
    }
    /// Between quotation marks only blanks are left.
    bool takeString()
    {
        const QChar quote = next();
        if (!takeAnyOf(u"\"'")) {
            return false;
        }
        takeWhile(m_rest.size(), [](QChar c) { return c == u' '; });
        return take(quote);
    }
    bool takeNumber()
    {
        takeAnyOf(u"+-");
        const qsizetype whole = takeDigits();
        const qsizetype part = take(u'.') ? takeDigits() : 0;
        if (whole + part == 0) {
            return false;
        }
        if (!take(u'%')) {
            takeWhile(m_rest.size(), isLetter);
        }
        return true;
    }
    bool takeColour()
    {
        if (!take(u'#')) {
            return false;
        }
        const qsizetype digits = takeHexDigits();
        return digits == 3 || digits == 6 || digits == 8;
    }

private:
    template <typename Kind> qsizetype takeWhile(qsizetype most, Kind kind)
    {
        qsizetype count = 0;
        while (count < most && count < m_rest.size() && kind(m_rest[count])) {
            ++count;
        }
        m_rest = m_rest.mid(count);
        return count;
    }

    QStringView m_rest;
};

/// "[name]", "[name=value]": the condition on a property of the control.
bool takeAttribute(Reader& reader)
{
    if (!reader.take(u'[')) {
        return false;
    }
    reader.takeBlanks();
    if (!reader.takeWord()) {
        return false;
    }
    reader.takeBlanks();
    if (reader.next() != u']') {
        reader.takeAnyOf(u"~|");
        if (!reader.take(u'=')) {
            return false;
        }
        reader.takeBlanks();
        if (!reader.takeString() && !reader.takeWord()) {
            return false;
        }
        reader.takeBlanks();
    }
    return reader.take(u']');
}

/// What follows the type of a control: "#name", ".Type", "[property]", ":state", ":!state", "::part".
bool takeConditions(Reader& reader)
{
    for (;;) {
        if (reader.take(u'#') || reader.take(u'.')) {
            if (!reader.takeWord()) {
                return false;
            }
        } else if (reader.take(u':')) {
            if (!reader.take(u':')) {
                reader.take(u'!');
            }
            if (!reader.takeWord()) {
                return false;
            }
        } else if (reader.next() == u'[') {
            if (!takeAttribute(reader)) {
                return false;
            }
        } else {
            return true;
        }
    }
}

bool takeSimpleSelector(Reader& reader)
{
    const bool typed = reader.take(u'*') || reader.takeWord();
    const bool conditioned = QStringView(u"#.:[").contains(reader.next()) && !reader.atEnd();
    return (typed || conditioned) && takeConditions(reader);
}

/// Everything up to the bracket that closes the one just taken.
bool takeArguments(Reader& reader)
{
    for (int open = 1; open > 0;) {
        if (reader.take(u'(')) {
            ++open;
        } else if (reader.take(u')')) {
            --open;
        } else if (!reader.takeBlanks() && !reader.takeAnyOf(u",:") && !reader.takeWord()
            && !(reader.next() == u'#' ? reader.takeColour() : reader.takeNumber())) {
            return false;
        }
    }
    return true;
}

bool takeTerm(Reader& reader)
{
    if (reader.takeWord()) {
        return !reader.take(u'(') || takeArguments(reader);
    }
    switch (reader.next().unicode()) {
    case u'#':
        return reader.takeColour();
    case u'"':
    case u'\'':
        return reader.takeString();
    default:
        return reader.takeNumber();
    }
}

} // namespace

QStringView withoutBlanks(QStringView text)
{
    while (!text.isEmpty() && isBlank(text.front())) {
        text = text.mid(1);
    }
    while (!text.isEmpty() && isBlank(text.back())) {
        text.chop(1);
    }
    return text;
}

bool isSelector(QStringView text)
{
    Reader reader(text);
    reader.takeBlanks();
    for (;;) {
        if (!takeSimpleSelector(reader)) {
            return false;
        }
        const bool blanks = reader.takeBlanks();
        if (reader.atEnd()) {
            return true;
        }
        if (reader.take(u'>')) {
            reader.takeBlanks();
        } else if (!blanks) {
            return false;
        }
    }
}

bool isDeclaration(QStringView text)
{
    Reader reader(text);
    reader.takeBlanks();
    if (!reader.takeWord()) {
        return false;
    }
    reader.takeBlanks();
    if (!reader.take(u':')) {
        return false;
    }
    reader.takeBlanks();
    for (;;) {
        if (!takeTerm(reader)) {
            return false;
        }
        const bool blanks = reader.takeBlanks();
        if (reader.atEnd()) {
            return true;
        }
        if (reader.takeAnyOf(u",/")) {
            reader.takeBlanks();
        } else if (!blanks) {
            return false;
        }
    }
}
