#pragma once

#include "store/Connection.h"
#include "system/Clock.h"

#include <QString>
#include <vector>

/// A task whose reminder moment has come and that was not dismissed.
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
    qint32 status = 0;

    bool playsSound() const { return !sound.isEmpty() && !played && reminderOn; }
    bool startsFile() const { return !file.isEmpty() && !played; }
};

/// One check for due reminders, made by a tick and discarded with it: one connection and one moment, that
/// of its construction. So no reminder can fall due between reading and marking and be marked without
/// having been listed. Relies on "due <= now" alone: after sleep or a change of the clock a reminder is
/// late by one tick at most.
class ReminderChecker
{
public:
    /// What a tick does to the window.
    enum class Outcome {
        Nothing,
        BringUp, ///< more are due than are shown: redraw, raise, mark as played
        Redraw, ///< fewer are due, but some
        Hide ///< none are due any more: empty the list and hide
    };

    /// Opens the connection and reads all due reminders. A record that does not convert is left out
    /// (DatabaseEngine::unreadable), even without a listener. `engine` outlives the check. Throws
    /// DatabaseError.
    explicit ReminderChecker(const DatabaseEngine& engine);
    ReminderChecker(const ReminderChecker&) = delete;
    ReminderChecker& operator=(const ReminderChecker&) = delete;

    /// In the order of the query.
    const std::vector<DueReminder>& due() const { return m_due; }
    /// What to do when `shownRows` reminders are listed.
    Outcome outcome(int shownRows) const;
    /// Marks every due reminder as played; durable when `close()` has returned. Throws DatabaseError.
    void markPlayed();
    /// Ends the check. Throws DatabaseError when the marks could not be stored.
    void close();

private:
    void readDue();

    FixedClock m_clock;
    DatabaseEngine m_engine;
    Connection m_connection;
    std::vector<DueReminder> m_due;
};
