#include "widgets/clsGuiLoader.h"

#include "data/ClsCategory.h"
#include "data/TaskCodes.h"
#include "widgets/Combos.h"
#include "widgets/PlainText.h"

#include <QComboBox>

void clsGuiLoader::LoadSortByCombo(QComboBox& combo) const
{
    combo.clear();
    combo.addItem(tr("None"), TaskSort::None);
    combo.addItem(tr("Name"), TaskSort::Name);
    combo.addItem(tr("Priority"), TaskSort::Periority);
    combo.addItem(tr("Status"), TaskSort::Status);
    combo.addItem(tr("Due Date"), TaskSort::DueDate);
    combo.setCurrentIndex(0);
}

void clsGuiLoader::LoadStatusCombo(QComboBox& combo) const
{
    combo.clear();
    combo.addItem(tr("All", "statuses"), TaskStatus::All);
    combo.addItem(tr("Not Started"), TaskStatus::NotStarted);
    combo.addItem(tr("In Progress"), TaskStatus::InProgress);
    combo.addItem(tr("Completed"), TaskStatus::Completed);
    combo.addItem(tr("Waiting on someone else"), TaskStatus::Waiting);
    combo.addItem(tr("Deferred"), TaskStatus::Deferred);
    combo.setCurrentIndex(0);
}

void clsGuiLoader::LoadCategoriesCombo(QComboBox& combo, int index) const
{
    const std::vector<ClsCategory> categories = ClsCategory(*m_engine).GetAllCategories();
    combo.clear();
    combo.addItem(tr("All", "categories"), CategoryFilter::All);
    for (const ClsCategory& category : categories) {
        combo.addItem(shownPart(category.CatName()), category.Id());
    }
    combo.setCurrentIndex(index);
}

void clsGuiLoader::LoadPeriorityCombo(QComboBox& combo) const
{
    combo.clear();
    combo.addItem(tr("Normal"), TaskPeriority::Normal);
    combo.addItem(tr("Low"), TaskPeriority::Low);
    combo.addItem(tr("High"), TaskPeriority::High);
    combo.setCurrentIndex(-1);
}

void clsGuiLoader::reloadCategoriesCombo(QComboBox& combo) const
{
    const qint32 selected = selectedNumber(combo, CategoryFilter::All);
    LoadCategoriesCombo(combo);
    selectNumber(combo, selected);
    if (combo.currentIndex() < 0) {
        combo.setCurrentIndex(0);
    }
}

void clsGuiLoader::reloadCategoriesComboWithoutAll(QComboBox& combo) const
{
    const qint32 selected = selectedNumber(combo, CategoryFilter::All);
    LoadCategoriesCombo(combo);
    combo.removeItem(0);
    selectNumber(combo, selected);
}
