#include "app/PageKeys.h"

#include <QShortcut>
#include <QTabWidget>

void addPageKeys(QTabWidget& tabs)
{
    const auto add = [&tabs](const QKeySequence& keys, auto&& page) {
        // Shortcuts of the window: a combo box would take some of these keys for itself.
        QObject::connect(new QShortcut(keys, tabs.window()), &QShortcut::activated, &tabs,
            [&tabs, page] { tabs.setCurrentIndex(page()); });
    };
    for (int page = 0; page < tabs.count(); ++page) {
        const QKeySequence keys(Qt::AltModifier | static_cast<Qt::Key>(Qt::Key_1 + page));
        add(keys, [page] { return page; });
        tabs.setTabToolTip(page, keys.toString(QKeySequence::NativeText));
    }
    const auto next = [&tabs] {
        return (tabs.currentIndex() + 1) % tabs.count();
    };
    const auto previous = [&tabs] {
        return (tabs.currentIndex() + tabs.count() - 1) % tabs.count();
    };
    add(Qt::CTRL | Qt::Key_Tab, next);
    add(Qt::CTRL | Qt::Key_PageDown, next);
    add(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, previous);
    add(Qt::CTRL | Qt::Key_PageUp, previous);
}

void focusFirstControl(QWidget& page)
{
    for (QWidget* next = page.nextInFocusChain(); next != &page; next = next->nextInFocusChain()) {
        if (page.isAncestorOf(next) && next->isVisibleTo(&page) && next->isEnabled()
            && (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && next->focusProxy() == nullptr) {
            next->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}
