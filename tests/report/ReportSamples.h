#pragma once

#include "report/ReportWindow.h"

/// A record with that name and description; the rest is usual.
inline std::vector<QString> recordOf(const QString& name, const QString& description = {})
{
    return {QStringLiteral("Work"), name, QStringLiteral("High"), QStringLiteral("In Progress"),
        QStringLiteral("15/01/2026"), description};
}

/// "record 1" to "record n".
inline std::vector<std::vector<QString>> recordsOf(int count)
{
    std::vector<std::vector<QString>> records;
    for (int i = 1; i <= count; ++i) {
        records.push_back(recordOf(QStringLiteral("record %1.").arg(i), QStringLiteral("about %1").arg(i)));
    }
    return records;
}

/// A report of these records with the sections and controls that the program prints.
inline ReportContent contentOf(std::vector<std::vector<QString>> records)
{
    using Kind = ReportControl::Kind;
    const auto label = [](const char* name, const char* caption) {
        return ReportControl{Kind::Label, QLatin1String(name), QLatin1String(caption), {}};
    };
    const auto text = [](const char* name) {
        return ReportControl{Kind::Text, QLatin1String(name), {}, {}};
    };
    ReportContent content;
    content.caption = QStringLiteral("Tasks Report");
    content.sections = {{QStringLiteral("PageHeader"),
                            {label("Label7", "Amber"), label("Label8", "Organizer"),
                                label("Label1", "https://vendor.example")}},
        {QStringLiteral("cmdTasks_Detail"),
            {label("Label6", "Category"), text("txtCatName"), text("txtTaskName"),
                label("Label2", "Periority"), text("txtTaskPeriority"), label("Label3", "Status"),
                text("txtTaskStatus"), label("Label4", "Due date"), text("txtTaskDueDate"),
                label("Label5", "Description"), text("txtTaskDesc")}}};
    content.records = std::move(records);
    return content;
}
