#pragma once

#include <QIcon>
#include <QList>

/// One ordered list of pictures. Grids count from 0 (`icon`), list views and "picture n" count from 1
/// (`picture`). Pictures are only ever appended.
class ImageList
{
public:
    int count() const { return static_cast<int>(m_icons.size()); }
    /// Appends a picture and returns its number, counted from 1.
    int append(const QIcon& icon)
    {
        m_icons.append(icon);
        return count();
    }
    /// The picture at `index`, counted from 0; a null icon outside of the list.
    QIcon icon(int index) const { return m_icons.value(index); }
    /// The picture `number`, counted from 1; a null icon outside of the list.
    QIcon picture(int number) const { return m_icons.value(number - 1); }

private:
    QList<QIcon> m_icons;
};
