#include "settings/SettingsPage.h"

#include "data/SettingsStore.h"
#include "settings/SettingsPageHost.h"
#include "settings/Skins.h"
#include "store/DatabaseEngine.h"
#include "system/ErrorReport.h"
#include "system/FileReplace.h"
#include "system/Registry.h"
#include "system/Shell.h"
#include "widgets/CheckBox.h"
#include "widgets/CheckerTimer.h"
#include "widgets/ComboBox.h"
#include "widgets/DesktopLimits.h"
#include "widgets/FileDialogs.h"
#include "widgets/FormServices.h"
#include "widgets/LinkLabel.h"
#include "widgets/MessageBoxes.h"
#include "widgets/NamedControls.h"
#include "widgets/QuietLine.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <utility>

SettingsPage::SettingsPage(const FormServices& services, SettingsRecord& record, Registry& registry,
    Skins& skins, SettingsPageHost& host, QWidget* parent)
    : QWidget(parent), m_services(services), m_record(record), m_registry(registry), m_skins(skins),
      m_host(host)
{
    auto* page = new QGridLayout(this);
    page->addWidget(makeGeneralFrame(), 0, 0);
    page->addWidget(makeColumnsFrame(), 0, 1);
    page->addWidget(makeSkinsFrame(), 1, 0, 1, 2);
    page->setColumnStretch(0, 1);
    page->setColumnStretch(1, 1);
    page->setRowStretch(2, 1);

    m_btnSave = named(new QPushButton(tr("&Save Settings")), "btnSave");
    m_btnHelpSettings = named(new QPushButton(tr("&Help")), "btnHelpSettings");
    m_btnHelpSettings->setEnabled(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_btnSave);
    buttons->addWidget(m_btnHelpSettings);
    page->addLayout(buttons, 3, 0, 1, 2);
    m_quietLine = new QuietLine(QStringLiteral("lblSettingsNote"), this);
    page->addWidget(m_quietLine, 4, 0, 1, 2);

    connectControls();
}

QCheckBox* SettingsPage::makeBox(const char* name, const QString& caption)
{
    auto* box = new CheckBox(caption);
    box->setObjectName(QLatin1String(name));
    return box;
}

QGroupBox* SettingsPage::makeGeneralFrame()
{
    m_chkShowGrid = makeBox("chkShowGrid", tr("Show &grid"));
    m_chkShowTodayTasksOnStart = makeBox("chkShowTodayTasksOnStart", tr("Show &today's tasks on start"));
    m_chkStartWithWin = makeBox("chkStartWithWin", tr("Start with &windows"));
    m_chkOnTop = makeBox("chkOnTop", tr("Always on to&p"));
    if (desktopPlacesWindows(QGuiApplication::platformName())) {
        m_chkOnTop->setToolTip(tr("This desktop lets no program keep its windows on top. "
                                  "The menu of a title bar may offer it."));
    }
    m_chkMinimizeOnStart = makeBox("chkMinimizeOnStart", tr("&Minimize on start"));
    m_chkShowBallon = makeBox("chkShowBallon", tr("Show tray &balloon when closed"));

    auto* frame = new QGroupBox(tr("General"));
    auto* layout = new QVBoxLayout(frame);
    for (QCheckBox* box : {m_chkShowGrid, m_chkShowTodayTasksOnStart, m_chkStartWithWin, m_chkOnTop,
             m_chkMinimizeOnStart, m_chkShowBallon}) {
        layout->addWidget(box);
    }
    layout->addStretch();
    return frame;
}

QGroupBox* SettingsPage::makeColumnsFrame()
{
    m_chkShowPeriority = makeBox("chkShowPeriority", tr("Task p&riority"));
    m_chkShowDueDate = makeBox("chkShowDueDate", tr("Task &due date"));
    m_chkShowReminder = makeBox("chkShowReminder", tr("Task r&eminder"));
    m_chkShowStatus = makeBox("chkShowStatus", tr("Task stat&us"));

    auto* frame = new QGroupBox(tr("Show Columns"));
    auto* layout = new QVBoxLayout(frame);
    for (QCheckBox* box : {m_chkShowPeriority, m_chkShowDueDate, m_chkShowReminder, m_chkShowStatus}) {
        layout->addWidget(box);
    }
    layout->addStretch();
    return frame;
}

QGroupBox* SettingsPage::makeSkinsFrame()
{
    m_cmbSkins = named(new ComboBox, "cmbSkins");
    m_cmbSkins->addItems({QStringLiteral("Aqua"), QStringLiteral("Lemon"), QStringLiteral("Classic")});
    // A long name must not widen the page.
    m_cmbSkins->keepNarrow(20);
    QLabel* currentSkin = named(labelFor(m_cmbSkins, tr("Current s&kin")), "SCLabel4");

    m_btnBrowseNewSkin = named(new QPushButton(tr("Browse")), "btnBrowseNewSkin");
    QLabel* addNewSkin = named(labelFor(m_btnBrowseNewSkin, tr("Add &new skin")), "SCLabel5");
    m_btnBrowseNewSkin->setAccessibleName(m_btnBrowseNewSkin->text());
    m_btnBrowseNewSkin->setAccessibleDescription(tr("Add new skin"));

    m_lblDownloadSkins = named(new LinkLabel(tr("Download More Skins")), "lblDownloadSkins");

    auto* frame = new QGroupBox(tr("Skins"));
    auto* layout = new QGridLayout(frame);
    layout->addWidget(currentSkin, 0, 0);
    layout->addWidget(m_cmbSkins, 0, 1);
    layout->addWidget(addNewSkin, 1, 0);
    layout->addWidget(m_btnBrowseNewSkin, 1, 1, Qt::AlignLeft);
    layout->addWidget(m_lblDownloadSkins, 2, 1, Qt::AlignLeft);
    layout->setColumnStretch(2, 1);
    return frame;
}

void SettingsPage::connectControls()
{
    ErrorReport& errors = m_services.errors;
    connectGuarded(m_cmbSkins, &QComboBox::activated, this, &SettingsPage::cmbSkins_Click, errors);
    connectGuarded(
        m_btnBrowseNewSkin, &QPushButton::clicked, this, &SettingsPage::btnBrowseNewSkin_Click, errors);
    connectGuarded(
        m_lblDownloadSkins, &LinkLabel::clicked, this, &SettingsPage::lblDownloadSkins_Click, errors);
    connectGuarded(m_btnSave, &QPushButton::clicked, this, &SettingsPage::btnSave_Click, errors);
    connect(m_btnHelpSettings, &QPushButton::clicked, this, &SettingsPage::helpRequested);
}

void SettingsPage::LoadSkinsList()
{
    // Read before the list is cleared: events run between the files and find the list as it was.
    const QStringList names = m_skins.names();
    m_cmbSkins->clear();
    m_cmbSkins->addItems(names);
    m_cmbSkins->setCurrentIndex(names.isEmpty() ? -1 : 0);
}

void SettingsPage::startSkinsList()
{
    m_listIsOwed = m_skins.isLoaded(m_record.skin);
    if (m_listIsOwed) {
        m_cmbSkins->clear();
        m_cmbSkins->addItem(m_record.skin);
    } else {
        LoadSkinsList();
    }
}

void SettingsPage::completeSkinsList()
{
    if (std::exchange(m_listIsOwed, false)) {
        LoadSkinsList();
        selectSkin();
    }
}

void SettingsPage::LoadSettingsPage()
{
    m_chkOnTop->setChecked(m_record.always_on_top);
    m_chkStartWithWin->setChecked(m_record.start_with_windows);
    m_chkMinimizeOnStart->setChecked(m_record.minimize_on_start);
    m_host.setTrayCaption(m_record.minimize_on_start ? tr("Show") : tr("Hide"));
    m_chkShowStatus->setChecked(m_record.show_task_status);
    m_chkShowDueDate->setChecked(m_record.show_task_due_date);
    m_chkShowPeriority->setChecked(m_record.show_task_periority);
    m_chkShowReminder->setChecked(m_record.show_task_reminder);
    m_chkShowTodayTasksOnStart->setChecked(m_record.show_today_tasks);
    m_chkShowGrid->setChecked(m_record.show_grid);
    m_chkShowBallon->setChecked(m_record.show_ballon_icon);
    selectSkin();
}

void SettingsPage::selectSkin()
{
    for (int i = 0; i < m_cmbSkins->count(); ++i) {
        if (m_cmbSkins->itemText(i) == m_record.skin) {
            m_cmbSkins->setCurrentIndex(i);
        }
    }
}

SettingsRecord SettingsPage::shownSettings() const
{
    SettingsRecord shown;
    shown.always_on_top = m_chkOnTop->isChecked();
    shown.start_with_windows = m_chkStartWithWin->isChecked();
    shown.minimize_on_start = m_chkMinimizeOnStart->isChecked();
    shown.skin = m_cmbSkins->currentText();
    shown.show_task_status = m_chkShowStatus->isChecked();
    shown.show_task_due_date = m_chkShowDueDate->isChecked();
    shown.show_task_periority = m_chkShowPeriority->isChecked();
    shown.show_task_reminder = m_chkShowReminder->isChecked();
    shown.show_today_tasks = m_chkShowTodayTasksOnStart->isChecked();
    shown.show_grid = m_chkShowGrid->isChecked();
    shown.show_ballon_icon = m_chkShowBallon->isChecked();
    return shown;
}

void SettingsPage::btnSave_Click()
{
    SettingsStore(m_services.engine).save(shownSettings(), m_record);
    updateRunEntry();
    if (m_skinChanged) {
        m_skins.wear(m_cmbSkins->currentText());
        m_skinChanged = false;
    }
    m_host.placeMainWindow(m_record.always_on_top);
    m_host.setGridLines(m_chkShowGrid->isChecked());
    m_host.LoadTasks();
}

void SettingsPage::updateRunEntry() const
{
    if (m_chkStartWithWin->isChecked()) {
        writeRunEntry(m_registry, m_services.engine.programFolder);
    } else {
        deleteRunEntry(m_registry);
    }
}

void SettingsPage::applySkin()
{
    m_skins.wear(m_cmbSkins->currentText(), Skins::Asked::AtStart);
}

void SettingsPage::cmbSkins_Click()
{
    m_skinChanged = true;
}

void SettingsPage::btnBrowseNewSkin_Click()
{
    m_quietLine->hush();
    FileDialogRequest request;
    request.name = QStringLiteral("cdSkinsBrowse");
    request.filter = tr("Skin Files (*.skf)|*.skf");
    request.fileMustExist = true;
    QString file;
    {
        const CheckerPause pause(m_services.checkerTimer);
        file = m_services.fileDialogs.open(window(), request);
    }
    if (file.isEmpty()) {
        return;
    }
    QString name;
    try {
        name = m_skins.add(file);
        LoadSkinsList();
    } catch (const std::exception& error) {
        m_quietLine->say(tr("The skin was not added: %1").arg(reasonOf(error)));
        return;
    }
    // The list shows its first entry now, whatever skin is worn: what is seen must be what is saved.
    m_skinChanged = true;
    m_services.messages.tell(
        window(), MessageBoxes::Icon::Information, tr("The new skin is now available in the skins list."));
    m_quietLine->say(
        tr("The skin \"%1\" was added; to wear it, choose it in the list and save the settings").arg(name));
}

void SettingsPage::lblDownloadSkins_Click()
{
    m_services.shell.openVendorPage(QStringLiteral("/ambertask_skins.htm?referer=p"));
}

bool SettingsPage::showTodayTasksChecked() const
{
    return m_chkShowTodayTasksOnStart->isChecked();
}

bool SettingsPage::showGridChecked() const
{
    return m_chkShowGrid->isChecked();
}

bool SettingsPage::showBallonChecked() const
{
    return m_chkShowBallon->isChecked();
}

bool SettingsPage::showStatusChecked() const
{
    return m_chkShowStatus->isChecked();
}

bool SettingsPage::showDueDateChecked() const
{
    return m_chkShowDueDate->isChecked();
}

bool SettingsPage::showPeriorityChecked() const
{
    return m_chkShowPeriority->isChecked();
}

bool SettingsPage::showReminderChecked() const
{
    return m_chkShowReminder->isChecked();
}

void SettingsPage::setHelpEnabled(bool enabled)
{
    m_btnHelpSettings->setEnabled(enabled);
}
