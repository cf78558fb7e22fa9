#pragma once

#include "platform/Progress.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>

class ProgressBox;

/// Keeps the windows painted during a long operation on the interface thread and takes no input meanwhile.
/// Once the operation has taken longer than a second, a box shows how far it is and offers to cancel it.
class ScreenProgress final : public Progress
{
public:
    static constexpr std::chrono::milliseconds Patience{1000};

    /// The box belongs to the window of `owner` and says `text`. It comes up after `patience`.
    ScreenProgress(QWidget* owner, QString text, std::chrono::milliseconds patience = Patience);
    ~ScreenProgress() override;

    /// Runs the operation to its end. Throws what it throws: Cancelled, when the user has cancelled it or the
    /// program is to end and the operation has learnt of that by `advance`; also when the program was about
    /// to end already, and the operation has not run at all.
    void run(const std::function<void(Progress&)>& operation);

    void advance(qint64 done, qint64 total) override;

private:
    QPointer<QWidget> m_owner;
    QString m_text;
    std::chrono::milliseconds m_patience;
    QEventLoop m_loop;
    QElapsedTimer m_running;
    QElapsedTimer m_sincePaint;
    std::unique_ptr<ProgressBox> m_box;
};
