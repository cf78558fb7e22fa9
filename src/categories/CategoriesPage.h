#pragma once

#include "categories/CustomIcons.h"
#include "categories/LatePicture.h"
#include "categories/PictureReader.h"
#include "data/ClsCategory.h"
#include "ui/FormServices.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

class CategoryList;
class QPushButton;
class QString;
class frmCategoryDetails;

/// The page "Categories": every category as an icon with its name, and the buttons to add, edit and delete
/// one.
class CategoriesPage : public QWidget
{
    Q_OBJECT

public:
    /// `pictureReader` answers the path of the program that reads pictures; without one they are read between
    /// two events. `services` outlives the page. `categoryDetails` answers the program's one category dialog
    /// and loads it first when that has not happened yet.
    CategoriesPage(const FormServices& services, std::function<frmCategoryDetails&()> categoryDetails,
        const ProgramPath& pictureReader = {}, QWidget* parent = nullptr);

    /// Rebuilds the list; the selected category stays selected while it exists. Appends the picture of each
    /// category with a custom icon to the image list once more and writes its number back to the store. A
    /// picture that is not known yet has a stand-in there until it has been read. One that is missing or
    /// unreadable is replaced and noted (see `takeUnreadablePictures`). Throws DatabaseError: when the
    /// categories cannot be read, the list is as it was; when a number cannot be written, the list is
    /// complete.
    void LoadCategories();
    /// From now on pictures that are not known yet are read: the start has something better to do.
    void readPictures();
    bool isReadingPictures() const { return m_isReading; }
    /// The user has switched to the page.
    void pageOpened();
    /// Gives the focus to the list, and activates its window when that is visible.
    void focusList();
    void setHelpEnabled(bool enabled);

    /// The texts of what LoadCategories could not do and nobody has been told yet: pictures that are missing
    /// or unreadable, each file once in a run, and an icon number that does not fit. Ask after the main
    /// window has come up and the first pictures are read; then, while that is visible, the page reports them
    /// by itself.
    QStringList takeUnreadablePictures();

signals:
    /// A category and its tasks have been deleted and the list is rebuilt: the category combos and the task
    /// list are to follow.
    void categoriesChanged();
    void helpRequested();
    /// A picture has come: whoever shows it is to be painted anew.
    void pictureCame();
    /// All pictures that were waited for have been read, or refused.
    void picturesRead();

private:
    void btnAddCat_Click();
    void btnEditCat_Click();
    void btnDeleteCat_Click();

    using Numbered = std::pair<ClsCategory, int>;

    void connectControls();
    /// The dialog, ready to be filled and shown; null when the user keeps what is in it.
    frmCategoryDetails* freeDialog();
    /// The picture of the category, to be appended to the image list.
    QIcon customPicture(const ClsCategory& category);
    void writeIconNumbers(const std::vector<Numbered>& numbered);
    void note(const QString& key, const QString& text);
    void reportNotes();
    /// Row of the category; -1 when it is not listed.
    int rowOf(int id) const;

    const FormServices& m_services;
    std::function<frmCategoryDetails&()> m_categoryDetails;
    CustomIcons m_customIcons;
    CategoryList* m_list;
    QPushButton* m_add;
    QPushButton* m_edit;
    QPushButton* m_delete;
    QPushButton* m_help;
    void waitFor(const QString& path, const LatePicture& picture);
    void takePicture(const QString& path, const QImage& picture);

    struct Awaited {
        QString key; ///< of the picture when it was asked for
        QList<LatePicture> pictures;
    };

    PictureReader m_reader;
    bool m_isReading = true;
    QHash<QString, Awaited> m_awaited; ///< by path
    QStringList m_notes;
    QSet<QString> m_noted;
};
