#pragma once

#include <QIcon>
#include <memory>

/// A picture that may not have been read yet: its icon and all copies of that show a stand-in until it has.
/// Views that show the icon need a repaint then.
class LatePicture
{
public:
    LatePicture();

    QIcon icon() const { return m_icon; }
    void arrive(const QIcon& picture) { *m_shown = picture; }

private:
    std::shared_ptr<QIcon> m_shown;
    QIcon m_icon;
};
