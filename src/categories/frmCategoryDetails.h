#pragma once

#include "categories/CategoryDetailsControls.h"
#include "categories/CategoryInput.h"
#include "categories/CustomIcons.h"
#include "ui/FormServices.h"

#include <QIcon>
#include <QWidget>
#include <functional>
#include <optional>

class ClsCategory;

/// The dialog in which a category is created or edited. Modeless, loaded once and reused: for a new category
/// call `clearTag` and `EmptyForm`, for a stored one `SetTag`; then show it above its owner. It leaves by
/// hiding.
class frmCategoryDetails : public QWidget
{
    Q_OBJECT

public:
    /// `services` outlives the form. `draw` answers a random number in [0, 1) for the name of a picture file;
    /// without it the system's generator is asked.
    explicit frmCategoryDetails(const FormServices& services, std::function<double()> draw = {});

    /// To be called before the form is filled anew: asks about input that the user has not saved, and saves
    /// it as OK does when that is the answer. False when the input stays. Throws as OK fails.
    bool letGo();
    /// Resets every control for a new category; the tag stays.
    void EmptyForm();
    /// Resets the form and fills it with the stored category of that id, to edit it. Throws RuntimeError when
    /// there is no such category and DatabaseError, and then the form is as it was. A custom picture that is
    /// missing or unreadable is reported, and the form shows none.
    void SetTag(const QString& tag);
    /// The next OK stores a new category.
    void clearTag() { m_tag.clear(); }
    /// What is entered stays and can be renamed; the next OK stores it as a new category.
    void forgetCategory();
    /// The decimal id of the category that is edited; empty for a new one.
    QString tag() const { return m_tag; }
    /// Selects that built-in icon; the first one when there is none of that index.
    void SelectIcon(int Id);

signals:
    /// The category has been written; the dialog still shows. The category list, then the category combos are
    /// to be filled anew. Handlers do not throw.
    void categoryStored();
    /// The category has been written, the lists are filled and the dialog is hidden: the task list is to be
    /// rebuilt, then the category list gets the focus.
    void categorySaved();
    /// The user gave up and the dialog is hidden: the category list gets the focus. Not sent for the close
    /// box.
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void opnDefaultIcon_Click();
    void opnCustomIcon_Click();
    void btnBrowse_Click();
    void btnOk_Click();
    void btnCancel_Click();

    int GetSelectedIcon() const;
    QString NewCustomIconName() const;

    void connectControls();
    /// What stands in the form now is none of the user's input.
    void noteFilled() { m_filled = input(); }
    CategoryInput input() const;
    /// False when the category is refused, and that has been told.
    bool save();
    /// Hides, and forgets what was not saved.
    void leave();
    void Form_Escape();
    void fillFrom(const ClsCategory& category);
    void showCustomPicture(const QIcon& picture);
    /// Tells what is missing and leads there; true when something is.
    bool refuses();
    /// False when the name of a new category is taken.
    bool store() const;
    ClsCategory enteredCategory() const;
    /// The name of the custom picture; a newly chosen one has been copied when this returns.
    QString storeCustomPicture() const;
    void requireEditedCategory() const;

    const FormServices& m_services;
    CustomIcons m_customIcons;
    std::function<double()> m_draw;
    CategoryDetailsControls m_controls;
    QString m_tag;
    /// The picture file that the user chose.
    QString m_customIconSource;
    /// Of that file when it was read.
    QString m_customIconKey;
    QIcon m_customPicture;
    /// None while the form holds nothing that could be lost.
    std::optional<CategoryInput> m_filled;
};
