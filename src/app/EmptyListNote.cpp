#include "app/EmptyListNote.h"

#include "widgets/EmptyText.h"
#include "widgets/GridView.h"
#include "widgets/NamedControls.h"
#include "widgets/PlainText.h"

#include <QEvent>
#include <QPushButton>

namespace
{

constexpr int Gap = 12;
constexpr qsizetype MostOfSought = 100;

} // namespace

EmptyList emptyList(int all, int shown, bool areFiltersNarrow)
{
    if (shown > 0) {
        return EmptyList::No;
    }
    if (all > 0) {
        return EmptyList::NothingFound;
    }
    return areFiltersNarrow ? EmptyList::NoneUnderFilters : EmptyList::NoTask;
}

QString foundText(int shown, int all)
{
    return all == 1 ? EmptyListNote::tr("%1 of 1 task").arg(shown)
                    : EmptyListNote::tr("%1 of %n tasks", nullptr, all).arg(shown);
}

EmptyListNote::EmptyListNote(GridView& grid, QWidget& page) : QObject(&page), m_grid(grid)
{
}

void EmptyListNote::makeButton()
{
    m_showAll = named(new QPushButton(tr("&Show all"), static_cast<QWidget*>(parent())), "btnShowAll");
    m_showAll->setAutoDefault(false);
    QWidget::setTabOrder(&m_grid, m_showAll);
    connect(m_showAll, &QPushButton::clicked, this, &EmptyListNote::showAllRequested);
    m_grid.viewport()->installEventFilter(this);
}

void EmptyListNote::tell(EmptyList why, const QString& sought)
{
    QString text;
    switch (why) {
    case EmptyList::No:
        break;
    case EmptyList::NoTask:
        text = tr("There are no tasks yet");
        break;
    case EmptyList::NoneUnderFilters:
        text = tr("No task matches the filters");
        break;
    case EmptyList::NothingFound:
        text = tr("Nothing found for \"%1\"").arg(shownPart(sought, MostOfSought));
        break;
    }
    m_grid.setEmptyText(text);
    const bool canShowAll = why == EmptyList::NoneUnderFilters;
    if (m_showAll == nullptr) {
        if (!canShowAll) {
            return;
        }
        makeButton();
    }
    if (!canShowAll && m_showAll->hasFocus()) {
        m_grid.setFocus(Qt::OtherFocusReason);
    }
    m_showAll->setVisible(canShowAll);
    placeButton();
}

void EmptyListNote::placeButton()
{
    if (m_showAll->isHidden()) {
        return;
    }
    const QWidget& viewport = *m_grid.viewport();
    const QRect text = emptyTextPlace(m_grid, m_grid.emptyText());
    m_showAll->resize(m_showAll->sizeHint());
    const QPoint place(viewport.rect().center().x() - m_showAll->width() / 2, text.bottom() + Gap);
    m_showAll->move(viewport.mapTo(m_showAll->parentWidget(), place));
    m_showAll->raise();
}

bool EmptyListNote::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show
        || event->type() == QEvent::FontChange) {
        placeButton();
    }
    return QObject::eventFilter(watched, event);
}
