#pragma once

#include "categories/CustomIcons.h"
#include "categories/LatePicture.h"
#include "categories/PictureReader.h"
#include "data/ClsCategory.h"
#include "widgets/FormServices.h"

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
class QuietLine;
class frmCategoryDetails;

/// The page "Categories": every category as an icon with its name, and buttons to add, edit and delete.
class CategoriesPage : public QWidget
{
    Q_OBJECT

public:
    /// `pictureReader` returns the path of the program that reads pictures; without one they are read
    /// between events. `services` outlives the page. `categoryDetails` returns the one category dialog, and
    /// loads it if necessary.
    CategoriesPage(const FormServices& services, std::function<frmCategoryDetails&()> categoryDetails,
        const ProgramPath& pictureReader = {}, QWidget* parent = nullptr);

    /// Rebuilds the list; the selected category stays selected while it exists. The picture of each
    /// category with a custom icon is appended to the image list again and its new number written to the
    /// store. A picture that has not been read yet has a stand-in until it is; a missing or unreadable one
    /// keeps it and is noted (see `takeUnreadablePictures`). A number that cannot be written is left to
    /// the next load. Throws DatabaseError when categories cannot be read, and then the list is as it was.
    void LoadCategories();
    /// Starts reading pictures; not called before the first painting.
    void readPictures();
    bool isReadingPictures() const { return m_isReading; }
    /// The user has switched to the page.
    void pageOpened();
    /// Gives the focus to the list.
    void focusList();
    void setHelpEnabled(bool enabled);

    /// What LoadCategories could not do and has not been told yet: pictures that are missing or unreadable
    /// (each file once in a run) and icon numbers that do not fit. To be called after the main window has
    /// come up and the first pictures have been read; later the visible page reports by itself.
    QStringList takeUnreadablePictures();

signals:
    /// A category and its tasks have been deleted and this list is rebuilt: the category combos and the
    /// task list need a reload.
    void categoriesChanged();
    void helpRequested();
    /// A picture has been read: views that show it need a repaint.
    void pictureCame();
    /// All pictures waited for have been read or refused.
    void picturesRead();

private:
    void btnAddCat_Click();
    void btnEditCat_Click();
    void btnDeleteCat_Click();

    using Numbered = std::pair<ClsCategory, int>;

    void connectControls();
    /// The dialog, ready to be filled and shown; null when the user keeps its input.
    frmCategoryDetails* freeDialog();
    /// The picture for the category, to be appended to the image list.
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
    QuietLine* m_quietLine;
    void waitFor(const QString& path, const LatePicture& picture);
    void takePicture(const QString& path, const QImage& picture);

    struct Awaited {
        QString key; ///< of the picture at the time of the request
        QList<LatePicture> pictures;
    };

    PictureReader m_reader;
    bool m_isReading = true;
    QHash<QString, Awaited> m_awaited; ///< by path
    QStringList m_notes;
    QSet<QString> m_noted;
};
