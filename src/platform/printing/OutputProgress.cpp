#include "platform/printing/OutputProgress.h"

#include "platform/printing/ProgressBox.h"

#include <QEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <QWidget>

namespace
{

// Shorter outputs are over before anybody could press anything.
constexpr qint64 QuietMilliseconds = 150;
constexpr qint64 BoxAfterMilliseconds = 1000;
constexpr qint64 AnswerEveryMilliseconds = 30;

} // namespace

OutputProgress::OutputProgress(QWidget& window, const QString& text, int pageCount)
    : m_window(window), m_text(text), m_pageCount(pageCount)
{
    m_started.start();
    m_answered.start();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

OutputProgress::~OutputProgress()
{
    QGuiApplication::restoreOverrideCursor();
    m_box.reset();
    if (m_closedToInput) {
        m_window.removeEventFilter(this);
        m_window.setEnabled(true);
        if (m_focus != nullptr) {
            m_focus->setFocus();
        }
    }
}

bool OutputProgress::pageDone()
{
    ++m_done;
    if (m_done < m_pageCount && m_started.hasExpired(QuietMilliseconds)
        && m_answered.hasExpired(AnswerEveryMilliseconds)) {
        closeToInput();
        if (m_started.hasExpired(BoxAfterMilliseconds)) {
            showBox();
        }
        answerEvents();
        m_answered.start();
    }
    return !m_cancelled;
}

void OutputProgress::closeToInput()
{
    if (!m_closedToInput) {
        m_closedToInput = true;
        m_focus = m_window.focusWidget();
        m_window.setEnabled(false);
        m_window.installEventFilter(this);
    }
}

void OutputProgress::showBox()
{
    if (m_box == nullptr) {
        m_box = std::make_unique<ProgressBox>(m_window, m_text, m_pageCount);
        connect(m_box.get(), &QDialog::rejected, this, [this] { m_cancelled = true; });
        m_box->show();
        // The pointer says that there is something to press again.
        QGuiApplication::changeOverrideCursor(Qt::BusyCursor);
    }
    m_box->setDone(m_done);
}

void OutputProgress::answerEvents()
{
    QEventLoop events;
    bool answered = false;
    // A loop that ends otherwise is ended with all others: the program leaves.
    QTimer::singleShot(1, &events, [&] {
        answered = true;
        events.quit();
    });
    events.exec();
    m_cancelled = m_cancelled || !answered;
}

bool OutputProgress::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Close) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
