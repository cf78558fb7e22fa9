#pragma once

#include "store/DatabaseError.h"

#include <optional>

/// The error of that type which `action` ends with; none when it ends without.
template <typename Error = DatabaseError, typename Action> std::optional<Error> caught(Action action)
{
    try {
        action();
    } catch (const Error& error) {
        return error;
    }
    return std::nullopt;
}
