#include "widgets/WrappingRow.h"

#include <QBoxLayout>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <numeric>

WrappingRow::~WrappingRow()
{
    // A nested layout removes itself from its parent when it is destroyed, and must not find itself here.
    while (!m_items.empty()) {
        const std::unique_ptr<QLayoutItem> last = std::move(m_items.back());
        m_items.pop_back();
    }
}

void WrappingRow::addLabelled(QWidget* label, QWidget* control)
{
    auto* pair = new QHBoxLayout;
    pair->addWidget(label);
    pair->addWidget(control);
    addChildLayout(pair);
    addItem(pair);
}

void WrappingRow::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
    invalidate();
}

QLayoutItem* WrappingRow::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index)
{
    if (itemAt(index) == nullptr) {
        return nullptr;
    }
    QLayoutItem* taken = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return taken;
}

int WrappingRow::space() const
{
    return spacing() >= 0 ? spacing() : 6;
}

std::vector<WrappingRow::Line> WrappingRow::linesFor(int width) const
{
    std::vector<Line> lines;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        const QSize size = m_items[i]->sizeHint();
        if (lines.empty() || lines.back().width + space() + size.width() > width) {
            lines.push_back({i, i, -space(), 0});
        }
        Line& line = lines.back();
        line.end = i + 1;
        line.width += space() + size.width();
        line.height = std::max(line.height, size.height());
    }
    return lines;
}

int WrappingRow::heightForWidth(int width) const
{
    const std::vector<Line> lines = linesFor(width);
    return std::accumulate(lines.begin(), lines.end(), -space(),
        [this](int height, const Line& line) { return height + space() + line.height; });
}

QSize WrappingRow::minimumSize() const
{
    QSize least;
    for (const auto& item : m_items) {
        least = least.expandedTo(item->minimumSize());
    }
    return least;
}

QSize WrappingRow::sizeHint() const
{
    const int width = std::accumulate(m_items.begin(), m_items.end(), -space(),
        [this](int sum, const auto& item) { return sum + space() + item->sizeHint().width(); });
    return {width, minimumSize().height()};
}

void WrappingRow::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    int y = rect.top();
    for (const Line& line : linesFor(rect.width())) {
        int x = rect.left();
        for (std::size_t i = line.first; i < line.end; ++i) {
            if (i == m_gap) {
                x += rect.width() - line.width;
            }
            const QSize size = m_items[i]->sizeHint();
            const QRect place(x, y + (line.height - size.height()) / 2, size.width(), size.height());
            m_items[i]->setGeometry(QStyle::visualRect(direction, rect, place));
            x += size.width() + space();
        }
        y += line.height + space();
    }
}
