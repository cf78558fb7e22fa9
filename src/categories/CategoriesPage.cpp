#include "categories/CategoriesPage.h"

#include "categories/CategoryList.h"
#include "categories/StandInPicture.h"
#include "categories/frmCategoryDetails.h"
#include "data/ClsCategory.h"
#include "data/KeptCopies.h"
#include "data/UndoHistory.h"
#include "store/DatabaseError.h"
#include "system/ErrorReport.h"
#include "widgets/ChangeTexts.h"
#include "widgets/ImageList.h"
#include "widgets/MessageBoxes.h"
#include "widgets/PlainText.h"
#include "widgets/QuietLine.h"
#include "widgets/WindowPlacement.h"

#include <QBoxLayout>
#include <QFileInfo>
#include <QPushButton>
#include <algorithm>
#include <utility>
#include <vector>

namespace
{

QPushButton* makeButton(const char* name, const QString& text)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

int idOf(const QListWidgetItem& item)
{
    return item.data(Qt::UserRole).toInt();
}

} // namespace

CategoriesPage::CategoriesPage(const FormServices& services,
    std::function<frmCategoryDetails&()> categoryDetails, const ProgramPath& pictureReader, QWidget* parent)
    : QWidget(parent), m_services(services), m_categoryDetails(std::move(categoryDetails)),
      m_customIcons(services.engine.programFolder), m_list(new CategoryList),
      m_add(makeButton("btnAddCat", tr("&Add"))), m_edit(makeButton("btnEditCat", tr("&Edit"))),
      m_delete(makeButton("btnDeleteCat", tr("&Delete"))),
      m_help(makeButton("btnHelpCategories", tr("&Help"))),
      m_quietLine(new QuietLine(QStringLiteral("lblCategoriesNote"), this)), m_reader(pictureReader)
{
    m_list->setObjectName(QStringLiteral("lstViewCategories"));
    m_list->setAccessibleName(tr("Categories"));
    m_add->setAccessibleName(tr("Add a category"));
    m_edit->setAccessibleName(tr("Edit the selected category"));
    m_delete->setAccessibleName(tr("Delete the selected category"));
    m_help->setAccessibleName(tr("Help on categories"));
    m_help->setEnabled(false);

    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {m_add, m_edit, m_delete}) {
        buttons->addWidget(button);
    }
    buttons->addStretch();
    buttons->addWidget(m_help);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
    layout->addWidget(m_quietLine);
    connectControls();
}

void CategoriesPage::connectControls()
{
    ErrorReport& errors = m_services.errors;
    connectGuarded(m_add, &QPushButton::clicked, this, &CategoriesPage::btnAddCat_Click, errors);
    connectGuarded(m_edit, &QPushButton::clicked, this, &CategoriesPage::btnEditCat_Click, errors);
    connectGuarded(m_delete, &QPushButton::clicked, this, &CategoriesPage::btnDeleteCat_Click, errors);
    connectGuarded(m_list, &QListWidget::doubleClicked, this, &CategoriesPage::btnEditCat_Click, errors);
    connectGuarded(m_list, &CategoryList::enterPressed, this, &CategoriesPage::btnEditCat_Click, errors);
    connectGuarded(m_list, &CategoryList::deletePressed, this, &CategoriesPage::btnDeleteCat_Click, errors);
    connect(&m_reader, &PictureReader::read, this, &CategoriesPage::takePicture);
    connect(&m_reader, &PictureReader::refused, this, [this](const QString& path, const QString& why) {
        m_awaited.remove(path);
        note(QFileInfo(path).fileName(), why);
    });
    connect(&m_reader, &PictureReader::finished, this, [this] {
        m_isReading = false;
        m_customIcons.tidy();
        emit picturesRead();
    });
    connect(m_help, &QPushButton::clicked, this, &CategoriesPage::helpRequested);
}

void CategoriesPage::LoadCategories()
{
    std::vector<ClsCategory> categories = ClsCategory(m_services.engine).GetAllCategories();
    const QListWidgetItem* selected = m_list->selectedItem();
    const int selectedId = selected == nullptr ? 0 : idOf(*selected);

    m_list->clear();
    std::vector<Numbered> numbered;
    for (const ClsCategory& category : categories) {
        int number = category.IconId() + 1;
        if (category.IsCustomIcon()) {
            number = m_services.imgLstCategories.append(customPicture(category));
            numbered.emplace_back(category, number);
        }
        const QIcon picture = m_services.imgLstCategories.picture(number);
        auto* item = new QListWidgetItem(picture.isNull() ? standInPicture() : picture, category.CatName());
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setData(Qt::UserRole, category.Id());
        item->setToolTip(category.Description());
        item->setData(Qt::AccessibleTextRole, shownPart(category.CatName()));
        item->setData(Qt::AccessibleDescriptionRole, shownPart(category.Description()));
        m_list->addItem(item);
    }
    m_list->setEmptyText(categories.empty() ? tr("There are no categories yet") : QString());
    if (const int row = rowOf(selectedId); row >= 0) {
        m_list->selectOnly(row);
    }

    try {
        writeIconNumbers(numbered);
    } catch (const DatabaseError&) {
        // A full or locked data file is no reason not to start, or to leave other lists as they were: a task
        // shows another picture until the next load writes the numbers again.
        return;
    }
}

QIcon CategoriesPage::customPicture(const ClsCategory& category)
{
    try {
        QIcon known = m_customIcons.find(category.CustomIconName());
        if (!known.isNull()) {
            return known;
        }
        const QString path = m_customIcons.pathOf(category.CustomIconName());
        const LatePicture late;
        waitFor(path, late);
        return late.icon();
    } catch (const RuntimeError& error) {
        note(category.CustomIconName(), error.text());
        return standInPicture();
    }
}

void CategoriesPage::waitFor(const QString& path, const LatePicture& picture)
{
    Awaited& awaited = m_awaited[path];
    if (awaited.pictures.isEmpty()) {
        awaited.key = PictureCache::keyOf(path);
    }
    awaited.pictures.append(picture);
    m_reader.request(path);
}

void CategoriesPage::takePicture(const QString& path, const QImage& picture)
{
    const Awaited awaited = m_awaited.take(path);
    const QIcon icon = m_customIcons.keep(path, awaited.key, picture);
    for (LatePicture late : awaited.pictures) {
        late.arrive(icon);
    }
    m_list->viewport()->update();
    emit pictureCame();
}

void CategoriesPage::readPictures()
{
    m_reader.begin();
}

void CategoriesPage::writeIconNumbers(const std::vector<Numbered>& numbered)
{
    std::vector<ClsCategory> written;
    for (const auto& [category, number] : numbered) {
        try {
            const qint16 id = narrowId(number - 1, QT_TRANSLATE_NOOP("OverflowError", "icon number"));
            written.push_back(category);
            written.back().setIconId(id);
        } catch (const OverflowError& error) {
            note(QStringLiteral("/overflow"), error.text());
        }
    }
    if (!written.empty()) {
        ClsCategory::updateAll(m_services.engine, written);
    }
}

void CategoriesPage::note(const QString& key, const QString& text)
{
    if (m_noted.contains(key)) {
        return;
    }
    m_noted.insert(key);
    m_notes.append(text);
    if (window()->isVisible() && !m_isReading) {
        // Queued behind everything that follows a load: the other lists must not wait for the user's
        // answer.
        QMetaObject::invokeMethod(this, &CategoriesPage::reportNotes, Qt::QueuedConnection);
    }
}

void CategoriesPage::reportNotes()
{
    const QStringList notes = takeUnreadablePictures();
    if (!notes.isEmpty()) {
        m_services.errors.report(notes.join(u'\n'));
    }
}

QStringList CategoriesPage::takeUnreadablePictures()
{
    return std::exchange(m_notes, {});
}

void CategoriesPage::pageOpened()
{
    if (m_list->count() > 1) {
        m_list->selectOnly(0);
    }
}

void CategoriesPage::focusList()
{
    m_list->setFocus();
}

void CategoriesPage::setHelpEnabled(bool enabled)
{
    m_help->setEnabled(enabled);
}

void CategoriesPage::btnAddCat_Click()
{
    if (frmCategoryDetails* dialog = freeDialog()) {
        dialog->clearTag();
        dialog->EmptyForm();
        showOwned(dialog, window());
    }
}

void CategoriesPage::btnEditCat_Click()
{
    const QListWidgetItem* item = m_list->selectedItem();
    if (item == nullptr) {
        return;
    }
    const QString tag = QString::number(idOf(*item));
    if (frmCategoryDetails* dialog = freeDialog()) {
        dialog->SetTag(tag);
        showOwned(dialog, window());
    }
}

frmCategoryDetails* CategoriesPage::freeDialog()
{
    frmCategoryDetails& dialog = m_categoryDetails();
    // So that the question about unsaved input does not come up behind the main window.
    if (m_services.alwaysOnTop()) {
        makeTopmost(&dialog);
    }
    return dialog.letGo() ? &dialog : nullptr;
}

void CategoriesPage::btnDeleteCat_Click()
{
    const QListWidgetItem* item = m_list->selectedItem();
    if (item == nullptr) {
        return;
    }
    const int id = idOf(*item);
    const QString name = item->text();
    const QString question =
        tr("Are you sure you want to delete '%1' category, all tasks under this category will be "
           "deleted?")
            .arg(name);
    if (!m_services.messages.ask(window(), question)) {
        return;
    }
    const qint16 shortId = narrowId(id, QT_TRANSLATE_NOOP("OverflowError", "category id"));
    QString noCopy;
    if (ClsCategory(m_services.engine).hasTasks(shortId)) {
        noCopy = KeptCopies(m_services.engine).keep(CopyOccasion::Deletion);
    }
    QString done = tr("Category \"%1\" deleted with its tasks").arg(name);
    m_services.undo.run([&](const DatabaseEngine& engine) {
        ClsCategory(engine).DeleteById(shortId);
        return done;
    });
    m_quietLine->say(ChangeTexts::withNoCopy(done, noCopy));

    // The list may have been rebuilt while the question was open.
    if (const int row = rowOf(id); row >= 0) {
        delete m_list->takeItem(row);
        m_list->clearSelection();
        if (m_list->count() > 0) {
            m_list->selectOnly(std::min(row, m_list->count() - 1));
        }
    }
    LoadCategories();
    emit categoriesChanged();
}

int CategoriesPage::rowOf(int id) const
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (idOf(*m_list->item(row)) == id) {
            return row;
        }
    }
    return -1;
}
