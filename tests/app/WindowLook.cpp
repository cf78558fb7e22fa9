#include "tests/app/WindowLook.h"

#include <QWidget>

namespace
{

/// How many of its kind stand before it.
int placeAmongTwins(const QObject& control)
{
    int place = 0;
    for (const QObject* child : control.parent()->children()) {
        if (child == &control) {
            break;
        }
        place += child->metaObject() == control.metaObject() && child->objectName() == control.objectName()
            ? 1
            : 0;
    }
    return place;
}

QString wayTo(const QWidget& control, const QWidget& window)
{
    if (&control == &window) {
        return {};
    }
    return wayTo(*control.parentWidget(), window)
        + QStringLiteral("/%1 %2 %3")
              .arg(QLatin1String(control.metaObject()->className()), control.objectName())
              .arg(placeAmongTwins(control));
}

QString differentPixels(const QImage& one, const QImage& other)
{
    if (one.size() != other.size()) {
        return QStringLiteral("%1 x %2 pixels, not %3 x %4")
            .arg(other.width())
            .arg(other.height())
            .arg(one.width())
            .arg(one.height());
    }
    QRect place;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) {
                place |= QRect(x, y, 1, 1);
            }
        }
    }
    return QStringLiteral("other pixels from %1, %2 to %3, %4")
        .arg(place.left())
        .arg(place.top())
        .arg(place.right())
        .arg(place.bottom());
}

QStringList differentColours(const QPalette& one, const QPalette& other)
{
    QStringList found;
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const auto of = [&](const QPalette& palette) {
                return palette.brush(
                    static_cast<QPalette::ColorGroup>(group), static_cast<QPalette::ColorRole>(role));
            };
            if (of(one) != of(other)) {
                found.append(QStringLiteral("%1.%2 is %3, not %4")
                                 .arg(group)
                                 .arg(role)
                                 .arg(of(other).color().name(), of(one).color().name()));
            }
        }
    }
    return found;
}

} // namespace

WindowLook::WindowLook(QWidget& window) : m_picture(window.grab().toImage())
{
    m_controls.insert({}, {window.palette(), window.font()});
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        // A closed list takes its colours when it opens.
        if (!control->isWindow() || control->isVisible()) {
            m_controls.insert(wayTo(*control, window), {control->palette(), control->font()});
        }
    }
}

QStringList WindowLook::differences(const WindowLook& other) const
{
    QStringList found;
    if (m_picture != other.m_picture) {
        found.append(differentPixels(m_picture, other.m_picture));
    }
    for (auto control = m_controls.cbegin(); control != m_controls.cend(); ++control) {
        const auto same = other.m_controls.constFind(control.key());
        if (same == other.m_controls.cend()) {
            continue;
        }
        const QStringList colours = differentColours(control->palette, same->palette);
        if (!colours.isEmpty()) {
            found.append(control.key() + u' ' + colours.join(QLatin1String(", ")));
        }
        if (control->font != same->font) {
            found.append(QStringLiteral("%1 is written in %2, not %3")
                             .arg(control.key(), same->font.toString(), control->font.toString()));
        }
    }
    return found;
}
