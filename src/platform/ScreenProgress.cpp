#include "platform/ScreenProgress.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <exception>

namespace
{

/// How often the windows are painted and a press on "Cancel" is heard.
constexpr qint64 PaintInterval = 40; // ms
/// The bar counts in these: a number of bytes may be too large for it.
constexpr int Steps = 1000;
constexpr int BoxWidth = 360;

} // namespace

ScreenProgress::ScreenProgress(QWidget* owner, QString text, std::chrono::milliseconds patience)
    : m_owner(owner), m_text(std::move(text)), m_patience(patience)
{
}

ScreenProgress::~ScreenProgress() = default;

void ScreenProgress::run(const std::function<void(Progress&)>& operation)
{
    // Stays when the operation never ran: a loop of a program that is about to end is left at once.
    std::exception_ptr failure = std::make_exception_ptr(Cancelled());
    // Inside of an event loop: the program ends by leaving all of them, and that is how it is noticed here.
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
    const bool isBoxDue = m_box == nullptr && m_running.elapsed() >= m_patience.count();
    if (!isBoxDue && m_sincePaint.elapsed() < PaintInterval) {
        return;
    }
    if (isBoxDue) {
        showBox();
    }
    if (m_bar != nullptr) {
        m_bar->setRange(0, total == 0 ? 0 : Steps);
        m_bar->setValue(total == 0 ? 0 : static_cast<int>(done * Steps / total));
    }
    // Without a box nothing takes input; with it, nothing but the box does.
    QCoreApplication::processEvents(
        m_box == nullptr ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents);
    m_sincePaint.start();
    if (m_cancelled || !m_loop.isRunning()) {
        throw Cancelled();
    }
}

void ScreenProgress::showBox()
{
    m_box = std::make_unique<QDialog>(m_owner.data());
    m_box->setObjectName(QStringLiteral("progress"));
    m_box->setWindowTitle(QStringLiteral("Ambertask"));
    m_box->setWindowModality(Qt::ApplicationModal);
    if (m_owner != nullptr && m_owner->window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
        m_box->setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    auto* label = new QLabel(m_text, m_box.get());
    label->setTextFormat(Qt::PlainText);
    m_bar = new QProgressBar(m_box.get());
    m_bar->setAccessibleName(m_text);
    m_bar->setTextVisible(false);
    auto* cancel = new QPushButton(tr("&Cancel"), m_box.get());
    cancel->setObjectName(QStringLiteral("btnCancel"));
    auto* layout = new QVBoxLayout(m_box.get());
    layout->addWidget(label);
    layout->addWidget(m_bar);
    layout->addWidget(cancel, 0, Qt::AlignRight);
    m_box->setMinimumWidth(BoxWidth);
    // The close box and Escape reject the dialog: they cancel as well.
    QObject::connect(cancel, &QPushButton::clicked, m_box.get(), &QDialog::reject);
    QObject::connect(m_box.get(), &QDialog::rejected, m_box.get(), [this] { m_cancelled = true; });
    m_box->show();
}
