#pragma once

#include <QAccessibleWidget>
#include <vector>

class ComboBox;
class QAbstractItemView;

/// The list of a combo box for assistive technology, whether it is open or not. Each entry has an action
/// that chooses it; none of Qt's own does (tst_qt_workarounds, noActionOfAComboEntryChoosesIt). Owns the
/// entries that it hands out.
class AccessibleEntries final : public QAccessibleWidget
{
public:
    AccessibleEntries(QAbstractItemView& list, ComboBox& combo);
    AccessibleEntries(const AccessibleEntries&) = delete;
    AccessibleEntries& operator=(const AccessibleEntries&) = delete;
    ~AccessibleEntries() override;

    /// The box, whose first child this is: Qt 6.4.2 says its frame, a window of its own.
    QAccessibleInterface* parent() const override;
    int childCount() const override;
    /// The entry of a row; nullptr when there is none.
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    QAbstractItemView& m_list;
    ComboBox& m_combo;
    mutable std::vector<QAccessible::Id> m_entries;
};

/// Lets assistive technology read the chosen entry of a closed box that has the focus: Qt 6.4.2 offers no
/// selection on the accessibility bus of Linux, and screen readers say the label alone. Windows is told the
/// value of the box.
void tellChosenEntry(ComboBox& combo);
