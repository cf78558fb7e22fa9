#pragma once

#include "store/DatabaseEngine.h"
#include "system/Moment.h"

#include <functional>
#include <optional>

/// Keeps a copy of the data file before the first change of each day. Where that fails, the next changes try
/// it again.
class DayCopy final : public CopyKeeper
{
public:
    /// `engine` outlives this object. `failed` is called when there is no copy, with the reason (see
    /// KeptCopies), once a day: in the midst of a change, so it must not use the data file and not throw.
    DayCopy(const DatabaseEngine& engine, std::function<void(const QString& why)> failed);

    void aboutToChange(const UnchangedFile& file) override;
    void copyTried(bool isThere) override;

private:
    const DatabaseEngine* m_engine;
    std::function<void(const QString& why)> m_failed;
    std::optional<Moment> m_kept; ///< the day of which there is a copy
    std::optional<Moment> m_told; ///< the day of which it is known that a copy has failed
};
