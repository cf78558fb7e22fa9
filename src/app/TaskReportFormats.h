#pragma once

#include <QString>
#include <functional>

/// A format object: its event changes the value of a field before it is shown.
struct DataFormat {
    std::function<void(QString& value)> Format;
};

/// Replaces the number of a priority by its word; an unknown one is "Low".
void periorityFormat_Format(QString& value);
/// Replaces the number of a status by its word; an unknown one stays.
void statusFormat_Format(QString& value);
