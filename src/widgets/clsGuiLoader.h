#pragma once

#include "store/DatabaseEngine.h"

#include <QCoreApplication>

class QComboBox;

/// Fills lists of choices; every entry has its number as data. Filling sends no `activated`.
class clsGuiLoader
{
    Q_DECLARE_TR_FUNCTIONS(clsGuiLoader)

public:
    /// `engine` outlives this object.
    explicit clsGuiLoader(const DatabaseEngine& engine) : m_engine(&engine) { }

    /// The sort orders; selects the first.
    void LoadSortByCombo(QComboBox& combo) const;
    /// "All" and the statuses; selects the first.
    void LoadStatusCombo(QComboBox& combo) const;
    /// "All" and the stored categories; selects the entry at `index`. Throws DatabaseError, and then the
    /// list is as it was.
    void LoadCategoriesCombo(QComboBox& combo, int index = 0) const;
    /// The priorities; selects none.
    void LoadPeriorityCombo(QComboBox& combo) const;

    /// `LoadCategoriesCombo` after a change of categories: the selected category stays selected if it still
    /// exists, otherwise "All" is.
    void reloadCategoriesCombo(QComboBox& combo) const;
    /// The same for a list without "All", where otherwise nothing is selected.
    void reloadCategoriesComboWithoutAll(QComboBox& combo) const;

private:
    const DatabaseEngine* m_engine;
};
