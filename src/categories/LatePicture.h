#pragma once

#include <QIcon>
#include <memory>

/// A picture that may still be on its way: its icon, and every copy of that, shows the stand-in until the
/// picture is there. Whoever shows the icon is to be painted anew then.
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
