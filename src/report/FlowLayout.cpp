#include "report/FlowLayout.h"

#include <QBoxLayout>
#include <QStyle>
#include <QWidget>
#include <algorithm>

FlowLayout::FlowLayout() = default;
FlowLayout::~FlowLayout() = default;

void FlowLayout::addGroup(QBoxLayout* group)
{
    addChildLayout(group);
    addItem(group);
}

void FlowLayout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
    invalidate();
}

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count()) {
        return nullptr;
    }
    QLayoutItem* taken = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    invalidate();
    return taken;
}

QSize FlowLayout::sizeHint() const
{
    QSize size(0, 0);
    for (const auto& item : m_items) {
        const QSize hint = item->sizeHint();
        size = QSize(size.width() + hint.width() + spacing(), std::max(size.height(), hint.height()));
    }
    return {std::max(0, size.width() - spacing()), size.height()};
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const auto& item : m_items) {
        size = size.expandedTo(item->sizeHint());
    }
    return size;
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), false);
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

int FlowLayout::arrange(const QRect& rect, bool place) const
{
    int top = rect.top();
    std::size_t first = 0;
    while (first < m_items.size()) {
        int width = 0;
        int height = 0;
        std::size_t end = first;
        for (; end < m_items.size(); ++end) {
            const QSize hint = m_items[end]->sizeHint();
            const int wider = width + (end == first ? 0 : spacing()) + hint.width();
            if (end > first && wider > rect.width()) {
                break;
            }
            width = wider;
            height = std::max(height, hint.height());
        }
        if (place) {
            placeRow(QRect(rect.left(), top, rect.width(), height), first, end);
        }
        top += height + spacing();
        first = end;
    }
    return std::max(0, top - spacing() - rect.top());
}

void FlowLayout::placeRow(const QRect& row, std::size_t first, std::size_t end) const
{
    const bool isOnlyRow = first == 0 && end == m_items.size();
    const Qt::LayoutDirection direction =
        parentWidget() == nullptr ? Qt::LeftToRight : parentWidget()->layoutDirection();
    int left = row.left();
    for (std::size_t i = first; i < end; ++i) {
        if (isOnlyRow && i > 0 && i == m_stretchBefore) {
            left = std::max(left, row.left() + row.width() - widthFrom(i));
        }
        const int width = std::min(m_items[i]->sizeHint().width(), row.width());
        const QRect place(left, row.top(), width, row.height());
        m_items[i]->setGeometry(QStyle::visualRect(direction, row, place));
        left += width + spacing();
    }
}

int FlowLayout::widthFrom(std::size_t first) const
{
    int width = -spacing();
    for (std::size_t i = first; i < m_items.size(); ++i) {
        width += m_items[i]->sizeHint().width() + spacing();
    }
    return width;
}
