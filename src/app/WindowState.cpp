#include "app/WindowState.h"

#include "app/FilterFold.h"
#include "widgets/DesktopLimits.h"
#include "widgets/GridView.h"
#include "widgets/WindowPlacement.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

namespace
{

const QString Place = QStringLiteral("place");
const QString Maximized = QStringLiteral("maximized");
const QString Folded = QStringLiteral("folded");
const QString Column = QStringLiteral("column.");
const QString Yes = QStringLiteral("yes");

QString textOf(const QRect& place)
{
    return QStringLiteral("%1 %2 %3 %4").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height());
}

/// Null for a text that is no place.
QRect placeOf(const QString& text)
{
    // Larger numbers are no places on screens.
    constexpr int Most = 100'000;
    QList<int> numbers;
    for (const QString& part : text.split(u' ')) {
        bool isNumber = false;
        numbers.append(part.toInt(&isNumber));
        if (!isNumber || qAbs(numbers.last()) > Most) {
            return {};
        }
    }
    return numbers.size() == 4 && numbers[2] > 0 && numbers[3] > 0
        ? QRect(numbers[0], numbers[1], numbers[2], numbers[3])
        : QRect();
}

} // namespace

WindowState::WindowState(const QString& path, QWidget& window, GridView& grid, FilterFold& fold)
    : m_file(path), m_window(window), m_grid(grid), m_fold(fold)
{
    window.installEventFilter(this);
    connect(&grid, &GridView::columnsDragged, this, &WindowState::keep);
    connect(&fold, &FilterFold::foldChanged, this, &WindowState::keep);
}

void WindowState::restore()
{
    restorePlace();
    restoreColumns();
    if (m_file.value(Folded) == Yes) {
        m_fold.setFolded(true);
    }
}

void WindowState::restorePlace()
{
    const QRect place = placeOf(m_file.value(Place));
    if (!place.isValid()) {
        return;
    }
    // It tells no window where it is and lets none choose.
    if (desktopPlacesWindows(QGuiApplication::platformName())) {
        m_window.resize(place.size());
    } else {
        putBack(&m_window, place);
    }
    if (m_file.value(Maximized) == Yes) {
        m_window.setWindowState(m_window.windowState() | Qt::WindowMaximized);
    }
}

void WindowState::restoreColumns()
{
    QHash<QString, double> weights;
    for (const QString& name : m_file.names(Column)) {
        const double weight = m_file.value(name).toDouble();
        // Also false for what is no number.
        if (weight > 0 && weight < 1) {
            weights.insert(name.mid(Column.size()), weight);
        }
    }
    m_grid.setDraggedWeights(weights);
}

void WindowState::keep()
{
    if (m_window.isVisible()) {
        noteWindow();
    }
    noteColumns();
    m_file.set(Folded, m_fold.isFolded() ? Yes : QString());
    m_file.save();
}

void WindowState::noteWindow()
{
    const bool isLarge = m_window.isMaximized() || m_window.isFullScreen();
    const QRect place = isLarge ? m_window.normalGeometry() : m_window.geometry();
    if (place.isValid()) {
        m_file.set(Place, textOf(place));
        m_file.set(Maximized, m_window.isMaximized() ? Yes : QString());
    }
}

void WindowState::noteColumns()
{
    const QHash<QString, double> weights = m_grid.draggedWeights();
    for (auto weight = weights.cbegin(); weight != weights.cend(); ++weight) {
        m_file.set(Column + weight.key(), QString::number(weight.value(), 'g', 4));
    }
}

bool WindowState::eventFilter(QObject* watched, QEvent* event)
{
    // Spontaneous when the window manager minimizes the window.
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        noteWindow();
        keep();
    }
    return QObject::eventFilter(watched, event);
}
