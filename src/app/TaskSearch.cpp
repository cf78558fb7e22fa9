#include "app/TaskSearch.h"

#include "app/TextFolding.h"

#include <QStringList>

#include <algorithm>
#include <numeric>

namespace
{

/// Stands between name and description, and is in no word.
constexpr char Separator = '\n';

/// Whether `word` is anywhere in `text`. Looks for its last byte: in UTF-8 the first byte of a letter beyond
/// ASCII is the same for most letters of a script and would be found nearly everywhere.
bool holds(std::string_view text, std::string_view word)
{
    const std::string_view before = word.substr(0, word.size() - 1);
    for (std::size_t at = text.find(word.back(), before.size()); at != std::string_view::npos;
         at = text.find(word.back(), at + 1)) {
        if (text.compare(at - before.size(), before.size(), before) == 0) {
            return true;
        }
    }
    return false;
}

/// Whether a text that holds all of `words` holds all of `before`, too.
bool narrow(const std::vector<std::string>& words, const std::vector<std::string>& before)
{
    return std::all_of(before.begin(), before.end(), [&](const std::string& one) {
        return std::any_of(
            words.begin(), words.end(), [&](const std::string& word) { return holds(word, one); });
    });
}

} // namespace

TaskSearch::TaskSearch() = default;
TaskSearch::~TaskSearch() = default;

bool TaskSearch::lookFor(const QString& text)
{
    std::vector<std::string> words;
    for (const QString& word : text.simplified().split(u' ', Qt::SkipEmptyParts)) {
        const QByteArray utf8 = word.toUtf8();
        std::string folded;
        folding().append({utf8.constData(), static_cast<std::size_t>(utf8.size())}, folded);
        if (!folded.empty()) {
            words.push_back(std::move(folded));
        }
    }
    if (words == m_words) {
        return false;
    }
    m_isFoundValid = m_isFoundValid && narrow(words, m_words);
    m_words = std::move(words);
    return true;
}

TextFolding& TaskSearch::folding()
{
    if (m_folding == nullptr) {
        m_folding = std::make_unique<TextFolding>();
    }
    return *m_folding;
}

bool TaskSearch::prepare(const std::vector<ClsTask>& tasks, std::size_t most)
{
    if (m_pieces.empty()) {
        std::size_t size = 0;
        for (const ClsTask& task : tasks) {
            size += task.taskNameUtf8().size() + task.descriptionUtf8().size() + 1;
        }
        m_texts.reserve(size);
        m_pieces.reserve(tasks.size());
    }
    const std::size_t end = std::min(tasks.size(), m_pieces.size() + most);
    while (m_pieces.size() < end) {
        const ClsTask& task = tasks[m_pieces.size()];
        const std::size_t begin = m_texts.size();
        folding().append(task.taskNameUtf8(), m_texts);
        m_texts += Separator;
        folding().append(task.descriptionUtf8(), m_texts);
        m_pieces.push_back({begin, m_texts.size() - begin});
    }
    return end < tasks.size();
}

const std::vector<int>& TaskSearch::find(const std::vector<ClsTask>& tasks)
{
    if (!m_isFoundValid) {
        m_found.resize(tasks.size());
        std::iota(m_found.begin(), m_found.end(), 0);
        m_isFoundValid = true;
    }
    if (isActive()) {
        prepare(tasks, tasks.size());
        std::erase_if(
            m_found, [this](int index) { return !holdsWords(m_pieces[static_cast<std::size_t>(index)]); });
    }
    return m_found;
}

bool TaskSearch::holdsWords(const Piece& piece) const
{
    const std::string_view text = std::string_view(m_texts).substr(piece.begin, piece.size);
    return std::all_of(
        m_words.begin(), m_words.end(), [text](const std::string& word) { return holds(text, word); });
}

void TaskSearch::listReplaced()
{
    m_texts.clear();
    m_texts.shrink_to_fit();
    m_pieces = {};
    m_found = {};
    m_isFoundValid = false;
}

void TaskSearch::taskRemoved(int index)
{
    if (static_cast<std::size_t>(index) < m_pieces.size()) {
        m_pieces.erase(m_pieces.begin() + index);
    }
    m_isFoundValid = false;
}

void TaskSearch::rest()
{
    listReplaced();
    m_folding.reset();
}

QList<TextPart> TaskSearch::found(const QString& text) const
{
    if (m_words.empty()) {
        return {};
    }
    // Of each byte of the folding: the character that it comes from.
    std::string folded;
    std::vector<qsizetype> begins;
    std::vector<TextPart> characters;
    for (qsizetype at = 0; at < text.size();) {
        const bool isPair =
            at + 1 < text.size() && text[at].isHighSurrogate() && text[at + 1].isLowSurrogate();
        const char32_t character =
            isPair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : text[at].unicode();
        const qsizetype size = isPair ? 2 : 1;
        const std::string_view folding = m_folding->of(character);
        if (folding.empty() && !characters.empty()) {
            // An accent belongs to the letter before it.
            characters.back().size += size;
        } else {
            folded += folding;
            begins.resize(folded.size(), static_cast<qsizetype>(characters.size()));
            characters.push_back({at, size});
        }
        at += size;
    }
    std::vector<bool> isFound(characters.size());
    for (const std::string& word : m_words) {
        for (std::size_t at = folded.find(word); at != std::string::npos;
             at = folded.find(word, at + word.size())) {
            for (std::size_t byte = at; byte < at + word.size(); ++byte) {
                isFound[static_cast<std::size_t>(begins[byte])] = true;
            }
        }
    }
    QList<TextPart> parts;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        if (!isFound[i]) {
            continue;
        }
        if (i > 0 && isFound[i - 1]) {
            parts.back().size += characters[i].size;
        } else {
            parts.append(characters[i]);
        }
    }
    return parts;
}
