#pragma once

#include "platform/Clock.h"
#include "platform/database/Connection.h"

#include <QString>
#include <vector>

/// A task whose reminder moment has come and that the user has not dismissed.
struct DueReminder {
    qint32 id = 0;
    QString name;
    qint32 icon = 0; ///< of the category, an index into the image list
    QString category; ///< its name
    qint32 periority = 0;
    Moment dueDate{};
    QString reminder; ///< its moment, as stored
    QString sound;
    QString file;
    bool played = false;
    bool reminderOn = false;

    bool playsSound() const { return !sound.isEmpty() && !played && reminderOn; }
    bool startsFile() const { return !file.isEmpty() && !played; }
};

/// One check for due reminders, made for one tick and gone with it: one connection, one moment. The moment is
/// that of the making, so that no reminder can fall due between the reading and the marking and be marked
/// without ever having been listed. Nothing but "due <= now" is trusted: a machine that slept or a clock that
/// was set delays a reminder by one tick at worst.
class ReminderChecker
{
public:
    /// What a tick does to the window.
    enum class Outcome {
        Nothing,
        BringUp, ///< more are due than are shown: redraw, raise, mark as played
        Redraw, ///< fewer, but some
        Hide ///< none are due any more: empty the list and hide
    };

    /// Opens the connection and reads all due reminders to the end. A record of which a value that is asked
    /// for does not convert is left out (DatabaseEngine::unreadable); without a listener, too. `engine`
    /// outlives the check. Throws DatabaseError.
    explicit ReminderChecker(const DatabaseEngine& engine);
    ReminderChecker(const ReminderChecker&) = delete;
    ReminderChecker& operator=(const ReminderChecker&) = delete;

    /// In the order of the query.
    const std::vector<DueReminder>& due() const { return m_due; }
    /// What follows when `shownRows` reminders are listed.
    Outcome outcome(int shownRows) const;
    /// Marks every due reminder as played, durable once `close()` has returned. Throws DatabaseError.
    void markPlayed();
    /// Ends the check. Throws DatabaseError when the marks could not be stored.
    void close();

private:
    class FixedClock final : public Clock
    {
    public:
        explicit FixedClock(Moment moment) : m_moment(moment) { }
        Moment now() const override { return m_moment; }

    private:
        Moment m_moment;
    };

    void readDue();

    FixedClock m_clock;
    DatabaseEngine m_engine;
    Connection m_connection;
    std::vector<DueReminder> m_due;
};
