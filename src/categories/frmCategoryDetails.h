#pragma once

#include "categories/CategoryDetailsControls.h"
#include "categories/CategoryInput.h"
#include "categories/CustomIcons.h"
#include "widgets/FormServices.h"

#include <QIcon>
#include <QWidget>
#include <functional>
#include <optional>

class ClsCategory;

/// The dialog for creating or editing a category. Modeless, loaded once and reused: call `clearTag` and
/// `EmptyForm` for a new category or `SetTag` for a stored one, then show it above its owner. It hides when
/// it is done.
class frmCategoryDetails : public QWidget
{
    Q_OBJECT

public:
    /// `services` outlives the form. `draw` returns a random number in [0, 1) for the name of a picture
    /// file; by default the system's generator is used.
    explicit frmCategoryDetails(const FormServices& services, std::function<double()> draw = {});

    /// To be called before the form is filled again: asks about unsaved input and saves it, as OK does,
    /// when the user wants that. False when the input stays. Throws as OK does.
    bool letGo();
    /// Resets every control for a new category; the tag stays.
    void EmptyForm();
    /// Resets the form and fills it with the stored category of that id, to edit it. Throws RuntimeError
    /// when there is none, and DatabaseError; then the form is as it was. A custom picture that is missing
    /// or unreadable is reported, and the form shows none.
    void SetTag(const QString& tag);
    /// The next OK stores a new category.
    void clearTag() { m_tag.clear(); }
    /// Keeps the input and unlocks the name; the next OK stores it as a new category.
    void forgetCategory();
    /// The decimal id of the category that is edited; empty for a new one.
    QString tag() const { return m_tag; }
    /// Selects that built-in icon, or the first one when there is no such index.
    void SelectIcon(int Id);

signals:
    /// The category has been written; the dialog is still shown. The category list and then the category
    /// combos need a reload. Handlers must not throw.
    void categoryStored();
    /// The category has been written, the lists are reloaded and the dialog is hidden: the task list is to
    /// be rebuilt, then the category list gets the focus.
    void categorySaved();
    /// The user has cancelled and the dialog is hidden: the category list gets the focus. Not sent for the
    /// close box.
    void cancelled();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
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
    /// From here on, only changes to the present content are the user's.
    void noteFilled() { m_filled = input(); }
    CategoryInput input() const;
    /// False when the category was refused, which the user has been told.
    bool save();
    /// Hides the dialog and forgets unsaved input.
    void leave();
    void Form_Escape();
    void fillFrom(const ClsCategory& category);
    void showCustomPicture(const QIcon& picture);
    /// Tells the user what is missing and moves the focus there; true when something is.
    bool refuses();
    /// False when the name of a new category is taken.
    bool store() const;
    ClsCategory enteredCategory() const;
    /// The name of the custom picture; copies a newly chosen one first.
    QString storeCustomPicture() const;
    void requireEditedCategory() const;

    const FormServices& m_services;
    CustomIcons m_customIcons;
    std::function<double()> m_draw;
    CategoryDetailsControls m_controls;
    QString m_tag;
    /// The picture file that the user chose.
    QString m_customIconSource;
    /// The key of that file when it was read.
    QString m_customIconKey;
    QIcon m_customPicture;
    /// Empty while the form holds nothing that could be lost.
    std::optional<CategoryInput> m_filled;
};
