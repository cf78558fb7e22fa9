#include "data/DayCopy.h"

#include "data/KeptCopies.h"
#include "system/Clock.h"

#include <utility>

DayCopy::DayCopy(const DatabaseEngine& engine, std::function<void(const QString& why)> failed)
    : m_engine(&engine), m_failed(std::move(failed))
{
}

void DayCopy::aboutToChange(const UnchangedFile& file)
{
    const Moment today = startOfDay(m_engine->clock->now());
    if (m_kept == today) {
        return;
    }
    const QString why = KeptCopies(*m_engine).keepOfToday(file);
    if (why.isEmpty()) {
        m_kept = today;
    } else if (std::exchange(m_told, today) != today) {
        m_failed(why);
    }
}

void DayCopy::copyTried(bool isThere)
{
    (isThere ? m_kept : m_told) = startOfDay(m_engine->clock->now());
}
