#include "platform/LongWork.h"

#include "platform/ProgressBox.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <QTimer>
#include <utility>

namespace
{

/// How often the windows are painted and a press on "Cancel" is heard.
constexpr std::chrono::milliseconds PaintInterval(40);

} // namespace

LongWorkTime LongWorkTime::real()
{
    QElapsedTimer timer;
    timer.start();
    return {[timer] { return std::chrono::milliseconds(timer.elapsed()); },
        [](std::chrono::milliseconds rest) {
            QEventLoop loop;
            QTimer::singleShot(rest, &loop, &QEventLoop::quit);
            loop.exec();
        }};
}

LongWork::LongWork(LongWorkHost& host, LongWorkTime time) : m_host(host), m_time(std::move(time))
{
}

LongWork::~LongWork() = default;

void LongWork::run(const QString& text, Kind kind, const std::function<void()>& work)
{
    run(text, kind, [&work](Progress&) { work(); });
}

void LongWork::run(const QString& text, Kind kind, const std::function<void(Progress&)>& work)
{
    if (m_handlesEvents) {
        throw Cancelled();
    }
    const QScopedValueRollback kindOfThis(m_kind, kind);
    if (m_isRunning) {
        work(*this);
        return;
    }
    start(text);
    try {
        work(*this);
    } catch (...) {
        finish(false);
        throw;
    }
    finish(true);
}

void LongWork::start(const QString& text)
{
    m_text = text;
    m_started = m_time.now();
    m_isRunning = true;
}

void LongWork::finish(bool isDone)
{
    const auto shown = m_time.now() - m_boxShown;
    if (isDone && m_box != nullptr && shown < LeastShown && !m_host.isEnding()) {
        const QScopedValueRollback handlesEvents(m_handlesEvents, true);
        m_time.stay(LeastShown - shown);
    }
    m_box.reset();
    m_isRunning = false;
    if (std::exchange(m_holdsBackground, false)) {
        m_host.setBackgroundHeld(false);
    }
}

void LongWork::advance(qint64 done, qint64 total)
{
    if (!m_isRunning || m_handlesEvents) {
        return;
    }
    const auto now = m_time.now();
    if (now - m_started < Patience || (m_holdsBackground && now - m_lastPaint < PaintInterval)) {
        return;
    }
    if (!std::exchange(m_holdsBackground, true)) {
        m_host.setBackgroundHeld(true);
        comeUp();
    }
    if (m_box != nullptr) {
        m_box->setProgress(done, total);
    }
    {
        const QScopedValueRollback handlesEvents(m_handlesEvents, true);
        // Without a box nothing takes input; with it, nothing but the box does.
        QCoreApplication::processEvents(
            m_box == nullptr ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents);
    }
    m_lastPaint = m_time.now();
    if (isGivenUp()) {
        throw Cancelled();
    }
}

void LongWork::comeUp()
{
    if (!m_host.isWaitedFor()) {
        return;
    }
    const auto offers =
        m_kind == Kind::Cancellable ? ProgressBox::Offers::Cancel : ProgressBox::Offers::Nothing;
    m_box = std::make_unique<ProgressBox>(m_host.waitingWindow(), m_text, offers);
    m_box->show();
    m_boxShown = m_time.now();
}

bool LongWork::isGivenUp() const
{
    return m_kind != Kind::Storing && (m_host.isEnding() || (m_box != nullptr && m_box->isCancelled()));
}
