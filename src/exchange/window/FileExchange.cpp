#include "exchange/window/FileExchange.h"

#include "data/KeptCopies.h"
#include "data/UndoHistory.h"
#include "exchange/window/frmImport.h"
#include "system/Clock.h"
#include "system/ErrorReport.h"
#include "system/FileReplace.h"
#include "widgets/ChangeTexts.h"
#include "widgets/CheckerTimer.h"
#include "widgets/FileDialogs.h"
#include "widgets/FormServices.h"
#include "widgets/MessageBoxes.h"
#include "widgets/MomentTexts.h"
#include "widgets/ScreenProgress.h"
#include "widgets/WindowPlacement.h"

#include <QDir>

namespace
{

const QLatin1String ProposedEnding(".ics");

QString formatFilters()
{
    return FileExchange::tr("iCalendar Files (*.ics)|*.ics") + u'|'
        + FileExchange::tr("CSV Files (*.csv)|*.csv");
}

ExchangeFormat formatOf(const QString& file)
{
    const std::optional<ExchangeFormat> format = exchangeFormatOf(file);
    if (!format) {
        throw RuntimeError(FileExchange::tr("the name of the file ends neither with .ics nor with .csv"));
    }
    return *format;
}

QString exportedNote(qint64 count, const QString& file)
{
    const QString note = count == 1
        ? FileExchange::tr("1 task was exported to \"%1\"")
        : FileExchange::tr("%n tasks were exported to \"%1\"", nullptr, static_cast<int>(count));
    return note.arg(QDir::toNativeSeparators(file));
}

} // namespace

QString importedNote(const ImportResult& result)
{
    QStringList done;
    if (result.added > 0 || result.changed == 0) {
        done.append(result.added == 1 ? FileExchange::tr("1 task was added")
                                      : FileExchange::tr("%n tasks were added", nullptr, result.added));
    }
    if (result.changed > 0) {
        done.append(result.changed == 1 ? FileExchange::tr("1 task was changed")
                                        : FileExchange::tr("%n tasks were changed", nullptr, result.changed));
    }
    return done.join(QStringLiteral(", "));
}

FileExchange::FileExchange(const FormServices& services, ExchangeFactory exchange, QObject* parent)
    : QObject(parent), m_services(services), m_factory(std::move(exchange))
{
}

FileExchange::~FileExchange() = default;

QWidget* FileExchange::window() const
{
    return m_window.get();
}

Exchange& FileExchange::exchange()
{
    if (m_exchange == nullptr) {
        m_exchange = m_factory();
    }
    return *m_exchange;
}

QString FileExchange::askForExport(QWidget* owner) const
{
    const CheckerPause pause(m_services.checkerTimer);
    FileDialogRequest request;
    request.name = QStringLiteral("cdExport");
    request.filter = formatFilters();
    request.fileName =
        tr("Tasks") + u' ' + shortDate(m_services.clock.now()).replace(u'/', u'-') + ProposedEnding;
    request.initialFolder = userFolder(QStandardPaths::DocumentsLocation);
    request.promptBeforeOverwriting = true;
    request.endsAsChosen = true;
    return m_services.fileDialogs.save(owner, request);
}

QString FileExchange::askForImport(QWidget* owner) const
{
    const CheckerPause pause(m_services.checkerTimer);
    FileDialogRequest request;
    request.name = QStringLiteral("cdImport");
    request.filter = tr("iCalendar and CSV Files (*.ics;*.csv)|*.ics;*.csv") + u'|' + formatFilters();
    request.initialFolder = userFolder(QStandardPaths::DocumentsLocation);
    request.fileMustExist = true;
    return m_services.fileDialogs.open(owner, request);
}

QString FileExchange::exportTasks(QWidget* owner, const ExportChoice& choice)
{
    const QString file = askForExport(owner);
    if (file.isEmpty()) {
        return {};
    }
    const ExchangeFormat format = formatOf(file);
    Exchange& writer = exchange();
    qint64 count = 0;
    try {
        ScreenProgress(owner, tr("Exporting the tasks...")).run([&](Progress& progress) {
            count = writer.exportTo(file, format, choice, m_services.engine, &progress);
        });
    } catch (const Cancelled&) {
        return {};
    }
    return exportedNote(count, file);
}

void FileExchange::exportAll(QWidget* owner)
{
    try {
        if (const QString note = exportTasks(owner, {}); !note.isEmpty()) {
            emit said(note);
        }
    } catch (const std::exception& error) {
        emit said(tr("Nothing was exported: %1").arg(reasonOf(error)));
    }
}

ImportPlan FileExchange::planOf(const QString& file, QWidget* owner)
{
    const ExchangeFormat format = formatOf(file);
    Exchange& reader = exchange();
    ImportPlan plan;
    ScreenProgress(owner, tr("Reading the file...")).run([&](Progress& progress) {
        plan = reader.plan(file, format, m_services.engine, &progress);
    });
    return plan;
}

void FileExchange::importTasks(QWidget* owner)
{
    try {
        const QString file = askForImport(owner);
        if (file.isEmpty()) {
            return;
        }
        ImportPlan plan = planOf(file, owner);
        if (m_window == nullptr) {
            m_window = std::make_unique<frmImport>();
            connectGuarded(
                m_window.get(), &frmImport::confirmed, this, &FileExchange::carryOut, m_services.errors);
        }
        m_file = file;
        m_window->setPlan(file, std::move(plan));
        if (m_services.alwaysOnTop()) {
            makeTopmost(m_window.get());
        }
        showOwned(m_window.get(), owner->window());
    } catch (const Cancelled&) {
        // The user who cancelled needs no message; nothing has changed.
    } catch (const std::exception& error) {
        emit said(tr("Nothing was imported: %1").arg(reasonOf(error)));
    }
}

/// The window is modeless: tasks may have been changed since, here or by another process, restored or taken
/// back, and the file may be another one.
bool FileExchange::isStillAsShown()
{
    ImportPlan plan = planOf(m_file, m_window.get());
    if (plan.isSameAs(m_window->plan())) {
        m_window->setSeen(plan.seen);
        return true;
    }
    m_window->setPlan(m_file, std::move(plan));
    m_services.messages.tell(m_window.get(), MessageBoxes::Icon::Exclamation,
        tr("Nothing was imported yet: the tasks or the file have been changed meanwhile.\nThe window shows "
           "what the import would do now."));
    return false;
}

void FileExchange::carryOut()
{
    ImportResult result;
    QString noCopy;
    try {
        if (!isStillAsShown()) {
            return;
        }
        ScreenProgress(m_window.get(), tr("Importing the tasks...")).run([&](Progress& progress) {
            noCopy = KeptCopies(m_services.engine).keep(CopyOccasion::Import, &progress);
            m_services.undo.run([&](const DatabaseEngine& engine) {
                result = exchange().carryOut(m_window->plan(), engine, &progress);
                return ChangeTexts::imported(result.added + result.changed);
            });
        });
    } catch (const Cancelled&) {
        return;
    } catch (const RuntimeError& error) {
        m_services.messages.tell(m_window.get(), MessageBoxes::Icon::Exclamation,
            tr("Nothing was imported.\n%1").arg(error.text()));
        return;
    }
    m_window->close();
    emit imported();
    emit said(ChangeTexts::withNoCopy(importedNote(result), noCopy));
}
