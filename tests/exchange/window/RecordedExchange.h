#pragma once

#include "data/TaskChanges.h"
#include "exchange/Exchange.h"
#include "store/DatabaseEngine.h"
#include "system/RuntimeError.h"

#include <functional>

/// An exchange that writes and reads no file: it remembers what it was asked for, and its imports are what a
/// test has prepared.
class RecordedExchange final : public Exchange
{
public:
    /// What all of them have done together.
    struct Log {
        QStringList files;
        QList<ExchangeFormat> formats;
        std::vector<ExportChoice> choices;
        ImportPlan prepared; ///< what the next file holds
        QString failure; ///< why it cannot be read; empty when it can
        std::vector<bool> taken; ///< of the tasks carried out last: with its program
        std::function<void(const DatabaseEngine&)> storing = [](const DatabaseEngine&) {
        };
    };

    explicit RecordedExchange(Log& log) : m_log(log) { }

    qint64 exportTo(
        QIODevice&, ExchangeFormat, const ExportChoice&, const DatabaseEngine&, Progress*) override
    {
        return 0;
    }
    qint64 exportTo(const QString& file, ExchangeFormat format, const ExportChoice& choice,
        const DatabaseEngine&, Progress*) override
    {
        m_log.files.append(file);
        m_log.formats.append(format);
        m_log.choices.push_back(choice);
        return choice.tasks ? choice.tasks->size() : 3;
    }
    ImportPlan plan(QIODevice&, ExchangeFormat, const DatabaseEngine&, Progress*) override
    {
        return m_log.prepared;
    }
    ImportPlan plan(const QString& file, ExchangeFormat format, const DatabaseEngine&, Progress*) override
    {
        m_log.files.append(file);
        m_log.formats.append(format);
        if (!m_log.failure.isEmpty()) {
            throw RuntimeError(m_log.failure);
        }
        return m_log.prepared;
    }
    ImportResult carryOut(const ImportPlan& plan, const DatabaseEngine& engine, Progress*) override
    {
        m_log.taken.clear();
        for (const ImportedTask& imported : plan.tasks) {
            m_log.taken.push_back(imported.takesProgram);
        }
        m_log.storing(engine);
        return {plan.added, plan.changed, 0, 0};
    }

private:
    Log& m_log;
};

/// A task of a file.
inline ImportedTask importedTask(ImportedTask::Outcome outcome, const char* name, const char* program = "")
{
    ImportedTask imported;
    imported.outcome = outcome;
    imported.task.name = name;
    imported.task.category = "Garden";
    imported.task.due =
        Moment(std::chrono::local_days(std::chrono::year(2026) / 11 / 23) + std::chrono::hours(9));
    imported.program = program;
    return imported;
}

/// Two new tasks, a changed one, and one that would start a program.
inline ImportPlan samplePlan()
{
    ImportPlan plan;
    plan.tasks = {importedTask(ImportedTask::Outcome::New, "Cut the <b>hedge</b>"),
        importedTask(ImportedTask::Outcome::Changed, "Water the roses", "/usr/bin/first"),
        importedTask(ImportedTask::Outcome::New, "Buy soil"),
        importedTask(ImportedTask::Outcome::Same, "Rake the leaves", "/usr/bin/second")};
    plan.added = 2;
    plan.changed = 1;
    plan.same = 1;
    plan.newCategories = {QStringLiteral("Garden")};
    plan.unreadable = {{12, QStringLiteral("Dig"), QStringLiteral("The due date \"never\" is no moment.")}};
    plan.unreadableParts = 1;
    return plan;
}
