#include "tests/app/Fit.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>
#include <vector>

namespace
{

/// A control as the user sees it: never part of another one.
bool isControl(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return !label->text().isEmpty() || !label->pixmap().isNull();
    }
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
        return qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) == nullptr
            && qobject_cast<const QComboBox*>(widget.parentWidget()) == nullptr;
    }
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr
        || qobject_cast<const QComboBox*>(&widget) != nullptr
        || qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr;
}

QString nameOf(const QWidget& widget)
{
    QString name = QLatin1String(widget.metaObject()->className()) + u' ' + widget.objectName();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        name += u' ' + button->text();
    } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        name += u' ' + label->text().left(40);
    }
    return name;
}

QString sizeText(QSize size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

/// What the control needs to show its text whole.
QSize needOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label != nullptr && label->wordWrap()) {
        return {0, label->heightForWidth(label->width())};
    }
    if (const auto* picker = qobject_cast<const QAbstractSpinBox*>(&widget)) {
        const auto* edit = picker->findChild<QLineEdit*>();
        const QMargins text = edit->textMargins();
        const int written = edit->fontMetrics().horizontalAdvance(edit->text()) + text.left() + text.right();
        return picker->minimumSizeHint().expandedTo(QSize(picker->width() - edit->width() + written, 0));
    }
    if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) {
        return widget.sizeHint();
    }
    return widget.minimumSizeHint();
}

class Walk
{
public:
    explicit Walk(QWidget& window) : m_window(window)
    {
        lookAtWindow();
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            if (widget->isVisibleTo(&window) && !widget->isWindow()) {
                lookAt(*widget);
            }
        }
        lookForOverlaps();
    }

    QStringList faults;

private:
    void lookAtWindow()
    {
        const QRect available = m_window.screen()->availableGeometry();
        if (!available.contains(m_window.frameGeometry())) {
            faults.append(QStringLiteral("the window, %1 at %2 %3, reaches beyond its screen of %4")
                              .arg(sizeText(m_window.size()))
                              .arg(m_window.x())
                              .arg(m_window.y())
                              .arg(sizeText(available.size())));
        }
    }
    void lookAt(const QWidget& widget)
    {
        if (isControl(widget)) {
            lookAtControl(widget);
        } else if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
            lookAtTitle(*box);
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            lookAtTabs(*tabs);
        } else if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) {
            lookAtHeader(*header);
        } else if (const auto* table = qobject_cast<const QTableView*>(&widget)) {
            lookAtRows(*table);
        }
    }
    void lookAtControl(const QWidget& control)
    {
        m_controls.push_back(&control);
        const QSize need = needOf(control);
        if (control.width() < need.width() || control.height() < need.height()) {
            faults.append(QStringLiteral("%1 is %2 and needs %3")
                              .arg(nameOf(control), sizeText(control.size()), sizeText(need)));
        }
        const QWidget* ground = control.parentWidget();
        for (const QWidget* child = &control; child != &m_window;
             child = ground, ground = child->parentWidget()) {
            if (qobject_cast<const QAbstractScrollArea*>(ground->parentWidget()) != nullptr) {
                break;
            }
            // From right to left a splitter puts its panes a pixel beside their place.
            if (!ground->rect().adjusted(-1, 0, 1, 0).contains(child->geometry())) {
                faults.append(QStringLiteral("%1 is cut off by %2: %3 at %4 %5 in %6")
                                  .arg(nameOf(control), nameOf(*ground), sizeText(child->size()))
                                  .arg(child->x())
                                  .arg(child->y())
                                  .arg(sizeText(ground->size())));
            }
        }
    }
    void lookAtTitle(const QGroupBox& box)
    {
        if (!box.title().isEmpty() && box.width() < box.minimumSizeHint().width()) {
            faults.append(QStringLiteral("the frame \"%1\" is %2 wide and needs %3")
                              .arg(box.title())
                              .arg(box.width())
                              .arg(box.minimumSizeHint().width()));
        }
    }
    void lookAtTabs(const QTabBar& tabs)
    {
        int width = 0;
        for (int i = 0; i < tabs.count(); ++i) {
            width += tabs.tabRect(i).width();
        }
        if (width > tabs.width()) {
            faults.append(QStringLiteral("the tabs need %1 and have %2").arg(width).arg(tabs.width()));
        }
    }
    void lookAtHeader(const QHeaderView& header)
    {
        for (int i = 0; header.model() != nullptr && i < header.count(); ++i) {
            const QString text = header.model()->headerData(i, header.orientation()).toString();
            const QString tip =
                header.model()->headerData(i, header.orientation(), Qt::ToolTipRole).toString();
            const bool fits = header.fontMetrics().horizontalAdvance(text) < header.sectionSize(i);
            if (!header.isSectionHidden(i) && !fits && !tip.contains(text)) {
                faults.append(QStringLiteral("the header \"%1\" is cut and has no tool tip").arg(text));
            }
        }
    }
    void lookAtRows(const QTableView& table)
    {
        const int row = table.verticalHeader()->defaultSectionSize();
        if (row < table.fontMetrics().height() || row < table.iconSize().height()
            || table.viewport()->height() < row) {
            faults.append(QStringLiteral("%1: rows of %2 in %3")
                              .arg(nameOf(table))
                              .arg(row)
                              .arg(table.viewport()->height()));
        }
    }
    void lookForOverlaps()
    {
        for (std::size_t i = 0; i < m_controls.size(); ++i) {
            for (std::size_t j = i + 1; j < m_controls.size(); ++j) {
                if (seenPlace(*m_controls[i]).intersects(seenPlace(*m_controls[j]))) {
                    faults.append(QStringLiteral("%1 and %2 overlap")
                                      .arg(nameOf(*m_controls[i]), nameOf(*m_controls[j])));
                }
            }
        }
    }
    QRect seenPlace(const QWidget& control) const
    {
        QRect place(control.mapTo(&m_window, QPoint()), control.size());
        for (const QWidget* ground = control.parentWidget(); ground != &m_window;
             ground = ground->parentWidget()) {
            place &= QRect(ground->mapTo(&m_window, QPoint()), ground->size());
        }
        return place;
    }

    QWidget& m_window;
    std::vector<const QWidget*> m_controls;
};

} // namespace

QStringList misfits(QWidget& window)
{
    return Walk(window).faults;
}
