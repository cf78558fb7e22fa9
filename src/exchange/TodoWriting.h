#pragma once

#include <string>

struct TaskRecord;

/// Appends the task as a VTODO to `out`; `stamp` is the moment of the export, in UTC. What other programs
/// have written of it comes along as long as it still is so.
void appendTodo(std::string& out, const TaskRecord& task, const std::string& stamp);
