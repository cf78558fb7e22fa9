#pragma once

#include <QLayout>
#include <memory>
#include <vector>

class QBoxLayout;

/// Groups of controls in rows: those that have no room beside the others go on in the next row, so that a
/// narrow window loses none of them.
class FlowLayout final : public QLayout
{
    Q_OBJECT

public:
    FlowLayout();
    ~FlowLayout() override;

    /// Adds a group, which stays together; the layout takes ownership.
    void addGroup(QBoxLayout* group);
    /// The groups that follow stand at the end of the row where all have room in one.
    void addStretch() { m_stretchBefore = m_items.size(); }

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;
    Qt::Orientations expandingDirections() const override { return {}; }

private:
    /// Places the groups unless `place` is false. The height that they take.
    int arrange(const QRect& rect, bool place) const;
    void placeRow(const QRect& row, std::size_t first, std::size_t end) const;
    /// The width of the groups from that one on, side by side.
    int widthFrom(std::size_t first) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
    std::size_t m_stretchBefore = 0;
};
