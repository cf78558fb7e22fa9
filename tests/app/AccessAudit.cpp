#include "tests/app/AccessAudit.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsView>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QShortcut>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

namespace
{

using Controls = QList<QWidget*>;

template <typename... Kinds> bool isOneOf(const QWidget* widget)
{
    return ((qobject_cast<const Kinds*>(widget) != nullptr) || ...);
}

/// A control whose inner parts are not controls of their own.
bool isComposite(const QWidget* widget)
{
    return isOneOf<QComboBox, QAbstractSpinBox, QAbstractItemView, QTabBar, QCalendarWidget>(widget);
}

bool isPart(const QWidget* widget, const QWidget& window)
{
    for (const QWidget* above = widget->parentWidget(); above != nullptr && above != &window;
         above = above->parentWidget()) {
        if (isComposite(above)) {
            return true;
        }
    }
    return false;
}

bool isInput(const QWidget* control)
{
    return isOneOf<QLineEdit, QPlainTextEdit, QComboBox, QAbstractSpinBox>(control);
}

bool isControl(const QWidget* widget)
{
    const bool isText = widget->metaObject() == &QLabel::staticMetaObject;
    if (isText || isOneOf<QScrollBar>(widget) || widget->focusProxy() != nullptr) {
        return false;
    }
    return isInput(widget) || isOneOf<QAbstractButton, QAbstractItemView, QTabBar, QTextEdit>(widget)
        || widget->focusPolicy() != Qt::NoFocus;
}

Controls controlsOf(QWidget& window)
{
    Controls found;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->window() == &window && widget->isVisibleTo(&window) && isControl(widget)
            && !isPart(widget, window)) {
            found.append(widget);
        }
    }
    return found;
}

QString nameOf(const QWidget* widget)
{
    return widget->objectName().isEmpty() ? QLatin1String(widget->metaObject()->className())
                                          : widget->objectName();
}

QString mnemonicOf(const QString& caption)
{
    return QKeySequence::mnemonic(caption).toString();
}

QList<QLabel*> labelsOf(QWidget& window)
{
    QList<QLabel*> shown;
    for (QLabel* label : window.findChildren<QLabel*>()) {
        if (label->isVisibleTo(&window) && label->buddy() != nullptr) {
            shown.append(label);
        }
    }
    return shown;
}

/// The name that a screen reader says. On some platforms a combo box has its value as its name, and its
/// label is read before it.
QString spokenName(QWidget* control, QWidget& window)
{
    if (isOneOf<QComboBox>(control)) {
        const QList<QLabel*> labels = labelsOf(window);
        const auto own = std::find_if(labels.begin(), labels.end(),
            [control](const QLabel* label) { return label->buddy() == control; });
        return own == labels.end() ? QString() : (*own)->text().remove(u'&');
    }
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(control);
    return seen == nullptr ? QString() : seen->text(QAccessible::Name).trimmed();
}

/// A window has mnemonics throughout or, where they could be mistaken for another window's, none at all.
bool hasMnemonics(QWidget& window)
{
    const QList<QLabel*> labels = labelsOf(window);
    const QList<QAbstractButton*> buttons = window.findChildren<QAbstractButton*>();
    const auto isMarked = [](const auto* control) {
        return !mnemonicOf(control->text()).isEmpty();
    };
    return std::any_of(labels.begin(), labels.end(), isMarked)
        || std::any_of(buttons.begin(), buttons.end(), isMarked);
}

bool hasLeadingLabel(const QWidget* control, QWidget& window)
{
    const QList<QLabel*> labels = labelsOf(window);
    const bool needsMnemonic = hasMnemonics(window);
    return std::any_of(labels.begin(), labels.end(), [control, needsMnemonic](const QLabel* label) {
        return label->buddy() == control && (!needsMnemonic || !mnemonicOf(label->text()).isEmpty());
    });
}

/// Its tool tip names a key of the window.
bool hasKeyOfItsOwn(const QWidget* control, const QWidget& window)
{
    const QList<QShortcut*> shortcuts = window.findChildren<QShortcut*>();
    return std::any_of(shortcuts.begin(), shortcuts.end(), [control](const QShortcut* shortcut) {
        return control->toolTip() == shortcut->key().toString(QKeySequence::NativeText);
    });
}

/// One of several check boxes in a frame whose title has the mnemonic of the first.
bool isInFrameWithKey(const QAbstractButton* button)
{
    const auto* frame = qobject_cast<const QGroupBox*>(button->parentWidget());
    return frame != nullptr && isOneOf<QCheckBox>(button) && !mnemonicOf(frame->title()).isEmpty();
}

/// The Tab key visits one of a group of exclusive options; the arrow keys go to the others.
bool areOptionsOfOneGroup(const QWidget* one, const QWidget* other)
{
    return isOneOf<QRadioButton>(one) && isOneOf<QRadioButton>(other)
        && one->parentWidget() == other->parentWidget();
}

bool takesTab(const QWidget* control)
{
    return (control->focusPolicy() & Qt::TabFocus) != 0;
}

void checkReach(const Controls& controls, QStringList& faults)
{
    for (const QWidget* control : controls) {
        const bool isReached = takesTab(control)
            || std::any_of(controls.begin(), controls.end(), [control](const QWidget* other) {
                   return takesTab(other) && areOptionsOfOneGroup(control, other);
               });
        if (!isReached) {
            faults.append(nameOf(control) + QLatin1String(" does not take the focus from the Tab key"));
        }
    }
}

void checkNames(const Controls& controls, QWidget& window, QStringList& faults)
{
    QMap<QString, QString> holders;
    for (QWidget* control : controls) {
        const QString name = spokenName(control, window);
        if (name.isEmpty() || name.contains(u'&')) {
            faults.append(nameOf(control) + QStringLiteral(" has the accessible name \"%1\"").arg(name));
            continue;
        }
        const QString inItsRole =
            QStringLiteral("%1/%2").arg(QLatin1String(control->metaObject()->className()), name);
        if (holders.contains(inItsRole)) {
            faults.append(QStringLiteral("%1 and %2 are both named \"%3\"")
                              .arg(holders.value(inItsRole), nameOf(control), name));
        }
        holders.insert(inItsRole, nameOf(control));
    }
}

void checkLabels(const Controls& controls, QWidget& window, QStringList& faults)
{
    for (const QWidget* control : controls) {
        if (isInput(control) && !hasLeadingLabel(control, window) && !hasKeyOfItsOwn(control, window)) {
            faults.append(nameOf(control) + QLatin1String(" has no label whose mnemonic leads to it"));
        }
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        if (button != nullptr && !button->text().isEmpty() && button->shortcut().isEmpty()
            && !hasLeadingLabel(button, window) && !isInFrameWithKey(button)) {
            faults.append(nameOf(button) + QLatin1String(" has no key"));
        }
    }
}

/// Assistive technology chooses from a list through the actions of its entries.
void checkEntries(const Controls& controls, QStringList& faults)
{
    for (QWidget* control : controls) {
        const auto* combo = qobject_cast<const QComboBox*>(control);
        if (combo == nullptr || !combo->isEnabled() || combo->count() == 0) {
            continue;
        }
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(combo->view());
        QAccessibleInterface* last = list == nullptr ? nullptr : list->child(combo->count() - 1);
        QAccessibleActionInterface* actions = last == nullptr ? nullptr : last->actionInterface();
        if (actions == nullptr
            || !actions->actionNames().contains(QAccessibleActionInterface::pressAction())) {
            faults.append(nameOf(control) + QLatin1String(" has entries that cannot be chosen"));
        }
    }
}

void checkMnemonics(const Controls& controls, QWidget& window, QStringList& faults)
{
    QMap<QString, QString> holders;
    const auto take = [&](const QString& caption) {
        const QString key = mnemonicOf(caption);
        if (key.isEmpty()) {
            return;
        }
        if (holders.contains(key)) {
            faults.append(
                QStringLiteral("%1 is given to \"%2\" and \"%3\"").arg(key, holders.value(key), caption));
        }
        holders.insert(key, caption);
    };
    for (const QWidget* control : controls) {
        if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
            take(button->text());
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(control)) {
            for (int i = 0; i < tabs->count(); ++i) {
                take(tabs->tabText(i));
            }
        }
    }
    for (const QLabel* label : labelsOf(window)) {
        take(label->text());
    }
    for (const QGroupBox* frame : window.findChildren<QGroupBox*>()) {
        if (frame->isVisibleTo(&window)) {
            take(frame->title());
        }
    }
}

/// Reading goes from the leading to the trailing edge and from top to bottom; columns are allowed.
bool goesBackwards(const QRect& from, const QRect& to)
{
    const bool sameRow = from.top() < to.bottom() && to.top() < from.bottom();
    const bool sameColumn = from.left() < to.right() && to.left() < from.right();
    return (sameRow && to.right() <= from.left()) || (sameColumn && to.bottom() <= from.top());
}

/// The reading direction between two controls: that of their common parent.
Qt::LayoutDirection directionOf(const QWidget* one, const QWidget* other)
{
    const QWidget* both = one->parentWidget();
    while (!both->isAncestorOf(other)) {
        both = both->parentWidget();
    }
    return both->layoutDirection();
}

QRect placeOf(const QWidget* control, const QWidget& window, Qt::LayoutDirection direction)
{
    QRect place(control->mapTo(&window, QPoint()), control->size());
    if (direction == Qt::RightToLeft) {
        place.moveLeft(window.width() - place.right() - 1);
    }
    return place;
}

void checkOrder(const Controls& controls, QWidget& window, QStringList& faults)
{
    Controls inTabOrder;
    for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
        if (controls.contains(next)) {
            inTabOrder.append(next);
        }
    }
    for (qsizetype i = 0; i < inTabOrder.size(); ++i) {
        for (qsizetype j = i + 1; j < inTabOrder.size(); ++j) {
            const Qt::LayoutDirection direction = directionOf(inTabOrder[i], inTabOrder[j]);
            if (goesBackwards(
                    placeOf(inTabOrder[i], window, direction), placeOf(inTabOrder[j], window, direction))) {
                faults.append(QStringLiteral("the Tab key goes backwards from %1 to %2")
                                  .arg(nameOf(inTabOrder[i]), nameOf(inTabOrder[j])));
            }
        }
    }
}

/// The control that contains the focus.
QWidget* focusedControl(const Controls& controls)
{
    for (QWidget* widget = QApplication::focusWidget(); widget != nullptr; widget = widget->parentWidget()) {
        if (controls.contains(widget)) {
            return widget;
        }
    }
    return nullptr;
}

bool isVisitedByArrows(const QWidget* control, const QSet<QWidget*>& visited)
{
    return std::any_of(visited.begin(), visited.end(),
        [control](const QWidget* other) { return areOptionsOfOneGroup(control, other); });
}

void walk(const Controls& controls, QStringList& faults)
{
    // A picker has several sections, a help topic many links.
    constexpr int MostSteps = 300;
    QSet<QWidget*> visited;
    for (int step = 0; step < MostSteps && visited.size() < controls.size(); ++step) {
        if (QWidget* control = focusedControl(controls)) {
            visited.insert(control);
        }
        QWidget* focused = QApplication::focusWidget();
        if (focused == nullptr) {
            faults.append(QStringLiteral("no control has the focus"));
            return;
        }
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    for (QWidget* control : controls) {
        if (control->isEnabled() && !visited.contains(control) && !isVisitedByArrows(control, visited)) {
            faults.append(QStringLiteral("the Tab key never comes to %1").arg(nameOf(control)));
        }
    }
}

} // namespace

QStringList accessFaults(QWidget& window, int* count)
{
    QStringList faults;
    const Controls controls = controlsOf(window);
    checkReach(controls, faults);
    checkNames(controls, window, faults);
    checkLabels(controls, window, faults);
    checkEntries(controls, faults);
    checkMnemonics(controls, window, faults);
    checkOrder(controls, window, faults);
    walk(controls, faults);
    if (count != nullptr) {
        *count = static_cast<int>(controls.size());
    }
    return faults;
}
