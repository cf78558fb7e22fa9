#pragma once

#include "platform/Progress.h"

#include <QPointer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>

class ProgressBox;

/// What long work asks of the program around it.
class LongWorkHost
{
public:
    LongWorkHost() = default;
    virtual ~LongWorkHost() = default;
    LongWorkHost(const LongWorkHost&) = delete;
    LongWorkHost& operator=(const LongWorkHost&) = delete;

    /// Whether anybody waits at a window of the program, which is on the screen or will be at once.
    virtual bool isWaitedFor() const = 0;
    /// The window at which somebody waits; null when none is on the screen yet.
    virtual QWidget* waitingWindow() const = 0;
    /// Whether the program is about to end.
    virtual bool isEnding() const = 0;
    /// Events are handled in the midst of the work from now on (true), or no longer (false): what comes by
    /// itself, such as a timer, is not to touch what is only half done, but to be made up for afterwards.
    virtual void setBackgroundHeld(bool held) = 0;
};

/// How long work measures its time, and lets it pass.
struct LongWorkTime {
    std::function<std::chrono::milliseconds()> now; ///< from any beginning; never goes back
    std::function<void(std::chrono::milliseconds)> stay; ///< handles events for so long

    static LongWorkTime real();
};

/// Work of the interface thread that mostly takes no time and sometimes, with very many tasks, takes long.
/// In its first second it does nothing but look at a stopwatch now and then: no event is handled and no timer
/// is started. From then on the windows are painted, a box shows that the program works, and no other input
/// is taken. One for the program; interface thread only.
class LongWork final : public Progress
{
public:
    enum class Kind {
        Reading, ///< what is shown is built anew. Given up when the program ends, else never
        Storing, ///< never given up: what the user has confirmed is stored even when the program ends
        Cancellable ///< the box offers to cancel; given up when the program ends, too
    };

    static constexpr std::chrono::milliseconds Patience{1000};
    /// A box that has come up is seen, and does not flash.
    static constexpr std::chrono::milliseconds LeastShown{400};

    /// `host` is not owned and outlives this object.
    explicit LongWork(LongWorkHost& host, LongWorkTime time = LongWorkTime::real());
    ~LongWork() override;

    /// Runs `work` to its end, under a box that says `text` where it takes longer than `Patience`. Work
    /// within work shares the box. Throws what it throws, and Cancelled: when the work was given up, or when
    /// it was asked for while events are handled in the midst of other work, and has not begun.
    void run(const QString& text, Kind kind, const std::function<void()>& work);
    /// The same for work that tells by itself how far it is.
    void run(const QString& text, Kind kind, const std::function<void(Progress&)>& work);

    /// Nothing outside of `run()`.
    void advance(qint64 done, qint64 total) override;

private:
    void start(const QString& text);
    void finish(bool isDone);
    void comeUp();
    bool isGivenUp() const;

    LongWorkHost& m_host;
    LongWorkTime m_time;
    QString m_text;
    Kind m_kind = Kind::Reading;
    std::chrono::milliseconds m_started{};
    std::chrono::milliseconds m_lastPaint{};
    bool m_isRunning = false;
    bool m_holdsBackground = false;
    bool m_handlesEvents = false;
    std::unique_ptr<ProgressBox> m_box;
    std::chrono::milliseconds m_boxShown{};
};
