#include "tests/app/WindowTexts.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTableView>
#include <QTextDocument>
#include <QToolButton>

namespace
{

/// What a tool tip shows: its markup read, and without the places to break it.
QString shownTip(const QVariant& tip)
{
    QTextDocument document;
    document.setHtml(tip.toString());
    return document.toPlainText().remove(QChar(0x200B));
}

QList<QWidget*> visibleWidgets(QWidget& window)
{
    QList<QWidget*> widgets{&window};
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisibleTo(&window) && widget->window() == &window) {
            widgets.append(widget);
        }
    }
    return widgets;
}

int widthOf(const QString& text, const QFontMetrics& metrics)
{
    return metrics.size(Qt::TextShowMnemonic, text).width();
}

class Look
{
public:
    explicit Look(QWidget& window)
    {
        for (QWidget* widget : visibleWidgets(window)) {
            lookAt(*widget);
        }
    }

    QStringList faults;

private:
    void require(bool fits, const QWidget& widget, const QString& text)
    {
        if (!fits && !text.isEmpty()) {
            faults.append(QStringLiteral("%1 %2 (%3 x %4) cuts off \"%5\"")
                              .arg(QLatin1String(widget.metaObject()->className()), widget.objectName())
                              .arg(widget.width())
                              .arg(widget.height())
                              .arg(text));
        }
    }

    void lookAt(QWidget& widget)
    {
        if (const auto* label = qobject_cast<QLabel*>(&widget)) {
            lookAtLabel(*label);
        } else if (const auto* push = qobject_cast<QPushButton*>(&widget)) {
            QStyleOptionButton option;
            option.initFrom(push);
            const QRect room = push->style()->subElementRect(QStyle::SE_PushButtonContents, &option, push);
            require(widthOf(push->text(), push->fontMetrics()) <= room.width(), *push, push->text());
        } else if (const auto* button = qobject_cast<QAbstractButton*>(&widget)) {
            require(button->width() >= button->sizeHint().width(), *button, button->text());
        } else if (const auto* box = qobject_cast<QGroupBox*>(&widget)) {
            require(box->width() >= box->minimumSizeHint().width(), *box, box->title());
        } else if (auto* tabs = qobject_cast<QTabBar*>(&widget)) {
            lookAtTabs(*tabs);
        } else if (const auto* combo = qobject_cast<QComboBox*>(&widget)) {
            lookAtCombo(*combo);
        } else if (const auto* spin = qobject_cast<QAbstractSpinBox*>(&widget)) {
            const auto* edit = spin->findChild<QLineEdit*>();
            require(widthOf(edit->text(), edit->fontMetrics()) < edit->width(), *spin, edit->text());
        } else if (const auto* header = qobject_cast<QHeaderView*>(&widget)) {
            lookAtHeader(*header);
        } else if (const auto* menu = qobject_cast<QMenu*>(&widget)) {
            for (QAction* action : menu->actions()) {
                require(!action->isVisible() || menu->rect().contains(menu->actionGeometry(action)), *menu,
                    action->text());
            }
        }
    }

    void lookAtLabel(const QLabel& label)
    {
        const QSize owed =
            label.wordWrap() ? QSize(0, label.heightForWidth(label.width())) : label.sizeHint();
        require(label.width() >= owed.width() && label.height() >= owed.height(), label, label.text());
    }

    void lookAtTabs(QTabBar& tabs)
    {
        for (int i = 0; i < tabs.count(); ++i) {
            constexpr int Air = 6;
            const bool whole = tabs.tabRect(i).width() >= widthOf(tabs.tabText(i), tabs.fontMetrics()) + Air;
            require(whole && tabs.rect().contains(tabs.tabRect(i)), tabs, tabs.tabText(i));
        }
        // The arrows to tabs that are scrolled out of sight.
        for (const QToolButton* arrow : tabs.findChildren<QToolButton*>()) {
            require(!arrow->isVisible(), tabs, tabs.tabText(tabs.count() - 1));
        }
    }

    void lookAtCombo(const QComboBox& combo)
    {
        QStyleOptionComboBox option;
        option.initFrom(&combo);
        const int room =
            combo.style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo)
                .width();
        for (int i = 0; i < combo.count(); ++i) {
            require(
                combo.fontMetrics().horizontalAdvance(combo.itemText(i)) <= room, combo, combo.itemText(i));
        }
    }

    void lookAtHeader(const QHeaderView& header)
    {
        for (int i = 0; header.model() != nullptr && i < header.count(); ++i) {
            const QString caption = header.model()->headerData(i, header.orientation()).toString();
            const bool whole = header.fontMetrics().horizontalAdvance(caption) < header.sectionSize(i);
            const QVariant said = header.model()->headerData(i, header.orientation(), Qt::ToolTipRole);
            require(header.isSectionHidden(i) || whole || shownTip(said).contains(caption), header, caption);
        }
    }
};

QStringList captionsOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return {label->text()};
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return {button->text()};
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
        return {box->title()};
    }
    QStringList captions;
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            captions += {tabs->tabText(i), tabs->tabToolTip(i)};
        }
    } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        for (int i = 0; i < combo->count(); ++i) {
            captions.append(combo->itemText(i));
        }
    } else if (const auto* header = qobject_cast<const QHeaderView*>(&widget);
               header != nullptr && header->model() != nullptr) {
        for (int i = 0; i < header->count(); ++i) {
            if (header->orientation() == Qt::Horizontal) {
                captions += {header->model()->headerData(i, Qt::Horizontal).toString(),
                    shownTip(header->model()->headerData(i, Qt::Horizontal, Qt::ToolTipRole))};
            }
        }
    } else if (const auto* menu = qobject_cast<const QMenu*>(&widget)) {
        for (const QAction* action : menu->actions()) {
            captions.append(action->text());
        }
    }
    return captions;
}

/// What the pictures in the lists of records mean.
QStringList wordsOfPictures(const QWidget& widget)
{
    QStringList words;
    if (const auto* grid = qobject_cast<const QTableView*>(&widget);
        grid != nullptr && grid->model() != nullptr) {
        for (int row = 0; row < grid->model()->rowCount(); ++row) {
            for (int column = 0; column < grid->model()->columnCount(); ++column) {
                const QModelIndex cell = grid->model()->index(row, column);
                if (cell.data().toString().isEmpty()) {
                    words += {cell.data(Qt::AccessibleTextRole).toString()};
                }
            }
        }
    }
    return words;
}

} // namespace

QStringList cutOffTexts(QWidget& window)
{
    return Look(window).faults;
}

QStringList textsOf(QWidget& window)
{
    QStringList texts{window.windowTitle()};
    for (const QWidget* widget : visibleWidgets(window)) {
        texts += captionsOf(*widget) + wordsOfPictures(*widget);
        texts += {widget->toolTip(), widget->accessibleName(), widget->accessibleDescription()};
        if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) {
            texts.append(edit->placeholderText());
        }
    }
    texts.removeAll(QString());
    return texts;
}

QStringList mnemonicsOf(QWidget& window)
{
    QStringList letters;
    for (const QWidget* widget : visibleWidgets(window)) {
        for (const QString& caption : captionsOf(*widget)) {
            const qsizetype mark =
                qobject_cast<const QComboBox*>(widget) == nullptr ? caption.indexOf(u'&') : -1;
            if (mark >= 0 && mark + 1 < caption.size()) {
                letters.append(caption[mark + 1].toLower());
            }
        }
    }
    return letters;
}
