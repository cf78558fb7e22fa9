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
    if (m_day == today) {
        return;
    }
    m_day = today;
    if (const QString why = KeptCopies(*m_engine).keepOfToday(file); !why.isEmpty()) {
        m_failed(why);
    }
}

void DayCopy::copyTried()
{
    m_day = startOfDay(m_engine->clock->now());
}
