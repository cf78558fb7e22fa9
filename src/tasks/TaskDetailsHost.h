#pragma once

/// What the task dialog asks of the other windows.
class TaskDetailsHost
{
public:
    TaskDetailsHost() = default;
    virtual ~TaskDetailsHost() = default;
    TaskDetailsHost(const TaskDetailsHost&) = delete;
    TaskDetailsHost& operator=(const TaskDetailsHost&) = delete;

    /// The index selected in the main window's category filter; 0 is "All".
    virtual int selectedCategoryIndex() const = 0;
};
