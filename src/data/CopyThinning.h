#pragma once

#include "system/Moment.h"

#include <QtGlobal>
#include <vector>

/// A kept copy of the data file, as far as it matters for which of them go.
struct CopyInTime {
    Moment moment;
    qint64 size; ///< bytes
};

/// The bytes that all copies together may take at most, of `free` bytes that the disk would have free without
/// any: a tenth of what is then left of them, and never more than 200 MB.
qint64 roomForCopies(qint64 free);

/// Which of `copies` are to go, by their places, from the last place on. There stay the last ten of each of
/// the last seven days that have copies, and the last one of each of the last four weeks (from Monday) and of
/// the last twelve months that have any. Of the copies of later than `now`, when one of the clocks was wrong,
/// there stay as many beside those. Where these take more than `room` bytes, the further ones of a day go
/// first, then those of later than `now`, then the oldest. The newest one not later than `now` always stays.
/// The copies are in any order.
std::vector<std::size_t> copiesToDrop(const std::vector<CopyInTime>& copies, Moment now, qint64 room);
