#pragma once

#include "data/ClsTask.h"
#include "widgets/TextPart.h"

#include <QString>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class TextFolding;

/// Finds the tasks of a list that hold all words of a text in their names or descriptions, as TextFolding
/// takes words for the same. It keeps the folded texts of the list from the first search on.
class TaskSearch
{
public:
    TaskSearch();
    ~TaskSearch();

    /// Takes the words of `text`, which white space separates. False when they are the same as before.
    bool lookFor(const QString& text);
    /// Whether there is anything to look for.
    bool isActive() const { return !m_words.empty(); }
    /// Folds the texts of the next tasks, at most `most` of them, before they are looked for. Whether there
    /// are more to fold.
    bool prepare(const std::vector<ClsTask>& tasks, std::size_t most);
    /// The places in `tasks` of those that hold all words, ascending. The list is the same in each call until
    /// `listReplaced` or `taskRemoved`.
    const std::vector<int>& find(const std::vector<ClsTask>& tasks);
    /// What `find` has returned last.
    const std::vector<int>& lastFound() const { return m_found; }
    void listReplaced();
    /// The task at `index` has left the list.
    void taskRemoved(int index);
    /// Gives the memory back that only a search needs.
    void rest();
    /// The parts of `text` that are words looked for, ascending; with the accents that belong to them.
    QList<TextPart> found(const QString& text) const;

private:
    struct Piece {
        std::size_t begin;
        std::size_t size;
    };

    TextFolding& folding();
    bool holdsWords(const Piece& piece) const;

    std::vector<std::string> m_words; ///< folded
    std::unique_ptr<TextFolding> m_folding; ///< made when it is needed
    std::string m_texts; ///< names and descriptions, folded
    std::vector<Piece> m_pieces; ///< of m_texts, one for each of the first tasks
    std::vector<int> m_found; ///< of the last search
    bool m_isFoundValid = false;
};
