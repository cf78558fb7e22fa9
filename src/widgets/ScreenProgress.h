#pragma once

#include "system/Progress.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>

class ProgressBox;

/// Keeps the windows painted during a long operation on the interface thread, without handling input. After
/// a second a box shows how far the operation is and offers to cancel it.
class ScreenProgress final : public Progress
{
public:
    static constexpr std::chrono::milliseconds Patience{1000};

    /// The box belongs to the window of `owner`, says `text` and appears after `patience`.
    ScreenProgress(QWidget* owner, QString text, std::chrono::milliseconds patience = Patience);
    ~ScreenProgress() override;

    /// Runs the operation to its end and throws what it throws: Cancelled when the user has cancelled it or
    /// the program is ending, which `advance` tells the operation. Also throws Cancelled, without running
    /// it, when the program was ending before.
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
