#include "categories/LatePicture.h"

#include "categories/StandInPicture.h"

#include <QIconEngine>
#include <QPixmap>
#include <utility>

namespace
{

class LateEngine final : public QIconEngine
{
public:
    explicit LateEngine(std::shared_ptr<QIcon> shown) : m_shown(std::move(shown)) { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        m_shown->paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return m_shown->pixmap(size, 1, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return m_shown->actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return m_shown->availableSizes(mode, state);
    }
    QIconEngine* clone() const override { return new LateEngine(*this); }

private:
    std::shared_ptr<QIcon> m_shown;
};

} // namespace

LatePicture::LatePicture()
    : m_shown(std::make_shared<QIcon>(standInPicture())), m_icon(new LateEngine(m_shown))
{
}
