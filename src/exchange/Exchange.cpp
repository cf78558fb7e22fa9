#include "exchange/Exchange.h"

#include "exchange/ExchangeTexts.h"
#include "system/Modules.h"

#include <algorithm>

namespace
{

void tell(QStringList& lines, int number, const QString& one, const QString& several)
{
    if (number > 0) {
        lines.append(number == 1 ? one : several);
    }
}

} // namespace

std::optional<ExchangeFormat> exchangeFormatOf(const QString& fileName)
{
    if (fileName.endsWith(QLatin1String(".ics"), Qt::CaseInsensitive)) {
        return ExchangeFormat::ICalendar;
    }
    if (fileName.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive)) {
        return ExchangeFormat::Csv;
    }
    return std::nullopt;
}

std::vector<const ImportedTask*> ImportPlan::programs() const
{
    std::vector<const ImportedTask*> found;
    for (const ImportedTask& imported : tasks) {
        if (!imported.program.empty()) {
            found.push_back(&imported);
        }
    }
    return found;
}

void ImportPlan::takePrograms(bool take)
{
    for (ImportedTask& imported : tasks) {
        imported.takesProgram = take && !imported.program.empty();
    }
}

bool ImportPlan::isEmpty() const
{
    return std::all_of(tasks.begin(), tasks.end(), [](const ImportedTask& imported) {
        return imported.outcome == ImportedTask::Outcome::Same && !imported.takesProgram;
    });
}

bool ImportedTask::isSameAs(const ImportedTask& other) const
{
    return outcome == other.outcome && task == other.task && program == other.program;
}

bool ImportPlan::isSameAs(const ImportPlan& other) const
{
    return summaryOf(*this) == summaryOf(other) && newCategories == other.newCategories
        && std::equal(tasks.begin(), tasks.end(), other.tasks.begin(), other.tasks.end(),
            [](const ImportedTask& one, const ImportedTask& another) { return one.isSameAs(another); });
}

QStringList summaryOf(const ImportPlan& plan)
{
    QStringList lines;
    tell(lines, plan.added, ExchangeTexts::tr("1 task is new."),
        ExchangeTexts::tr("%n tasks are new.", nullptr, plan.added));
    tell(lines, plan.changed, ExchangeTexts::tr("1 task is changed."),
        ExchangeTexts::tr("%n tasks are changed.", nullptr, plan.changed));
    tell(lines, plan.same, ExchangeTexts::tr("1 task is the same."),
        ExchangeTexts::tr("%n tasks are the same.", nullptr, plan.same));
    if (lines.isEmpty()) {
        lines.append(ExchangeTexts::tr("The file holds no task."));
    }
    const auto categories = static_cast<int>(plan.newCategories.size());
    tell(lines, categories, ExchangeTexts::tr("1 category is made."),
        ExchangeTexts::tr("%n categories are made.", nullptr, categories));
    const auto unreadable = static_cast<int>(std::min<qint64>(plan.unreadableParts, 2'000'000'000));
    tell(lines, unreadable, ExchangeTexts::tr("1 task cannot be read and stays out."),
        ExchangeTexts::tr("%n tasks cannot be read and stay out.", nullptr, unreadable));
    const auto passedOver = static_cast<int>(std::min<qint64>(plan.passedOver, 2'000'000'000));
    tell(lines, passedOver, ExchangeTexts::tr("1 entry is no task and stays out."),
        ExchangeTexts::tr("%n entries are no tasks and stay out.", nullptr, passedOver));
    tell(lines, plan.dismissed, ExchangeTexts::tr("1 reminder is past and comes in as dismissed."),
        ExchangeTexts::tr("%n reminders are past and come in as dismissed.", nullptr, plan.dismissed));
    tell(lines, plan.repeating, ExchangeTexts::tr("1 task repeats and comes in once."),
        ExchangeTexts::tr("%n tasks repeat and come in once.", nullptr, plan.repeating));
    tell(lines, plan.withoutDue, ExchangeTexts::tr("1 task has no due date and is due today."),
        ExchangeTexts::tr("%n tasks have no due date and are due today.", nullptr, plan.withoutDue));
    tell(lines, plan.furtherReminders, ExchangeTexts::tr("1 further reminder is kept, but does not remind."),
        ExchangeTexts::tr(
            "%n further reminders are kept, but do not remind.", nullptr, plan.furtherReminders));
    tell(lines, plan.unknownZones,
        ExchangeTexts::tr("1 task is in an unknown time zone and is taken as local time."),
        ExchangeTexts::tr(
            "%n tasks are in unknown time zones and are taken as local time.", nullptr, plan.unknownZones));
    return lines;
}

std::unique_ptr<Exchange> loadExchange(Modules& modules)
{
    using Make = Exchange* (*)();
    const auto make = modules.resolve<Make>(QLatin1String(ExchangeModule), "ambertaskMakeExchange");
    if (make == nullptr) {
        throw RuntimeError(
            ExchangeTexts::tr("Tasks cannot be exported or imported: the module "
                              "\"ambertask_exchange\" is missing from the program's folder or damaged."));
    }
    return std::unique_ptr<Exchange>(make());
}
