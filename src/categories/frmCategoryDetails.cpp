#include "categories/frmCategoryDetails.h"

#include "categories/IconBox.h"
#include "categories/PicturePanel.h"
#include "data/ClsCategory.h"
#include "system/ErrorReport.h"
#include "widgets/CheckerTimer.h"
#include "widgets/CloseBox.h"
#include "widgets/FileDialogs.h"
#include "widgets/ImageList.h"
#include "widgets/LongText.h"
#include "widgets/MessageBoxes.h"
#include "widgets/PictureLabel.h"
#include "widgets/UnsavedInput.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRandomGenerator>

namespace
{

/// Instead of a source path: the stored picture stays.
const QLatin1String KeepStoredPicture("-1");
/// Property of the preview: the name of the stored picture.
constexpr const char* PictureTag = "tag";

} // namespace

frmCategoryDetails::frmCategoryDetails(const FormServices& services, std::function<double()> draw)
    : QWidget(nullptr, Qt::Dialog), m_services(services), m_customIcons(services.engine.programFolder),
      m_draw(std::move(draw)), m_controls(*this)
{
    setObjectName(QStringLiteral("frmCategoryDetails"));
    setWindowTitle(tr("Category Details"));
    if (!m_draw) {
        // The system's generator instead of one seeded with the time: two names drawn within a second must
        // differ.
        m_draw = [] {
            return QRandomGenerator::global()->generateDouble();
        };
    }
    for (int i = 0; i < CategoryDetailsControls::IconCount; ++i) {
        m_controls.imgIcon.at(static_cast<std::size_t>(i))
            ->setIcon(m_services.imgLstCategories.picture(i + 1));
    }
    m_controls.txtCatDesc->installEventFilter(this);
    connectControls();
    EmptyForm();
}

void frmCategoryDetails::connectControls()
{
    connect(
        m_controls.opnDefaultIcon, &QRadioButton::toggled, this, &frmCategoryDetails::opnDefaultIcon_Click);
    connect(m_controls.opnCustomIcon, &QRadioButton::toggled, this, &frmCategoryDetails::opnCustomIcon_Click);
    ErrorReport& errors = m_services.errors;
    connectGuarded(
        m_controls.btnBrowse, &QPushButton::clicked, this, &frmCategoryDetails::btnBrowse_Click, errors);
    connectGuarded(m_controls.btnOk, &QPushButton::clicked, this, &frmCategoryDetails::btnOk_Click, errors);
    connectGuarded(
        m_controls.btnCancel, &QPushButton::clicked, this, &frmCategoryDetails::btnCancel_Click, errors);
}

bool frmCategoryDetails::letGo()
{
    const CategoryInput entered = input();
    return !m_filled || entered == *m_filled
        || letGoOfInput(m_services, *this, entered.unsavedText(), [this] { return save(); });
}

CategoryInput frmCategoryDetails::input() const
{
    return {wholeText(*m_controls.txtCatName), wholeText(*m_controls.txtCatDesc), GetSelectedIcon(),
        m_controls.opnCustomIcon->isChecked(), m_customIconSource};
}

void frmCategoryDetails::EmptyForm()
{
    setWholeText(*m_controls.txtCatName, {});
    setWholeText(*m_controls.txtCatDesc, {});
    m_controls.txtCatName->setEnabled(true);
    SelectIcon(0);
    m_controls.opnDefaultIcon->setChecked(true);
    opnDefaultIcon_Click();
    showCustomPicture({});
    m_customIconSource.clear();
    m_controls.imgCustomIcon->setProperty(PictureTag, QString());
    noteFilled();
}

void frmCategoryDetails::SetTag(const QString& tag)
{
    const qint16 id = narrowId(tag.toLongLong(), QT_TRANSLATE_NOOP("OverflowError", "category id"));
    const std::optional<ClsCategory> category = ClsCategory(m_services.engine).GetCatById(id);
    if (!category) {
        throw RuntimeError(tr("The category no longer exists."));
    }
    m_tag = tag;
    EmptyForm();
    fillFrom(*category);
    noteFilled();
}

void frmCategoryDetails::forgetCategory()
{
    clearTag();
    m_controls.txtCatName->setEnabled(true);
}

void frmCategoryDetails::fillFrom(const ClsCategory& category)
{
    setWholeText(*m_controls.txtCatName, category.CatName());
    m_controls.txtCatName->setCursorPosition(0);
    m_controls.txtCatName->setEnabled(false);
    setWholeText(*m_controls.txtCatDesc, category.Description());
    if (!category.IsCustomIcon()) {
        SelectIcon(category.IconId());
        return;
    }
    m_controls.opnCustomIcon->setChecked(true);
    m_customIconSource = KeepStoredPicture;
    m_controls.imgCustomIcon->setProperty(PictureTag, category.CustomIconName());
    m_services.errors.guard([&] { showCustomPicture(m_customIcons.load(category.CustomIconName())); });
}

void frmCategoryDetails::SelectIcon(int Id)
{
    const bool exists = Id >= 0 && Id < CategoryDetailsControls::IconCount;
    // The group is exclusive, so the other boxes lose their border.
    m_controls.imgIcon.at(exists ? static_cast<std::size_t>(Id) : 0)->setChecked(true);
}

int frmCategoryDetails::GetSelectedIcon() const
{
    for (int i = 0; i < CategoryDetailsControls::IconCount; ++i) {
        if (m_controls.imgIcon.at(static_cast<std::size_t>(i))->isChecked()) {
            return i;
        }
    }
    return 0;
}

QString frmCategoryDetails::NewCustomIconName() const
{
    constexpr double range = 1'000'000;
    return QStringLiteral("icon%1").arg(qRound64(m_draw() * range));
}

void frmCategoryDetails::showCustomPicture(const QIcon& picture)
{
    m_customPicture = picture;
    m_controls.imgCustomIcon->setPicture(picture);
}

void frmCategoryDetails::opnDefaultIcon_Click()
{
    if (m_controls.opnDefaultIcon->isChecked()) {
        m_controls.picIcons->setUsable(true);
        m_controls.picCustomIcon->setUsable(false);
    }
}

void frmCategoryDetails::opnCustomIcon_Click()
{
    if (m_controls.opnCustomIcon->isChecked()) {
        m_controls.picIcons->setUsable(false);
        m_controls.picCustomIcon->setUsable(true);
    }
}

void frmCategoryDetails::btnBrowse_Click()
{
    FileDialogRequest request;
    request.name = QStringLiteral("cdIconBrowse");
    request.filter = tr("Image Files (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg");
    request.initialFolder = userFolder(QStandardPaths::PicturesLocation);
    request.fileMustExist = true;
    QString path;
    {
        const CheckerPause pause(m_services.checkerTimer);
        path = m_services.fileDialogs.open(this, request);
    }
    // Loaded first: a file that is no picture must change neither path nor preview.
    const QString key = PictureCache::keyOf(path);
    QIcon picture;
    try {
        picture = path.isEmpty() ? QIcon() : CustomIcons::loadFile(path);
    } catch (const RuntimeError& error) {
        m_services.messages.tell(this, MessageBoxes::Icon::Exclamation, error.text());
        m_controls.btnBrowse->setFocus();
        return;
    }
    m_customIconKey = key;
    m_customIconSource = path;
    showCustomPicture(picture);
}

void frmCategoryDetails::btnOk_Click()
{
    save();
}

bool frmCategoryDetails::save()
{
    if (refuses()) {
        return false;
    }
    if (!store()) {
        m_services.messages.tell(
            this, MessageBoxes::Icon::Exclamation, tr("A category with the same name already exists"));
        m_controls.txtCatName->selectAll();
        m_controls.txtCatName->setFocus();
        return false;
    }
    emit categoryStored();
    leave();
    emit categorySaved();
    return true;
}

bool frmCategoryDetails::store() const
{
    if (m_tag.isEmpty()) {
        return !enteredCategory().Add();
    }
    requireEditedCategory();
    ClsCategory category = enteredCategory();
    category.setId(narrowId(m_tag.toLongLong(), QT_TRANSLATE_NOOP("OverflowError", "category id")));
    category.Update();
    return true;
}

bool frmCategoryDetails::refuses()
{
    QString refusal;
    QWidget* place = nullptr;
    if (wholeText(*m_controls.txtCatName).trimmed().isEmpty()) {
        refusal = tr("Please enter category name.");
        place = m_controls.txtCatName;
    } else if (m_controls.opnCustomIcon->isChecked() && m_customPicture.isNull()) {
        refusal = tr("Please browse for a custom icon");
        place = m_controls.btnBrowse;
    } else {
        return false;
    }
    m_services.messages.tell(this, MessageBoxes::Icon::Exclamation, refusal);
    place->setFocus();
    return true;
}

ClsCategory frmCategoryDetails::enteredCategory() const
{
    ClsCategory category(m_services.engine);
    category.setCatName(wholeText(*m_controls.txtCatName));
    category.setDescription(wholeText(*m_controls.txtCatDesc));
    if (m_controls.opnCustomIcon->isChecked()) {
        category.setIsCustomIcon(true);
        category.setCustomIconName(storeCustomPicture());
    } else {
        category.setIconId(static_cast<qint16>(GetSelectedIcon()));
    }
    return category;
}

QString frmCategoryDetails::storeCustomPicture() const
{
    if (m_customIconSource == KeepStoredPicture) {
        return m_controls.imgCustomIcon->property(PictureTag).toString();
    }
    QString name = NewCustomIconName() + QLatin1String(".gif");
    m_customIcons.store(m_customIconSource, name, m_customPicture, m_customIconKey);
    return name;
}

void frmCategoryDetails::requireEditedCategory() const
{
    // Updating a category that is gone would change no row, and the input would be lost unnoticed.
    const qint16 id = narrowId(m_tag.toLongLong(), QT_TRANSLATE_NOOP("OverflowError", "category id"));
    if (!ClsCategory(m_services.engine).GetCatById(id)) {
        throw RuntimeError(tr("The category no longer exists."));
    }
}

void frmCategoryDetails::btnCancel_Click()
{
    leave();
    emit cancelled();
}

void frmCategoryDetails::leave()
{
    m_filled.reset();
    hide();
}

void frmCategoryDetails::Form_Escape()
{
    // Escape is easily pressed by mistake: ask. The button is pressed on purpose.
    m_services.errors.guard([this] {
        if (letGo() && isVisible()) {
            m_controls.btnCancel->click();
        }
    });
}

void frmCategoryDetails::keyPressEvent(QKeyEvent* event)
{
    // With these modifiers it is another shortcut.
    const bool modified =
        event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (event->key() == Qt::Key_Escape && !modified) {
        if (!event->isAutoRepeat()) {
            Form_Escape();
        }
        return;
    }
    QWidget::keyPressEvent(event);
}

bool frmCategoryDetails::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        // The Enter that opens this window in the list of categories may be held.
        if (key.isAutoRepeat() && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void frmCategoryDetails::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (event->spontaneous()) {
        return;
    }
    if (m_controls.txtCatName->isEnabled()) {
        m_controls.txtCatName->setFocus();
    } else {
        m_controls.txtCatDesc->setFocus();
    }
}

void frmCategoryDetails::closeEvent(QCloseEvent* event)
{
    if (isCloseByUser(*event)) {
        event->ignore();
        leave();
    }
}
