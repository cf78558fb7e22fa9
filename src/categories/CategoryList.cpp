#include "categories/CategoryList.h"

#include "widgets/EmptyText.h"
#include "widgets/LetterScale.h"
#include "widgets/PlainText.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QToolTip>
#include <algorithm>
#include <array>

namespace
{

constexpr int IconEdge = 32;
constexpr int LabelLines = 2;
constexpr int LabelCharacters = 16;
/// More than two lines can show; a longer name is not laid out.
constexpr qsizetype LaidOutCharacters = 64;
const QChar Ellipsis(0x2026);
constexpr int Padding = 16;
constexpr int MinimumCellWidth = 116;

bool moves(const QKeyEvent& event)
{
    constexpr std::array Keys{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_PageUp,
        Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    return std::find(Keys.begin(), Keys.end(), event.key()) != Keys.end();
}

/// `text` broken into as many lines as a label has, none wider than `width`; the rest is elided.
QString wrapped(const QString& text, const QFont& font, int width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    QStringList lines;
    qsizetype start = 0;
    layout.beginLayout();
    while (lines.size() + 1 < LabelLines) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) {
            break;
        }
        line.setLineWidth(width);
        lines.append(inOwnDirection(text.mid(start, line.textLength()).trimmed()));
        start += line.textLength();
    }
    layout.endLayout();
    if (start < text.size()) {
        lines.append(inOwnDirection(QFontMetrics(font).elidedText(text.mid(start), Qt::ElideRight, width)));
    }
    return lines.join(QChar::LineSeparator);
}

/// Gives all items the same size, whatever their pictures and names.
class CellDelegate final : public QStyledItemDelegate
{
public:
    explicit CellDelegate(const CategoryList& list) : m_list(list) { }

    QSize sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const override
    {
        return m_list.gridSize();
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem below = option;
        below.rect.setTop(below.rect.top() + Padding / 2);
        QStyledItemDelegate::paint(painter, below, index);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->decorationSize = m_list.iconSize();
        option->displayAlignment = Qt::AlignHCenter | Qt::AlignTop;
        option->features.setFlag(QStyleOptionViewItem::WrapText, false);
        option->text = wrapped(shownPart(option->text, LaidOutCharacters), option->font, m_list.labelWidth());
    }

private:
    const CategoryList& m_list;
};

} // namespace

CategoryList::CategoryList(QWidget* parent) : QListWidget(parent)
{
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setDragEnabled(false);
    setAcceptDrops(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionRectVisible(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformItemSizes(true);
    setWordWrap(true);
    setTextElideMode(Qt::ElideRight);
    setItemDelegate(new CellDelegate(*this));
    itemDelegate()->setParent(this);
    setCellSize();
}

void CategoryList::selectOnly(int row)
{
    setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    scrollToItem(item(row));
}

QListWidgetItem* CategoryList::selectedItem() const
{
    return selectedItems().value(0);
}

void CategoryList::focusInEvent(QFocusEvent* event)
{
    // Workaround, as in GridView::focusInEvent(): QAbstractItemView of Qt 6.4.2 would make the first item
    // current (tst_qt_workarounds, aListThatGetsTheFocusMakesItsFirstItemCurrent).
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractScrollArea::focusInEvent(event);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    viewport()->update();
}

void CategoryList::keyPressEvent(QKeyEvent* event)
{
    // Delete on the keypad counts as the same key.
    if (event->key() == Qt::Key_Delete && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        if (!event->isAutoRepeat()) {
            emit deletePressed();
        }
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat()) {
            emit enterPressed();
        }
    } else if (moves(*event) && selectedItem() == nullptr && count() > 0) {
        // QListWidget would move on from the current item, and a single item could not be reached.
        selectOnly(event->key() == Qt::Key_End ? count() - 1 : std::max(0, currentRow()));
    } else {
        QListWidget::keyPressEvent(event);
    }
}

void CategoryList::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    if (count() == 0) {
        paintEmptyText(*this, m_emptyText);
    }
}

void CategoryList::setEmptyText(const QString& text)
{
    m_emptyText = text;
    setAccessibleDescription(text);
    viewport()->update();
}

bool CategoryList::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QListWidget::viewportEvent(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const QListWidgetItem* under = itemAt(help->pos());
    const QString tip = under == nullptr ? QString() : tipOf(*under);
    if (tip.isEmpty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(help->globalPos(), plainToolTip(tip), viewport(), visualItemRect(under));
    }
    return true;
}

QString CategoryList::tipOf(const QListWidgetItem& item) const
{
    const QString name = item.text();
    const QString shown = wrapped(shownPart(name, LaidOutCharacters), font(), labelWidth());
    if (!shown.contains(Ellipsis)) {
        return item.toolTip();
    }
    return item.toolTip().isEmpty() ? name : name + QLatin1String("\n\n") + item.toolTip();
}

void CategoryList::changeEvent(QEvent* event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        setCellSize();
    }
}

void CategoryList::setCellSize()
{
    const QFontMetrics metrics = fontMetrics();
    const int edge = withLetters(IconEdge, font());
    setIconSize(QSize(edge, edge));
    setGridSize(QSize(std::max(MinimumCellWidth, LabelCharacters * metrics.averageCharWidth()),
        edge + LabelLines * metrics.lineSpacing() + Padding));
}

int CategoryList::labelWidth() const
{
    return gridSize().width() - Padding;
}
