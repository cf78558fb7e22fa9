#include "settings/MaintenancePage.h"

#include "data/ClsTask.h"
#include "data/DataFileCopies.h"
#include "data/KeptCopies.h"
#include "data/TaskCodes.h"
#include "data/UndoHistory.h"
#include "system/Clock.h"
#include "system/ErrorReport.h"
#include "system/FileReplace.h"
#include "widgets/ChangeTexts.h"
#include "widgets/CheckerTimer.h"
#include "widgets/ComboBox.h"
#include "widgets/Combos.h"
#include "widgets/FileDialogs.h"
#include "widgets/FormServices.h"
#include "widgets/MessageBoxes.h"
#include "widgets/MomentTexts.h"
#include "widgets/NamedControls.h"
#include "widgets/Pickers.h"
#include "widgets/QuietLine.h"
#include "widgets/ScreenProgress.h"

#include <QBoxLayout>
#include <QDateEdit>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

/// The state of the controls for bulk deletion.
struct MaintenancePage::Criteria {
    qint16 category;
    qint32 status;
    Moment from;
    Moment to;
    qint32 taskType;
};

namespace
{

constexpr int OptionSpacing = 7;

QString deletedNote(qint32 count)
{
    return count == 1 ? MaintenancePage::tr("1 task was deleted")
                      : MaintenancePage::tr("%n tasks were deleted", nullptr, count);
}

QString restoredNote(const RestoredData& restored, const QString& file)
{
    if (restored.replaced.isEmpty()) {
        return MaintenancePage::tr("Restored from \"%1\"").arg(file);
    }
    const auto count = static_cast<int>(restored.tasks);
    const QString note = count == 1
        ? MaintenancePage::tr("Restored 1 task from \"%1\"; what was there before is in %2")
        : MaintenancePage::tr(
            "Restored %n tasks from \"%1\"; what was there before is in %2", nullptr, count);
    return note.arg(file, restored.replaced);
}

QString backupFilter()
{
    return MaintenancePage::tr("Ambertaks Backup Files (*.abk)|*.abk");
}

} // namespace

MaintenancePage::MaintenancePage(const FormServices& services, QWidget* parent)
    : QWidget(parent), m_services(services), m_loader(services.engine)
{
    auto* page = new QVBoxLayout(this);
    page->addWidget(makeDeleteFrame());
    page->addWidget(makeCopyFrame());
    page->addWidget(makeExchangeFrame());
    page->addStretch();
    m_btnHelp = named(new QPushButton(tr("&Help")), "btnHelpMaintenance");
    m_btnHelp->setEnabled(false);
    page->addWidget(m_btnHelp, 0, Qt::AlignRight);
    m_quietLine = new QuietLine(QStringLiteral("lblMaintenanceNote"), this);
    page->addWidget(m_quietLine);

    ErrorReport& errors = services.errors;
    connectGuarded(m_btnDeleteTasks, &QPushButton::clicked, this,
        &MaintenancePage::btnDeleteTasksMaintenance_Click, errors);
    connectGuarded(m_btnBackup, &QPushButton::clicked, this, &MaintenancePage::btnBackup_Click, errors);
    connectGuarded(m_btnRestore, &QPushButton::clicked, this, &MaintenancePage::btnRestore_Click, errors);
    connect(m_btnCopies, &QPushButton::clicked, this, &MaintenancePage::copiesRequested);
    connect(m_btnHelp, &QPushButton::clicked, this, &MaintenancePage::helpRequested);
}

QGroupBox* MaintenancePage::makeDeleteFrame()
{
    m_cmbCategories = named(new ComboBox, "cmbCategoriesMaintenance");
    m_cmbStatus = named(new ComboBox, "cmbStatusMaintenance");
    // A long category name must not widen the page; statuses must be seen whole.
    m_cmbCategories->keepNarrow(22);
    m_cmbStatus->keepEntriesWhole();
    m_btnDeleteTasks = named(new QPushButton(tr("&Delete")), "btnDeleteTasksMaintenance");

    auto* frame = new QGroupBox(tr("Delete Tasks"));
    auto* layout = new QGridLayout(frame);
    layout->addWidget(named(labelFor(m_cmbCategories, tr("&Category")), "SCLabel6"), 0, 0);
    layout->addWidget(m_cmbCategories, 0, 1);
    layout->addWidget(named(labelFor(m_cmbStatus, tr("&Status")), "SCLabel7"), 1, 0);
    layout->addWidget(m_cmbStatus, 1, 1);
    layout->addLayout(makeTaskTypeOptions(), 0, 2, 3, 1);
    layout->addWidget(makeDateRangeFrame(), 0, 3, 3, 1);
    layout->addWidget(m_btnDeleteTasks, 3, 3, Qt::AlignRight);
    layout->setHorizontalSpacing(16);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(2, 1);
    return frame;
}

QBoxLayout* MaintenancePage::makeTaskTypeOptions()
{
    m_opnAllTasks = named(new QRadioButton(tr("&All tasks")), "opnAllTasksMaintenance");
    m_opnActiveTasks = named(new QRadioButton(tr("Acti&ve tasks only")), "opnActiveTasksMaintenance");
    m_opnExpiredTasks = named(new QRadioButton(tr("&Expired tasks only")), "opnExpiredTasksMaintenance");
    auto* layout = new QVBoxLayout;
    layout->setSpacing(OptionSpacing);
    layout->addWidget(m_opnAllTasks);
    layout->addWidget(m_opnActiveTasks);
    layout->addWidget(m_opnExpiredTasks);
    layout->addStretch();
    return layout;
}

QGroupBox* MaintenancePage::makeDateRangeFrame()
{
    m_dtpDateFrom = named(new QDateEdit, "dtpDateFromMaintenance");
    m_dtpDateTo = named(new QDateEdit, "dtpDateToMaintenance");
    setUpDatePicker(*m_dtpDateFrom, m_services.clock);
    setUpDatePicker(*m_dtpDateTo, m_services.clock);

    auto* frame = new QGroupBox(tr("Date Range"));
    frame->setAccessibleName(frame->title());
    auto* layout = new QGridLayout(frame);
    layout->addWidget(named(labelFor(m_dtpDateFrom, tr("&From")), "SCLabel8"), 0, 0);
    layout->addWidget(m_dtpDateFrom, 0, 1);
    layout->addWidget(named(labelFor(m_dtpDateTo, tr("&To")), "SCLabel9"), 1, 0);
    layout->addWidget(m_dtpDateTo, 1, 1);
    layout->setRowStretch(2, 1);
    return frame;
}

QGroupBox* MaintenancePage::makeCopyFrame()
{
    m_btnBackup = named(new QPushButton(tr("&Backup")), "btnBackup");
    m_btnRestore = named(new QPushButton(tr("&Restore")), "btnRestore");
    m_btnCopies = named(new QPushButton(tr("Restore from a c&opy...")), "btnCopies");
    m_btnCopies->setToolTip(tr("Shows the copies of your data that the program has made by itself"));
    auto* frame = new QGroupBox(tr("Backup and Restore"));
    auto* layout = new QHBoxLayout(frame);
    layout->addWidget(m_btnBackup);
    layout->addWidget(m_btnRestore);
    layout->addWidget(m_btnCopies);
    layout->addStretch();
    return frame;
}

QGroupBox* MaintenancePage::makeExchangeFrame()
{
    auto* frame = named(new QGroupBox(tr("Exchange with other programs")), "framExchange");
    auto* layout = new QHBoxLayout(frame);
    const auto add = [layout](const char* name, const QString& caption, const QString& tip) {
        auto* button = named(new QPushButton(caption), name);
        button->setToolTip(tip);
        button->setAccessibleDescription(tip);
        layout->addWidget(button);
        return button;
    };
    const auto* takeOut =
        add("btnExport", tr("E&xport..."), tr("Saves all tasks as iCalendar or CSV, for other programs"));
    const auto* bringIn = add("btnImport", tr("&Import..."),
        tr("Adds the tasks of an iCalendar or CSV file; shows first what would happen"));
    layout->addStretch();
    connect(takeOut, &QPushButton::clicked, this, [this] {
        m_quietLine->hush();
        emit exportRequested();
    });
    connect(bringIn, &QPushButton::clicked, this, [this] {
        m_quietLine->hush();
        emit importRequested();
    });
    return frame;
}

void MaintenancePage::say(const QString& text)
{
    m_quietLine->say(text);
}

QComboBox& MaintenancePage::cmbCategoriesMaintenance() const
{
    return *m_cmbCategories;
}

void MaintenancePage::prepareFilters()
{
    m_loader.LoadCategoriesCombo(*m_cmbCategories);
    m_loader.LoadStatusCombo(*m_cmbStatus);
    showToday();
    m_opnAllTasks->setChecked(true);
}

void MaintenancePage::showToday()
{
    m_shownDay = toQDate(m_services.clock.now());
    m_dtpDateFrom->setDate(m_shownDay);
    m_dtpDateTo->setDate(m_shownDay);
}

void MaintenancePage::showEvent(QShowEvent* event)
{
    // The program runs for weeks; a range that nobody has touched is that of the day.
    if (m_dtpDateFrom->date() == m_shownDay && m_dtpDateTo->date() == m_shownDay) {
        showToday();
    }
    QWidget::showEvent(event);
}

MaintenancePage::Criteria MaintenancePage::shownCriteria() const
{
    Criteria shown;
    shown.from = toMoment(m_dtpDateFrom->date());
    shown.to = toMoment(m_dtpDateTo->date());
    shown.taskType = m_opnActiveTasks->isChecked() ? TaskType::Active
        : m_opnAllTasks->isChecked()               ? TaskType::All
                                                   : TaskType::Expired;
    shown.category = narrowId(selectedNumber(*m_cmbCategories, CategoryFilter::All),
        QT_TRANSLATE_NOOP("OverflowError", "category id"));
    shown.status = selectedNumber(*m_cmbStatus, TaskStatus::All);
    return shown;
}

void MaintenancePage::btnDeleteTasksMaintenance_Click()
{
    m_quietLine->hush();
    // What is half typed counts as it is shown: the mnemonic of the button moves no focus.
    m_dtpDateFrom->interpretText();
    m_dtpDateTo->interpretText();
    const ClsTask store(m_services.engine);
    const Criteria counted = shownCriteria();
    const qint32 count =
        store.GetTasksCount(counted.category, counted.status, counted.from, counted.to, counted.taskType);
    if (count == 0) {
        m_services.messages.tell(window(), MessageBoxes::Icon::Exclamation,
            tr("There is no tasks according to the selected criteria!"));
        return;
    }
    if (!m_services.messages.ask(window(), tr("Are you sure you want to delete %n tasks?", nullptr, count))) {
        return;
    }
    // The category lists may have been reloaded while the question was open.
    const Criteria confirmed = shownCriteria();
    qint32 deleted = 0;
    QString noCopy;
    ScreenProgress(this, tr("Deleting the tasks...")).run([&](Progress& progress) {
        noCopy = KeptCopies(m_services.engine).keep(CopyOccasion::Deletion, &progress);
        m_services.undo.run([&](const DatabaseEngine& recorded) {
            DatabaseEngine engine = recorded;
            engine.progress = &progress;
            deleted = ClsTask(engine).DeleteTasks(
                confirmed.category, confirmed.status, confirmed.from, confirmed.to, confirmed.taskType);
            return ChangeTexts::deleted(deleted);
        });
    });
    emit tasksDeleted();
    m_quietLine->say(ChangeTexts::withNoCopy(deletedNote(deleted), noCopy));
}

void MaintenancePage::btnBackup_Click()
{
    m_quietLine->hush();
    const CheckerPause pause(m_services.checkerTimer);
    try {
        FileDialogRequest request;
        request.name = QStringLiteral("cdBackupRestore");
        request.filter = backupFilter();
        request.fileName =
            QStringLiteral("Ambertaks ") + shortDate(m_services.clock.now()).replace(u'/', u'-');
        request.promptBeforeOverwriting = true;
        const QString file = m_services.fileDialogs.save(window(), request);
        if (file.isEmpty()) {
            return;
        }
        ScreenProgress(this, tr("Backing up the data...")).run([&](Progress& progress) {
            DataFileCopies(m_services.engine).backUpTo(file, &progress);
        });
        m_quietLine->say(tr("Backup saved to \"%1\"").arg(QDir::toNativeSeparators(file)));
    } catch (const Cancelled&) {
        // The user who cancelled needs no message.
    } catch (const std::exception& error) {
        m_quietLine->say(tr("The backup could not be written: %1").arg(reasonOf(error)));
    }
}

void MaintenancePage::btnRestore_Click()
{
    m_quietLine->hush();
    if (const QString why = restore(this, [this] { return chooseBackup(); }); !why.isEmpty()) {
        m_quietLine->say(why);
    }
}

QString MaintenancePage::chooseBackup()
{
    FileDialogRequest request;
    request.name = QStringLiteral("cdBackupRestore");
    request.filter = backupFilter();
    request.sideFolder = KeptCopies(m_services.engine).folder();
    request.promptBeforeOverwriting = true;
    // The name proposed for a backup has no extension.
    request.anyName = true;
    return m_services.fileDialogs.open(window(), request);
}

QString MaintenancePage::restoreCopy(const QString& file, QWidget* owner)
{
    m_quietLine->hush();
    return restore(owner, [&file] { return file; });
}

QString MaintenancePage::restore(QWidget* owner, const std::function<QString()>& choose)
{
    const CheckerPause pause(m_services.checkerTimer);
    try {
        const QString file = choose();
        if (file.isEmpty()) {
            return {};
        }
        emit dataFileToBeReplaced();
        RestoredData restored;
        ScreenProgress(owner, tr("Restoring the data...")).run([&](Progress& progress) {
            restored = DataFileCopies(m_services.engine).restoreFrom(file, &progress);
        });
        emit dataRestored();
        m_quietLine->say(
            ChangeTexts::withNoCopy(restoredNote(restored, QDir::toNativeSeparators(file)), restored.noCopy));
    } catch (const Cancelled&) {
        // The user who cancelled needs no message; nothing has changed.
    } catch (const std::exception& error) {
        return tr("Nothing was restored: %1").arg(reasonOf(error));
    }
    return {};
}

void MaintenancePage::setHelpEnabled(bool enabled)
{
    m_btnHelp->setEnabled(enabled);
}
