#pragma once

#include <QCoreApplication>
#include <array>

class IconBox;
class PictureLabel;
class PicturePanel;
class QButtonGroup;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QWidget;

/// The controls of the category dialog and their layout. They are children of `form`, which owns them.
class CategoryDetailsControls
{
    Q_DECLARE_TR_FUNCTIONS(frmCategoryDetails)

public:
    static constexpr int IconCount = 12;
    /// Width and height of the preview of a custom picture.
    static constexpr int PreviewEdge = 48;

    explicit CategoryDetailsControls(QWidget& form);

    QLineEdit* txtCatName;
    QPlainTextEdit* txtCatDesc;
    QRadioButton* opnDefaultIcon;
    PicturePanel* picIcons;
    std::array<IconBox*, IconCount> imgIcon;
    QRadioButton* opnCustomIcon;
    PicturePanel* picCustomIcon;
    PictureLabel* imgCustomIcon;
    QLabel* lblIconSize;
    QPushButton* btnBrowse;
    QPushButton* btnOk;
    QPushButton* btnCancel;

private:
    void setUp(const QWidget& form);
    void layOut(QWidget& form);
    void layOutIcons();
    void layOutCustomIcon();
    void setTabOrder();
};
