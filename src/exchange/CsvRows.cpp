#include "exchange/CsvRows.h"

#include "exchange/ExchangeTexts.h"

#include <algorithm>
#include <array>
#include <csv.h>
#include <deque>

namespace
{

constexpr std::size_t BlockOfField = std::size_t{64} * 1024;
constexpr std::array Separators{',', ';', '\t'};

/// The separator that the first line has most of outside of quotes.
char separatorOf(std::string_view line)
{
    std::array<int, Separators.size()> counts{};
    bool isQuoted = false;
    for (const char letter : line) {
        isQuoted = isQuoted != (letter == '"');
        const auto* found = std::find(Separators.begin(), Separators.end(), letter);
        if (!isQuoted && found != Separators.end()) {
            ++counts[static_cast<std::size_t>(found - Separators.begin())];
        }
    }
    return Separators[static_cast<std::size_t>(
        std::max_element(counts.begin(), counts.end()) - counts.begin())];
}

} // namespace

struct CsvRows::Parser {
    Parser() { start(); }
    ~Parser() { csv_free(&parser); }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    void start()
    {
        csv_init(&parser, 0);
        csv_set_delim(&parser, static_cast<unsigned char>(separator));
        // libcsv lets a field grow by 128 bytes at a time: one of 8 MiB is moved 65,536 times.
        csv_set_blk_size(&parser, BlockOfField);
    }
    void restart()
    {
        csv_free(&parser);
        start();
        row = {};
        bytes = 0;
    }
    static void takeField(void* bytes, std::size_t size, void* self)
    {
        CsvRow& row = static_cast<Parser*>(self)->row;
        if (row.fields.size() < MostFields) {
            row.fields.emplace_back(static_cast<const char*>(bytes), size);
        } else if (row.problem.isEmpty()) {
            row.problem = ExchangeTexts::tr("It has too many columns.");
        }
    }
    static void takeRow(int, void* self)
    {
        auto* parser = static_cast<Parser*>(self);
        parser->bytes = 0;
        parser->rows.push_back(std::exchange(parser->row, {}));
    }

    csv_parser parser{};
    char separator = ',';
    bool isSeparatorKnown = false;
    CsvRow row; ///< the one that is read
    std::size_t bytes = 0; ///< of it
    std::deque<CsvRow> rows; ///< read
};

CsvRows::CsvRows(QIODevice& device, Progress* progress)
    : m_lines(device, progress), m_parser(std::make_unique<Parser>())
{
}

CsvRows::~CsvRows() = default;

bool CsvRows::next(CsvRow& row)
{
    while (m_parser->rows.empty() && !m_atEnd) {
        m_line.clear();
        if (m_lines.next(m_line)) {
            parseLine();
        } else {
            finish();
        }
    }
    if (m_parser->rows.empty()) {
        return false;
    }
    row = std::move(m_parser->rows.front());
    m_parser->rows.pop_front();
    return true;
}

void CsvRows::parseLine()
{
    Parser& parser = *m_parser;
    if (parser.bytes == 0) {
        parser.row.line = m_lines.number();
    }
    parser.bytes += m_line.size() + 1;
    if (m_lines.wasCut() || parser.bytes > MostBytes) {
        giveUp(ExchangeTexts::tr("It is too large."));
        return;
    }
    const bool isBlank = m_line.find_first_not_of("\r \t") == std::string::npos;
    if (!isBlank && !std::exchange(parser.isSeparatorKnown, true)) {
        parser.separator = separatorOf(m_line);
        const qint64 line = parser.row.line;
        parser.restart();
        parser.row.line = line;
        parser.bytes = m_line.size() + 1;
    }
    m_line += '\n';
    csv_parse(&parser.parser, m_line.data(), m_line.size(), Parser::takeField, Parser::takeRow, &parser);
    // An empty line is no row, and none begins with it.
    if (isBlank && parser.row.fields.empty() && parser.bytes == m_line.size()) {
        parser.bytes = 0;
    }
}

void CsvRows::finish()
{
    m_atEnd = true;
    // Strict about the end alone: other programs write quotes inside of fields without quotes.
    csv_set_opts(&m_parser->parser, CSV_STRICT | CSV_STRICT_FINI);
    if (csv_fini(&m_parser->parser, Parser::takeField, Parser::takeRow, m_parser.get()) != 0) {
        giveUp(ExchangeTexts::tr("One of its quotes has no end."));
    }
}

void CsvRows::giveUp(const QString& problem)
{
    CsvRow& row = m_parser->row;
    row.problem = problem;
    m_parser->rows.push_back(std::move(row));
    m_parser->restart();
}

void appendCsvRow(std::string& out, const std::vector<std::string_view>& fields)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        out += i == 0 ? "" : ",";
        const std::size_t before = out.size();
        const std::size_t size = csv_write(nullptr, 0, fields[i].data(), fields[i].size());
        out.resize(before + size);
        csv_write(out.data() + before, size, fields[i].data(), fields[i].size());
    }
    out += "\r\n";
}
