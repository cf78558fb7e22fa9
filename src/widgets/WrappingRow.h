#pragma once

#include <QLayout>
#include <memory>
#include <vector>

/// A row of controls that continues in a further line where it is too narrow. Controls added behind the gap
/// are aligned to the far end of their line.
class WrappingRow final : public QLayout
{
    Q_OBJECT

public:
    using QLayout::QLayout;
    ~WrappingRow() override;

    /// Adds a control with its label; they stay together on a line.
    void addLabelled(QWidget* label, QWidget* control);
    void addGap() { m_gap = m_items.size(); }

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

private:
    struct Line {
        std::size_t first = 0;
        std::size_t end = 0;
        int width = 0;
        int height = 0;
    };
    std::vector<Line> linesFor(int width) const;
    int space() const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
    /// The first item behind the gap.
    std::size_t m_gap = 0;
};
