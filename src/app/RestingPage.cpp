#include "app/RestingPage.h"

#include "widgets/ScrollFrame.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>
#include <utility>

namespace
{

template <typename Work> void forPageAndControls(QWidget& page, Work work)
{
    work(page);
    for (QWidget* control : page.findChildren<QWidget*>()) {
        work(*control);
    }
}

} // namespace

RestingPage::RestingPage(QWidget* page, QList<const QWidget*> beside)
    : m_beside(std::move(beside)), m_place(new QWidget), m_page(page)
{
    (new QVBoxLayout(m_place))->setContentsMargins({});
    // WA_SetStyle keeps Qt from styling these widgets on the next events and at every change of the style.
    forPageAndControls(*page, [](QWidget& widget) {
        QCoreApplication::removePostedEvents(&widget, QEvent::PolishRequest);
        widget.setAttribute(Qt::WA_SetStyle);
    });
}

ScrollFrame& RestingPage::frame()
{
    if (m_frame == nullptr) {
        m_frame = new ScrollFrame(m_beside);
        m_place->layout()->addWidget(m_frame);
        // Otherwise the layout would show it only with the next events.
        m_frame->show();
    }
    return *m_frame;
}

void RestingPage::join()
{
    m_page->setParent(frame().viewport());
}

void RestingPage::wake()
{
    if (m_page != nullptr) {
        forPageAndControls(*m_page, [](QWidget& widget) { widget.setAttribute(Qt::WA_SetStyle, false); });
        frame().hold(m_page.release());
    }
}
