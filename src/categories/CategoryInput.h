#pragma once

#include <QCoreApplication>
#include <QString>

/// What the user has entered into the category dialog; knows no window.
struct CategoryInput {
    QString name;
    QString description;
    int icon = 0;
    bool isCustom = false;
    QString customSource; ///< the picture file that was chosen

    bool operator==(const CategoryInput&) const = default;

    /// The question before this input is discarded.
    QString unsavedText() const;

private:
    Q_DECLARE_TR_FUNCTIONS(CategoryInput)
};
