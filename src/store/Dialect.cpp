#include "store/Dialect.h"

#include "store/DatabaseError.h"
#include "system/Moment.h"

#include <QCoreApplication>
#include <algorithm>

namespace
{

struct Dialect {
    Q_DECLARE_TR_FUNCTIONS(Dialect)
};

constexpr std::size_t ShownLiteralLength = 60;

/// `sentence` has a placeholder for the literal.
[[noreturn]] void refuseLiteral(std::string_view literal, const QString& sentence)
{
    const bool isLong = literal.size() > ShownLiteralLength;
    const std::string_view shown = literal.substr(0, ShownLiteralLength);
    QString text = QString::fromUtf8(shown.data(), static_cast<qsizetype>(shown.size()));
    if (isLong) {
        text += QStringLiteral("...");
    }
    throw DatabaseError(DatabaseError::Kind::Statement, sentence.arg(text));
}

/// Reads a literal from left to right; every function returns whether the text continues as asked.
class LiteralReader
{
public:
    explicit LiteralReader(std::string_view text) : m_rest(text) { }

    bool number(std::size_t minDigits, std::size_t maxDigits, int& value)
    {
        value = 0;
        std::size_t digits = 0;
        while (
            digits < maxDigits && digits < m_rest.size() && m_rest[digits] >= '0' && m_rest[digits] <= '9') {
            value = value * 10 + (m_rest[digits] - '0');
            ++digits;
        }
        m_rest.remove_prefix(digits);
        return digits >= minDigits;
    }
    bool character(char expected)
    {
        if (m_rest.empty() || m_rest.front() != expected) {
            return false;
        }
        m_rest.remove_prefix(1);
        return true;
    }
    bool atEnd() const { return m_rest.empty(); }

private:
    std::string_view m_rest;
};

/// `literal` includes both "#".
Moment literalMoment(std::string_view literal)
{
    LiteralReader reader(literal.substr(1, literal.size() - 2));
    int month = 0;
    int day = 0;
    int year = 0;
    int hours = 0;
    int minutes = 0;
    bool wellFormed = reader.number(1, 2, month) && reader.character('/') && reader.number(1, 2, day)
        && reader.character('/') && reader.number(4, 4, year);
    if (wellFormed && !reader.atEnd()) {
        wellFormed = reader.character(' ') && reader.number(1, 2, hours) && reader.character(':')
            && reader.number(2, 2, minutes) && reader.atEnd();
    }
    if (!wellFormed) {
        refuseLiteral(
            literal, Dialect::tr("The date literal %1 is not of the form #month/day/year hours:minutes#."));
    }
    const std::chrono::year_month_day date(std::chrono::year(year),
        std::chrono::month(static_cast<unsigned>(month)), std::chrono::day(static_cast<unsigned>(day)));
    if (!date.ok() || hours > 23 || minutes > 59) {
        refuseLiteral(literal, Dialect::tr("The date literal %1 names no existing day and time."));
    }
    return makeMoment(date, std::chrono::hours(hours) + std::chrono::minutes(minutes));
}

/// The position behind the first `terminator` from `from` on, or the end of the statement.
std::size_t endBehind(std::string_view statement, std::string_view terminator, std::size_t from)
{
    const std::size_t found = statement.find(terminator, from);
    return found == std::string_view::npos ? statement.size() : found + terminator.size();
}

/// The position behind the string, quoted name or comment that begins at `begin`, or `begin` if none does.
/// A doubled quote needs no special case: it ends one string and begins the next.
std::size_t endOfOpaque(std::string_view statement, std::size_t begin)
{
    switch (statement[begin]) {
    case '\'':
    case '"':
    case '`':
        return endBehind(statement, statement.substr(begin, 1), begin + 1);
    case '[':
        return endBehind(statement, "]", begin + 1);
    case '-':
        return statement.substr(begin, 2) == "--" ? endBehind(statement, "\n", begin + 2) : begin;
    case '/':
        return statement.substr(begin, 2) == "/*" ? endBehind(statement, "*/", begin + 2) : begin;
    default:
        return begin;
    }
}

} // namespace

std::string translateDialect(std::string_view statement)
{
    if (statement.find('\0') != std::string_view::npos) {
        throw DatabaseError(
            DatabaseError::Kind::Statement, Dialect::tr("The statement holds a zero character."));
    }
    std::string translated;
    translated.reserve(statement.size() + 64);
    std::size_t copied = 0;
    std::size_t position = 0;
    while (position < statement.size()) {
        position = std::min(statement.find_first_of("'\"`[-/#", position), statement.size());
        if (position == statement.size()) {
            break;
        }
        if (statement[position] != '#') {
            position = std::max(endOfOpaque(statement, position), position + 1);
            continue;
        }
        const std::size_t close = statement.find('#', position + 1);
        if (close == std::string_view::npos) {
            refuseLiteral(statement.substr(position), Dialect::tr("The date literal %1 is not closed."));
        }
        translated.append(statement.substr(copied, position - copied));
        translated += '\'';
        translated += storedText(literalMoment(statement.substr(position, close + 1 - position)));
        translated += '\'';
        position = close + 1;
        copied = position;
    }
    translated.append(statement.substr(copied));
    return translated;
}

bool holdsStatement(std::string_view text)
{
    while (!text.empty()) {
        std::size_t skipped = 0;
        if (std::string_view(" \t\r\n\f").find(text.front()) != std::string_view::npos) {
            skipped = 1;
        } else if (text.substr(0, 2) == "--") {
            skipped = text.find('\n');
        } else if (text.substr(0, 2) == "/*") {
            const std::size_t close = text.find("*/", 2);
            skipped = close == std::string_view::npos ? close : close + 2;
        } else {
            return true;
        }
        text.remove_prefix(std::min(skipped, text.size()));
    }
    return false;
}
