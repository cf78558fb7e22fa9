#include "categories/CategoryDetailsControls.h"

#include "categories/IconBox.h"
#include "categories/PicturePanel.h"
#include "widgets/LetterScale.h"
#include "widgets/LongText.h"
#include "widgets/NamedControls.h"
#include "widgets/PictureLabel.h"
#include "widgets/ScrollFrame.h"
#include "widgets/TaskPictures.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace
{

constexpr int StartWidth = 380;
constexpr int PreviewFrame = 1;
constexpr int IconColumns = 6;
constexpr int DescriptionLines = 4;

} // namespace

CategoryDetailsControls::CategoryDetailsControls(QWidget& form)
    : txtCatName(named(new QLineEdit(&form), "txtCatName")),
      txtCatDesc(named(new QPlainTextEdit(&form), "txtCatDesc")),
      opnDefaultIcon(named(new QRadioButton(&form), "opnDefaultIcon")),
      picIcons(named(new PicturePanel(&form), "picIcons")), imgIcon{},
      opnCustomIcon(named(new QRadioButton(&form), "opnCustomIcon")),
      picCustomIcon(named(new PicturePanel(&form), "picCustomIcon")),
      imgCustomIcon(new PictureLabel(QSize(PreviewEdge, PreviewEdge), picCustomIcon)),
      lblIconSize(named(new QLabel(picCustomIcon), "lblIconSize")),
      btnBrowse(named(new QPushButton(picCustomIcon), "btnBrowse")),
      btnOk(named(new QPushButton(&form), "btnOk")), btnCancel(named(new QPushButton(&form), "btnCancel"))
{
    auto* group = new QButtonGroup(picIcons);
    for (int i = 0; i < IconCount; ++i) {
        IconBox*& box = imgIcon.at(static_cast<std::size_t>(i));
        box = named(new IconBox(picIcons), QStringLiteral("imgIcon%1").arg(i));
        box->setAccessibleName(tr("Icon %1 of %2").arg(i + 1).arg(IconCount));
        box->setAccessibleDescription(categoryPictureWord(i));
        box->setToolTip(categoryPictureWord(i));
        group->addButton(box);
    }
    setUp(form);
    layOut(form);
    setTabOrder();
}

void CategoryDetailsControls::setUp(const QWidget& form)
{
    takeLongTexts(*txtCatName);
    txtCatName->setAccessibleName(tr("Category"));
    txtCatDesc->setTabChangesFocus(true);
    txtCatDesc->setAccessibleName(tr("Description"));
    opnDefaultIcon->setText(tr("De&fault Icon"));
    opnCustomIcon->setText(tr("C&ustom Icon"));
    picIcons->setAccessibleName(tr("Default icons"));
    picCustomIcon->setAccessibleName(tr("Custom icon"));

    imgCustomIcon->setObjectName(QStringLiteral("imgCustomIcon"));
    const int preview = withLetters(PreviewEdge, form.font()) + 2 * PreviewFrame;
    imgCustomIcon->setFixedSize(preview, preview);
    imgCustomIcon->setAccessibleName(tr("Custom icon preview"));
    lblIconSize->setTextFormat(Qt::PlainText);
    lblIconSize->setText(tr("Prefered size 24*24 pixels"));
    // Skins colour labels and buttons for their own background, but these stand on white or light grey
    // under every skin. Shapes and sizes are the skin's.
    imgCustomIcon->setStyleSheet(
        QStringLiteral("QLabel { background: transparent; border: 1px solid #b0b0b0; }"));
    lblIconSize->setStyleSheet(QStringLiteral(
        "QLabel { color: #202020; background: transparent; } QLabel:disabled { color: #5a5a5a; }"));
    btnBrowse->setStyleSheet(QStringLiteral(
        "QPushButton { color: #202020; background-color: #f4f4f4; border-color: #767676; }"
        "QPushButton:hover { background-color: #e6e6e6; border-color: #5a5a5a; }"
        "QPushButton:pressed { background-color: #d4d4d4; }"
        "QPushButton:focus { border-color: #0b5fc4; }"
        "QPushButton:disabled { color: #5a5a5a; background-color: #e0e0e0; border-color: #767676; }"));

    btnBrowse->setText(tr("&Browse"));
    btnBrowse->setAccessibleName(tr("Browse for a custom icon"));
    btnOk->setText(tr("&OK"));
    btnCancel->setText(tr("Ca&ncel"));
    for (QPushButton* button : {btnBrowse, btnOk, btnCancel}) {
        button->setAutoDefault(false);
    }
}

void CategoryDetailsControls::layOut(QWidget& form)
{
    layOutIcons();
    layOutCustomIcon();
    txtCatDesc->setMinimumHeight(txtCatDesc->fontMetrics().lineSpacing() * DescriptionLines);

    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins({});
    QLabel* description = named(labelFor(txtCatDesc, tr("&Description"), &form), "lblCatDesc");
    description->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    int row = 0;
    grid->addWidget(named(labelFor(txtCatName, tr("&Category"), &form), "lblCatName"), row, 0);
    grid->addWidget(txtCatName, row++, 1);
    grid->addWidget(description, row, 0);
    grid->addWidget(txtCatDesc, row, 1);
    grid->setRowStretch(row++, 1);
    grid->addWidget(opnDefaultIcon, row++, 0, 1, 2);
    grid->addWidget(picIcons, row++, 0, 1, 2);
    grid->addWidget(opnCustomIcon, row++, 0, 1, 2);
    grid->addWidget(picCustomIcon, row, 0, 1, 2);
    // Without a parent until they are added: so they come after the content in the tab order.
    auto* bar = new QWidget;
    auto* buttons = new QHBoxLayout(bar);
    buttons->setContentsMargins({});
    buttons->addStretch();
    buttons->addWidget(btnOk);
    buttons->addWidget(btnCancel);
    auto* all = new QVBoxLayout(&form);
    all->addWidget(new ScrollFrame(content, {btnOk}), 1);
    all->addWidget(bar);
    form.resize(withLetters(StartWidth, form.font()), all->minimumSize().height());
}

void CategoryDetailsControls::layOutIcons()
{
    auto* grid = new QGridLayout(picIcons);
    for (int i = 0; i < IconCount; ++i) {
        grid->addWidget(
            imgIcon.at(static_cast<std::size_t>(i)), i / IconColumns, i % IconColumns, Qt::AlignCenter);
    }
}

void CategoryDetailsControls::layOutCustomIcon()
{
    auto* row = new QHBoxLayout(picCustomIcon);
    row->addWidget(imgCustomIcon);
    row->addWidget(lblIconSize, 1);
    row->addWidget(btnBrowse);
}

void CategoryDetailsControls::setTabOrder()
{
    QWidget::setTabOrder(txtCatName, txtCatDesc);
    QWidget::setTabOrder(txtCatDesc, opnDefaultIcon);
    QWidget* last = opnDefaultIcon;
    for (IconBox* box : imgIcon) {
        QWidget::setTabOrder(last, box);
        last = box;
    }
    QWidget::setTabOrder(last, opnCustomIcon);
    QWidget::setTabOrder(opnCustomIcon, btnBrowse);
    QWidget::setTabOrder(btnBrowse, btnOk);
    QWidget::setTabOrder(btnOk, btnCancel);
}
