#pragma once

#include <QtGlobal>

/// The codes that tasks are stored and queried with.
namespace TaskStatus
{
inline constexpr qint32 NotStarted = 0;
inline constexpr qint32 InProgress = 1;
inline constexpr qint32 Completed = 2;
inline constexpr qint32 Waiting = 3;
inline constexpr qint32 Deferred = 4;
inline constexpr qint32 All = 5; ///< in filters only
} // namespace TaskStatus

namespace TaskPeriority
{
inline constexpr qint32 High = 0;
inline constexpr qint32 Normal = 1;
inline constexpr qint32 Low = 2;
} // namespace TaskPeriority

namespace TaskSort
{
inline constexpr qint32 Name = 0;
inline constexpr qint32 Status = 1;
inline constexpr qint32 DueDate = 2;
inline constexpr qint32 Periority = 3;
inline constexpr qint32 None = 4;
} // namespace TaskSort

namespace TaskType
{
inline constexpr qint32 Active = 0; ///< due now or later
inline constexpr qint32 Expired = 1; ///< past due
inline constexpr qint32 All = 2;
} // namespace TaskType

namespace CategoryFilter
{
inline constexpr qint16 All = -2;
}
