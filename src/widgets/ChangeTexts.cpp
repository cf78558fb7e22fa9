#include "widgets/ChangeTexts.h"

// Without a catalogue, as in English, Qt knows of no plural.

QString ChangeTexts::deleted(int count)
{
    return count == 1 ? tr("1 task deleted") : tr("%n tasks deleted", nullptr, count);
}

QString ChangeTexts::movedOn(int count)
{
    return count == 1 ? tr("1 task moved on to its next time")
                      : tr("%n tasks deleted this time", nullptr, count);
}

QString ChangeTexts::duplicated(int count)
{
    return count == 1 ? tr("1 task duplicated") : tr("%n tasks duplicated", nullptr, count);
}

QString ChangeTexts::completed(int count)
{
    return count == 1 ? tr("1 task completed") : tr("%n tasks completed", nullptr, count);
}

QString ChangeTexts::setBack(int count)
{
    return count == 1 ? tr("1 task set back to \"Not Started\"")
                      : tr("%n tasks set back to \"Not Started\"", nullptr, count);
}

QString ChangeTexts::statusChanged(int count)
{
    return count == 1 ? tr("Status of 1 task changed") : tr("Status of %n tasks changed", nullptr, count);
}

QString ChangeTexts::periorityChanged(int count)
{
    return count == 1 ? tr("Priority of 1 task changed") : tr("Priority of %n tasks changed", nullptr, count);
}

QString ChangeTexts::categoryChanged(int count)
{
    return count == 1 ? tr("Category of 1 task changed") : tr("Category of %n tasks changed", nullptr, count);
}

QString ChangeTexts::imported(int count)
{
    return count == 1 ? tr("1 task imported") : tr("%n tasks imported", nullptr, count);
}

QString ChangeTexts::dismissed(int count)
{
    return count == 1 ? tr("1 reminder dismissed") : tr("%n reminders dismissed", nullptr, count);
}

QString ChangeTexts::postponed(int count)
{
    return count == 1 ? tr("1 reminder postponed") : tr("%n reminders postponed", nullptr, count);
}

QString ChangeTexts::withNoCopy(const QString& said, const QString& why)
{
    if (why.isEmpty()) {
        return said;
    }
    const QString note = tr("No copy was kept: %1").arg(why);
    return said.isEmpty() ? note : tr("%1. %2").arg(said, note);
}
