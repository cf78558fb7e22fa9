#include "app/FindField.h"

#include "app/PageKeys.h"
#include "app/TasksPage.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

namespace
{

constexpr int FewestLetters = 8;
constexpr int MostLetters = 24;
constexpr int TasksIndex = 0;

/// Other input methods compose by letters that are not those of the word.
bool isHangul(const QString& text)
{
    return std::all_of(
        text.begin(), text.end(), [](QChar letter) { return letter.script() == QChar::Script_Hangul; });
}

} // namespace

FindField::FindField(const QTabWidget& tabs) : m_tabs(tabs)
{
    setObjectName(QStringLiteral("txtFind"));
    setAccessibleName(tr("Find tasks"));
    setPlaceholderText(tr("Find tasks"));
    connect(this, &QLineEdit::textChanged, this, &FindField::tellText);
}

QSize FindField::sizeFor(int letters) const
{
    // No higher than the tabs beside it. QTabWidget leaves out their overlap with the page, also where a
    // style sheet has none.
    const int tabs =
        m_tabs.tabBar()->sizeHint().height() - style()->pixelMetric(QStyle::PM_TabBarBaseOverlap);
    const int height = qMin(QLineEdit::sizeHint().height(), tabs);
    return {fontMetrics().averageCharWidth() * letters, height};
}

QSize FindField::sizeHint() const
{
    const int room = m_tabs.width() - m_tabs.tabBar()->sizeHint().width() - fontMetrics().averageCharWidth();
    const QSize most = sizeFor(MostLetters);
    return {std::clamp(room, sizeFor(FewestLetters).width(), most.width()), most.height()};
}

QSize FindField::minimumSizeHint() const
{
    return sizeFor(FewestLetters);
}

void FindField::focusInEvent(QFocusEvent* event)
{
    // Not before: its picture goes to Qt's cache of pictures, which a hidden start leaves alone.
    setClearButtonEnabled(true);
    QLineEdit::focusInEvent(event);
    emit entered();
}

void FindField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    emit exited();
}

void FindField::inputMethodEvent(QInputMethodEvent* event)
{
    QLineEdit::inputMethodEvent(event);
    const QString composed = isHangul(event->preeditString()) ? event->preeditString() : QString();
    if (composed != m_composed) {
        m_composed = composed;
        tellText();
    }
}

void FindField::tellText()
{
    QString whole = text();
    whole.insert(cursorPosition(), m_composed);
    emit sought(whole);
    if (!hasFocus()) {
        emit exited();
    }
}

void FindField::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        clear();
        emit left();
        break;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit listWanted();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void addFindField(QTabWidget& tabs, TasksPage& page)
{
    auto* field = new FindField(tabs);
    const QKeySequence keys(Qt::CTRL | Qt::Key_F);
    field->setToolTip(keys.toString(QKeySequence::NativeText));
    tabs.setCornerWidget(field, Qt::TopRightCorner);
    QWidget::setTabOrder(tabs.tabBar(), field);
    field->show();

    const auto turn = [&tabs, field] {
        if (tabs.currentIndex() != TasksIndex) {
            // The page that is turned to takes the focus.
            const bool hadFocus = field->hasFocus();
            tabs.setCurrentIndex(TasksIndex);
            if (hadFocus) {
                field->setFocus(Qt::OtherFocusReason);
            }
        }
    };
    QObject::connect(new QShortcut(keys, tabs.window()), &QShortcut::activated, field, [field, turn] {
        field->setFocus(Qt::ShortcutFocusReason);
        turn();
        field->selectAll();
    });
    QObject::connect(field, &FindField::sought, &page, [&page, turn](const QString& text) {
        turn();
        page.find(text);
    });
    QObject::connect(field, &FindField::entered, &page, &TasksPage::prepareFind);
    QObject::connect(field, &FindField::exited, &page, &TasksPage::restSearchLater);
    QObject::connect(field, &FindField::left, &page, [&tabs, &page] {
        // Clearing a text has turned to the tasks; without one the page in front stays.
        if (tabs.currentIndex() == TasksIndex) {
            page.focusList();
        } else {
            focusFirstControl(*tabs.currentWidget());
        }
    });
    QObject::connect(field, &FindField::listWanted, &page, [&page, turn] {
        turn();
        page.enterList();
    });
    QObject::connect(&page, &TasksPage::findEnded, field, &QLineEdit::clear);
}
