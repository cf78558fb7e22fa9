#include "tests/app/Legibility.h"

#include "support/Contrast.h"
#include "tests/app/DrawnWindow.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOption>
#include <QTabBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeView>
#include <algorithm>

namespace
{

constexpr double OwedByMarks = 3;
constexpr double LargeText = 24;
constexpr double LargeBoldText = 18.66;

/// Letters of that size are readable with less contrast.
bool isLarge(const QFont& font)
{
    const QFontInfo info(font);
    return info.pixelSize() >= (info.bold() ? LargeBoldText : LargeText);
}

QRect inside(const QRect& rect, int margin)
{
    return rect.adjusted(margin, margin, -margin, -margin);
}

class Look
{
public:
    Look(QWidget& window, double owed) : m_drawn(window), m_owed(owed)
    {
        lookAtWidget(window);
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (widget->isVisibleTo(&window) && !widget->isWindow()) {
                lookAtWidget(*widget);
            }
        }
    }

    Legibility result;

private:
    void text(const QWidget& widget, const QRect& place, const QString& shown, bool enabled)
    {
        // A dot or a comma has no stroke to measure.
        const bool hasLetters =
            std::any_of(shown.cbegin(), shown.cend(), [](QChar letter) { return letter.isLetterOrNumber(); });
        if (!hasLetters || !m_drawn.isInSight(widget, place)) {
            return;
        }
        ++result.texts;
        note(widget, shown, m_drawn.strongestContrast(widget, place),
            !enabled || isLarge(widget.font()) ? std::min(m_owed, 3.0) : m_owed);
    }
    void text(const QWidget& widget, const QRect& place, const QString& shown)
    {
        text(widget, place, shown, widget.isEnabled());
    }
    void mark(const QWidget& widget, const QRect& place, const QString& kind)
    {
        if (m_drawn.isInSight(widget, place)) {
            ++result.marks;
            note(widget, kind, m_drawn.strongestContrast(widget, place), OwedByMarks);
        }
    }
    void note(const QWidget& widget, const QString& shown, double measured, double owed)
    {
        if (measured < owed) {
            result.faults.append(
                QStringLiteral("%1 %2 \"%3\": %4 of %5")
                    .arg(QLatin1String(widget.metaObject()->className()), widget.objectName(), shown.left(40))
                    .arg(measured, 0, 'f', 2)
                    .arg(owed));
        }
    }

    void lookAtWidget(QWidget& widget);
    void lookAtCheckable(const QAbstractButton& button, QStyle::SubElement box, QStyle::SubElement contents);
    void lookAtCombo(const QComboBox& combo);
    void lookAtGroupBox(const QGroupBox& box);
    void lookAtHeader(const QHeaderView& header);
    void lookAtItems(QAbstractItemView& view);
    void lookAtItem(const QAbstractItemView& view, const QModelIndex& index);
    void lookAtMenu(const QMenu& menu);
    void lookAtPicture(const QAbstractButton& button);
    void lookAtPushButton(const QPushButton& button);
    void lookAtGroundOf(const QPushButton& button);
    void lookAtProgress(const QProgressBar& bar);
    void lookAtSpinBox(const QAbstractSpinBox& spin);
    void lookAtTabs(const QTabBar& tabs);
    void lookAtToolButton(const QToolButton& button);
    void lookAtTopic(QTextBrowser& browser);

    DrawnWindow m_drawn;
    double m_owed;
};

void Look::lookAtWidget(QWidget& widget)
{
    if (const auto* label = qobject_cast<QLabel*>(&widget)) {
        text(*label, label->contentsRect(), label->text());
        if (!label->pixmap(Qt::ReturnByValue).isNull()) {
            mark(*label, label->rect(), QStringLiteral("picture"));
        }
    } else if (const auto* checkBox = qobject_cast<QCheckBox*>(&widget)) {
        lookAtCheckable(*checkBox, QStyle::SE_CheckBoxIndicator, QStyle::SE_CheckBoxContents);
    } else if (const auto* option = qobject_cast<QRadioButton*>(&widget);
               option != nullptr && option->text().isEmpty()) {
        lookAtPicture(*option);
    } else if (option != nullptr) {
        lookAtCheckable(*option, QStyle::SE_RadioButtonIndicator, QStyle::SE_RadioButtonContents);
    } else if (const auto* push = qobject_cast<QPushButton*>(&widget)) {
        lookAtPushButton(*push);
    } else if (const auto* tool = qobject_cast<QToolButton*>(&widget)) {
        lookAtToolButton(*tool);
    } else if (const auto* box = qobject_cast<QGroupBox*>(&widget)) {
        lookAtGroupBox(*box);
    } else if (const auto* tabs = qobject_cast<QTabBar*>(&widget)) {
        lookAtTabs(*tabs);
    } else if (const auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        text(*edit, inside(edit->rect(), 3), edit->text().isEmpty() ? edit->placeholderText() : edit->text());
    } else if (const auto* combo = qobject_cast<QComboBox*>(&widget)) {
        lookAtCombo(*combo);
    } else if (const auto* spin = qobject_cast<QAbstractSpinBox*>(&widget)) {
        lookAtSpinBox(*spin);
    } else if (auto* browser = qobject_cast<QTextBrowser*>(&widget)) {
        lookAtTopic(*browser);
    } else if (const auto* lines = qobject_cast<QPlainTextEdit*>(&widget)) {
        text(*lines, inside(lines->viewport()->geometry(), 2), lines->toPlainText());
    } else if (const auto* header = qobject_cast<QHeaderView*>(&widget)) {
        lookAtHeader(*header);
    } else if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) {
        lookAtItems(*view);
    } else if (const auto* menu = qobject_cast<QMenu*>(&widget)) {
        lookAtMenu(*menu);
    } else if (const auto* progress = qobject_cast<QProgressBar*>(&widget)) {
        lookAtProgress(*progress);
    } else if (const auto* bar = qobject_cast<QScrollBar*>(&widget); bar && bar->maximum() > bar->minimum()) {
        mark(*bar, bar->rect(), QStringLiteral("handle"));
    }
}

void Look::lookAtCheckable(const QAbstractButton& button, QStyle::SubElement box, QStyle::SubElement contents)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    const QStyle& style = *button.style();
    const QRect written =
        style.itemTextRect(button.fontMetrics(), style.subElementRect(contents, &option, &button),
            Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, button.isEnabled(), button.text());
    text(button, written, button.text());
    const QRect place = style.subElementRect(box, &option, &button);
    mark(button, place, QStringLiteral("outline"));
    if (button.isChecked()) {
        mark(button, inside(place, 4), QStringLiteral("mark"));
    }
}

/// One of several pictures; the chosen one has a border.
void Look::lookAtPicture(const QAbstractButton& button)
{
    constexpr int Border = 3;
    mark(button, inside(button.rect(), Border), QStringLiteral("picture"));
    if (button.isChecked()) {
        mark(button, QRect(0, 0, button.width(), Border), QStringLiteral("border"));
    }
}

void Look::lookAtCombo(const QComboBox& combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const auto place = [&](QStyle::SubControl part) {
        return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, part, &combo);
    };
    const bool hasPicture = !combo.itemIcon(combo.currentIndex()).isNull();
    const int picture = hasPicture ? combo.iconSize().width() + 4 : 0;
    text(combo, inside(place(QStyle::SC_ComboBoxEditField), 3).adjusted(picture, 0, 0, 0),
        combo.currentText());
    mark(combo, inside(place(QStyle::SC_ComboBoxArrow), 3), QStringLiteral("arrow"));
}

void Look::lookAtPushButton(const QPushButton& button)
{
    constexpr int Border = 4;
    const QRect place = inside(button.rect(), Border);
    text(button, place, button.text());
    lookAtGroundOf(button);
    if (button.menu() != nullptr) {
        const int arrow = button.fontMetrics().height();
        mark(button, place.adjusted(place.width() - arrow, 0, 0, 0), QStringLiteral("arrow"));
    }
}

/// Deliberately faint letters are unreadable where their background stands out more than they do.
void Look::lookAtGroundOf(const QPushButton& button)
{
    constexpr int Beside = 6;
    constexpr int Border = 4;
    const QWidget* around = button.parentWidget();
    const QRect beside(button.x() - Beside, button.y(), Border, button.height());
    if (button.isEnabled() || around == nullptr || !m_drawn.isInSight(*around, beside)) {
        return;
    }
    const QRect inner = inside(button.rect(), Border);
    note(button, QStringLiteral("disabled on another ground"), m_drawn.strongestContrast(button, inner),
        contrastOf(m_drawn.ground(button, inner), m_drawn.ground(*around, beside)));
}

/// How far it is and how far it has to go.
void Look::lookAtProgress(const QProgressBar& bar)
{
    constexpr int Edge = 3;
    mark(bar, inside(bar.rect(), Edge), QStringLiteral("bar"));
    const int half = bar.width() / 2;
    mark(bar, QRect(half, bar.height() - Edge, half - Edge, Edge), QStringLiteral("what is left"));
}

void Look::lookAtSpinBox(const QAbstractSpinBox& spin)
{
    if (spin.buttonSymbols() == QAbstractSpinBox::NoButtons) {
        return;
    }
    // The written part is an edit of its own.
    if (const auto* picker = qobject_cast<const QDateTimeEdit*>(&spin); picker && picker->calendarPopup()) {
        const QRect all = spin.rect();
        mark(spin, QRect(all.width() - 20, 5, 14, all.height() - 10), QStringLiteral("arrow"));
        return;
    }
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.frame = spin.hasFrame();
    option.subControls = QStyle::SC_All;
    for (const auto part : {QStyle::SC_SpinBoxUp, QStyle::SC_SpinBoxDown}) {
        mark(spin, inside(spin.style()->subControlRect(QStyle::CC_SpinBox, &option, part, &spin), 2),
            part == QStyle::SC_SpinBoxUp ? QStringLiteral("up") : QStringLiteral("down"));
    }
}

void Look::lookAtGroupBox(const QGroupBox& box)
{
    QStyleOptionGroupBox option;
    option.initFrom(&box);
    option.text = box.title();
    option.lineWidth = 1;
    option.textAlignment = box.alignment();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    text(box, box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &box),
        box.title());
}

void Look::lookAtTabs(const QTabBar& tabs)
{
    for (int i = 0; i < tabs.count(); ++i) {
        // Without the line below the chosen one.
        text(tabs, tabs.tabRect(i).adjusted(4, 4, -4, -6), tabs.tabText(i), tabs.isTabEnabled(i));
    }
}

void Look::lookAtToolButton(const QToolButton& button)
{
    const QRect place = inside(button.rect(), 3);
    if (!button.icon().isNull()) {
        mark(button, place, QStringLiteral("picture"));
    } else {
        text(button, place, button.text());
    }
}

void Look::lookAtHeader(const QHeaderView& header)
{
    for (int i = 0; header.model() != nullptr && i < header.count(); ++i) {
        const QRect section(header.sectionViewportPosition(i), 0, header.sectionSize(i), header.height());
        if (!header.isSectionHidden(i)) {
            text(header, inside(section, 3), header.model()->headerData(i, header.orientation()).toString());
        }
    }
}

void Look::lookAtItems(QAbstractItemView& view)
{
    const QAbstractItemModel* model = view.model();
    const auto* tree = qobject_cast<QTreeView*>(&view);
    const auto lookUnder = [&](const auto& again, const QModelIndex& parent) -> void {
        for (int row = 0; row < model->rowCount(parent); ++row) {
            for (int column = 0; column < model->columnCount(parent); ++column) {
                lookAtItem(view, model->index(row, column, parent));
            }
            const QModelIndex first = model->index(row, 0, parent);
            if (tree != nullptr && tree->rootIsDecorated() && model->hasChildren(first)) {
                QRect branch = view.visualRect(first);
                branch.setLeft(branch.left() - tree->indentation());
                branch.setWidth(tree->indentation());
                mark(*view.viewport(), branch, QStringLiteral("branch"));
                again(again, first);
            }
        }
    };
    if (model != nullptr) {
        lookUnder(lookUnder, view.rootIndex());
    }
}

void Look::lookAtItem(const QAbstractItemView& view, const QModelIndex& index)
{
    QRect place = inside(view.visualRect(index), 1);
    if (index.data(Qt::DecorationRole).isValid()) {
        const auto* list = qobject_cast<const QListView*>(&view);
        const bool above = list != nullptr && list->viewMode() == QListView::IconMode;
        constexpr int Gap = 4;
        place.adjust(
            above ? 0 : view.iconSize().width() + Gap, above ? view.iconSize().height() + Gap : 0, 0, 0);
    }
    // A calendar writes the days of the neighbouring months as disabled.
    const auto ink = index.data(Qt::ForegroundRole).value<QBrush>().color();
    const bool faint = index.data(Qt::ForegroundRole).isValid()
        && ink == view.palette().color(QPalette::Disabled, QPalette::Text);
    text(*view.viewport(), place, index.data().toString(),
        view.isEnabled() && !faint && index.flags().testFlag(Qt::ItemIsEnabled));
}

void Look::lookAtMenu(const QMenu& menu)
{
    for (QAction* action : menu.actions()) {
        if (!action->isSeparator()) {
            text(menu, inside(menu.actionGeometry(action), 2), action->text(), action->isEnabled());
        }
    }
}

void Look::lookAtTopic(QTextBrowser& browser)
{
    for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (fragment.charFormat().isImageFormat()) {
                continue;
            }
            // Of a part that runs over several lines the first one that has letters.
            QTextCursor cursor(block);
            const QString shown = fragment.text();
            const auto first =
                std::find_if_not(shown.cbegin(), shown.cend(), [](QChar letter) { return letter.isSpace(); });
            cursor.setPosition(fragment.position() + static_cast<int>(first - shown.cbegin()));
            const QRect from = browser.cursorRect(cursor);
            cursor.movePosition(QTextCursor::EndOfLine);
            cursor.setPosition(qMin(cursor.position(), fragment.position() + fragment.length()));
            const QRect to = browser.cursorRect(cursor);
            text(*browser.viewport(), QRect(from.topLeft(), to.bottomLeft()), shown);
        }
    }
}

} // namespace

Legibility lookAt(QWidget& window, double owed)
{
    return Look(window, owed).result;
}
