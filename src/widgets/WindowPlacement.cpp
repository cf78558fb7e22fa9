#include "widgets/WindowPlacement.h"

#include "widgets/DesktopLimits.h"
#include "widgets/WindowManager.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QResizeEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

namespace
{

/// Assumed while the window system has not told the size of the frame.
constexpr QMargins LikelyFrame(6, 32, 6, 8);
/// The width of title bar that is enough to drag a window by.
constexpr int Handle = 80;
/// Property of a window that has been shown: its geometry when it was last seen.
constexpr const char* LastPlace = "ambertask-place";

QRect movedInside(QRect frame, const QRect& area)
{
    frame.moveRight(std::min(frame.right(), area.right()));
    frame.moveLeft(std::max(frame.left(), area.left()));
    frame.moveBottom(std::min(frame.bottom(), area.bottom()));
    frame.moveTop(std::max(frame.top(), area.top()));
    return frame;
}

int distance(const QRect& frame, const QRect& area)
{
    const QRect moved = movedInside(frame, area);
    return (moved.center() - frame.center()).manhattanLength();
}

QRect wholeWithinNearest(const QRect& frame, const QList<QRect>& areas)
{
    const QRect nearest =
        *std::min_element(areas.cbegin(), areas.cend(), [&frame](const QRect& one, const QRect& other) {
            return distance(frame, one) < distance(frame, other);
        });
    return movedInside(QRect(frame.topLeft(), frame.size().boundedTo(nearest.size())), nearest);
}

QList<QRect> areasOfScreens()
{
    QList<QRect> areas;
    for (const QScreen* screen : QApplication::screens()) {
        areas.append(screen->availableGeometry());
    }
    return areas;
}

QMargins frameOf(const QWidget& window)
{
    const QRect inner = window.geometry();
    const QRect outer = window.frameGeometry();
    const QMargins known(inner.left() - outer.left(), inner.top() - outer.top(),
        outer.right() - inner.right(), outer.bottom() - inner.bottom());
    return known.isNull() ? LikelyFrame : known;
}

/// Notes the place of a window that is hidden, as a window manager may move it afterwards. Gives the
/// keyboard of a window that is closed to its owner. Keeps a window on its screen when its content makes it
/// grow.
class PlaceKeeper final : public QObject
{
public:
    explicit PlaceKeeper(QWidget* window) : QObject(window), m_window(*window)
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Close) {
            m_isClosed = true;
        } else if (event->type() == QEvent::Show) {
            m_isClosed = false;
        } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
            m_window.setProperty(LastPlace, m_window.geometry());
            giveKeyboardToOwner();
        } else if (event->type() == QEvent::Resize && !event->spontaneous() && m_window.isVisible()) {
            keepOnScreen(static_cast<QResizeEvent*>(event)->oldSize());
        }
        return QObject::eventFilter(watched, event);
    }

private:
    // Otherwise openbox, icewm and xfwm4 give the keyboard to any window in front. A form that hides itself
    // after an action says itself which window gets it.
    void giveKeyboardToOwner() const
    {
        const QWindow* native = m_window.windowHandle();
        QWindow* owner = native->transientParent();
        if (m_isClosed && QApplication::focusWindow() == native && owner != nullptr && owner->isVisible()
            && !owner->windowStates().testFlag(Qt::WindowMinimized)) {
            giveKeyboard(*owner);
        }
    }

    void keepOnScreen(QSize before)
    {
        const QRect area = m_window.screen()->availableGeometry();
        const QMargins frame = frameOf(m_window);
        const QRect grown = m_window.geometry().marginsAdded(frame);
        const bool wasInside = area.contains(QRect(grown.topLeft(), before.grownBy(frame)));
        // A window that was partly off the screen stays where the user put it.
        if (wasInside && !area.contains(grown)) {
            m_window.setGeometry(movedInside(grown, area).marginsRemoved(frame));
        }
    }

    QWidget& m_window;
    bool m_isClosed = false;
};

/// The size that the window was given, or the one that it asks for.
QSize wantedSize(const QWidget& window)
{
    if (window.layout() != nullptr) {
        window.layout()->activate();
    }
    const QSize asked = window.testAttribute(Qt::WA_Resized) ? window.size() : window.sizeHint();
    return asked.expandedTo(window.minimumSizeHint())
        .expandedTo(window.minimumSize())
        .boundedTo(window.maximumSize());
}

// Workaround: QWidget::setWindowFlag() of Qt 6.4.2 hides a visible window and makes it anew; the flag of
// the native window can be changed in place (tst_qt_workarounds, aFlagHidesAVisibleWindow).
void setTopmost(QWidget* window, bool on)
{
    Qt::WindowFlags flags = window->windowFlags();
    if (flags.testFlag(Qt::WindowStaysOnTopHint) == on) {
        return;
    }
    flags.setFlag(Qt::WindowStaysOnTopHint, on);
    window->overrideWindowFlags(flags);
    if (QWindow* native = window->windowHandle()) {
        setStaysOnTop(*native, on);
    }
}

QWindow* nativeWindow(QWidget* widget)
{
    widget->window()->winId();
    return widget->window()->windowHandle();
}

/// The visible forms over `window`; a box lives only until it is hidden and is none.
QWidgetList formsOwnedBy(const QWidget& window)
{
    QWidgetList forms;
    for (QWidget* other : QApplication::topLevelWidgets()) {
        const QWindow* native = other->windowHandle();
        if (other->isVisible() && native != nullptr && native->transientParent() == window.windowHandle()
            && qobject_cast<QDialog*>(other) == nullptr) {
            forms.append(other);
        }
    }
    return forms;
}

} // namespace

QRect firstPlace(QSize size, const QRect& around, const QRect& available)
{
    QRect frame(QPoint(), size.boundedTo(available.size()));
    frame.moveCenter(around.center());
    return movedInside(frame, available);
}

QRect nextPlace(const QRect& frame, int titleHeight, const QList<QRect>& areas)
{
    const QRect title(frame.topLeft(), QSize(frame.width(), std::max(1, titleHeight)));
    const int needed = std::min(Handle, frame.width());
    for (const QRect& area : areas) {
        const QRect seen = title & area;
        if (seen.height() == title.height() && seen.width() >= needed) {
            return frame;
        }
    }
    return wholeWithinNearest(frame, areas);
}

void putBack(QWidget* window, const QRect& geometry)
{
    const QMargins frame = frameOf(*window);
    const QSize size = geometry.size().expandedTo(window->minimumSizeHint());
    const QRect before = QRect(geometry.topLeft(), size).marginsAdded(frame);
    const QRect place = wholeWithinNearest(before, areasOfScreens()).marginsRemoved(frame);
    window->setProperty(LastPlace, place);
    new PlaceKeeper(window);
    window->setGeometry(place);
}

QSize roomFor(const QWidget& window)
{
    // The same before and after the size of the frame is known, unless the frame is larger than assumed:
    // the window must not grow in between.
    return window.screen()->availableGeometry().marginsRemoved(frameOf(window) | LikelyFrame).size();
}

void putInPlace(QWidget* window, const QWidget* owner)
{
    if (window->isMaximized() || window->isFullScreen()) {
        return;
    }
    const QMargins frame = frameOf(*window);
    QRect place;
    const QRect last = window->property(LastPlace).toRect();
    if (last.isValid()) {
        const QRect before = (window->isVisible() ? window->geometry() : last).marginsAdded(frame);
        place = nextPlace(before, frame.top(), areasOfScreens());
        // A window that can be reached stays where the user put it.
        if (window->isVisible() && place == before) {
            return;
        }
    } else {
        const bool overOwner = owner != nullptr && owner->isVisible() && !owner->isMinimized();
        const QRect available = (overOwner ? owner : window)->screen()->availableGeometry();
        place = firstPlace(
            wantedSize(*window).grownBy(frame), overOwner ? owner->frameGeometry() : available, available);
        window->setProperty(LastPlace, place.marginsRemoved(frame));
        new PlaceKeeper(window);
    }
    window->setGeometry(place.marginsRemoved(frame));
}

void makeTopmost(QWidget* window)
{
    setTopmost(window, true);
}

void leaveTopmost(QWidget* window)
{
    if (!isTopmost(window)) {
        return;
    }
    setTopmost(window, false);
    if (window->isVisible()) {
        window->lower();
        window->raise();
    }
}

bool isTopmost(const QWidget* window)
{
    return window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
}

void bringToFront(QWidget* window)
{
    if (window->isVisible()) {
        window->raise();
    }
}

void activate(QWidget* window)
{
    if (window->isVisible() && !window->isMinimized()) {
        giveKeyboard(*nativeWindow(window));
    }
}

void setOwner(QWidget* window, QWidget* owner)
{
    nativeWindow(window)->setTransientParent(nativeWindow(owner));
}

void followMinimizing(QWidget* window)
{
    // Only where painting alone shows it: elsewhere each painting would be for nothing.
    if (desktopPlacesWindows(QApplication::platformName())) {
        QObject::connect(qApp, &QApplication::applicationStateChanged, window, qOverload<>(&QWidget::update));
    }
}

bool isBeforeTheUser(const QWidget* window)
{
    if (!window->isVisible() || window->isMinimized()) {
        return false;
    }
    // What such a desktop has minimized it does not ask to be painted any more.
    return !desktopPlacesWindows(QApplication::platformName()) || window->windowHandle()->isExposed();
}

void showOwned(QWidget* window, QWidget* owner)
{
    if (owner != nullptr) {
        setOwner(window, owner);
    }
    putInPlace(window, owner);
    // Such a desktop lets no program restore a window; shown anew, it is one that was never minimized.
    QWidgetList minimizedWithIt;
    if (desktopPlacesWindows(QApplication::platformName()) && window->isVisible()
        && !isBeforeTheUser(window)) {
        minimizedWithIt = formsOwnedBy(*window);
        for (QWidget* form : minimizedWithIt) {
            form->hide();
        }
        window->hide();
    }
    // showNormal() would also end the maximized state.
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
    for (QWidget* form : minimizedWithIt) {
        showOwned(form, window);
    }
}
