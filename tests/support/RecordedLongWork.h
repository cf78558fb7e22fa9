#pragma once

#include "platform/LongWork.h"

#include <QList>

/// Answers as a test has set, and remembers when the background was held. Its time stands still until a test
/// steps it.
struct RecordedLongWork final : LongWorkHost {
    bool isWaitedFor() const override { return waitedFor; }
    QWidget* waitingWindow() const override { return nullptr; }
    bool isEnding() const override { return ending; }
    void setBackgroundHeld(bool isHeld) override { held.append(isHeld); }
    LongWorkTime time()
    {
        return {[this] { return now; },
            [this](std::chrono::milliseconds rest) {
                stays.append(rest);
                now += rest;
            }};
    }

    bool waitedFor = true;
    bool ending = false;
    QList<bool> held;
    QList<std::chrono::milliseconds> stays;
    std::chrono::milliseconds now{};
    LongWork work{*this, time()};
};
