#include "widgets/ScreenProgress.h"

#include "system/PendingEvents.h"
#include "widgets/ProgressBox.h"

#include <QCoreApplication>
#include <QTimer>
#include <exception>

namespace
{

/// How often windows are painted and the "Cancel" button is served.
constexpr qint64 PaintInterval = 40; // ms

} // namespace

ScreenProgress::ScreenProgress(QWidget* owner, QString text, std::chrono::milliseconds patience)
    : m_owner(owner), m_text(std::move(text)), m_patience(patience)
{
}

ScreenProgress::~ScreenProgress() = default;

void ScreenProgress::run(const std::function<void(Progress&)>& operation)
{
    // Stays set when the operation never runs: once the program is ending, exec() returns at once.
    std::exception_ptr failure = std::make_exception_ptr(Cancelled());
    // Run inside an event loop of its own: the program ends by leaving all event loops, and this one
    // notices.
    QTimer::singleShot(0, &m_loop, [this, &operation, &failure] {
        failure = nullptr;
        m_running.start();
        m_sincePaint.start();
        try {
            operation(*this);
        } catch (...) {
            failure = std::current_exception();
        }
        m_loop.quit();
    });
    m_loop.exec(QEventLoop::ExcludeUserInputEvents);
    m_box.reset();
    if (failure) {
        std::rethrow_exception(failure);
    }
}

void ScreenProgress::advance(qint64 done, qint64 total)
{
    if (!m_loop.isRunning()) {
        throw Cancelled();
    }
    const bool isBoxDue = m_box == nullptr && m_running.elapsed() >= m_patience.count();
    if (!isBoxDue && m_sincePaint.elapsed() < PaintInterval) {
        return;
    }
    if (isBoxDue) {
        m_box = std::make_unique<ProgressBox>(m_owner.data(), m_text);
        m_box->show();
    }
    if (m_box != nullptr) {
        m_box->setProgress(done, total);
    }
    // Without a box no input is handled; with it, the box takes all input.
    if (m_box == nullptr) {
        handlePendingEvents();
    } else {
        QCoreApplication::processEvents();
    }
    m_sincePaint.start();
    if ((m_box != nullptr && m_box->isCancelled()) || !m_loop.isRunning()) {
        throw Cancelled();
    }
}
