#include "categories/frmCategoryDetails.h"
#include "reliability/AgreeableUser.h"
#include "reliability/DataFileState.h"
#include "reliability/Sweep.h"
#include "settings/MaintenancePage.h"
#include "settings/SettingsPageUnderTest.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "system/Registry.h"
#include "tasks/TaskDetailsHost.h"
#include "tasks/frmTaskDetails.h"
#include "widgets/ControlValue.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <filesystem>

namespace
{

using namespace std::chrono_literals;

void require(bool holds, const char* what)
{
    if (!holds) {
        throw std::logic_error(what);
    }
}

template <typename Control> Control* find(const QWidget& form, const char* name)
{
    auto* found = form.findChild<Control*>(QLatin1String(name));
    require(found != nullptr, name);
    return found;
}

/// What all controls of the form show.
QStringList inputOf(const QWidget& form)
{
    QStringList values;
    for (QWidget* control : form.findChildren<QWidget*>()) {
        if (!control->objectName().isEmpty() && !control->objectName().startsWith(QLatin1String("qt_"))) {
            values.append(control->objectName() + u'=' + valueOf(control));
        }
    }
    return values;
}

std::string stateIn(const std::string& folder)
{
    return dataFileState(folder);
}

class NoOtherWindows final : public TaskDetailsHost
{
public:
    int selectedCategoryIndex() const override { return 0; }
};

/// A dialog whose OK is pressed, with the number of times it told the other windows of it.
template <typename Form> struct PressedForm {
    QString name() const { return form->objectName(); }
    /// Presses OK. After an error the dialog has to stay as it was; without one it is gone.
    Told press(AgreeableUser& user)
    {
        const qsizetype errors = user.errors.size();
        const QStringList input = inputOf(*form);
        saved = 0;
        find<QAbstractButton>(*form, "btnOk")->click();
        require(user.errors.size() <= errors + 1, "one failure was reported twice");
        if (user.errors.size() == errors) {
            require(!form->isVisible() && saved == 1, "the dialog did not end");
            return Told::Success;
        }
        require(form->isVisible() && saved == 0, "the dialog ended on an error");
        require(inputOf(*form) == input, "the input changed on an error");
        require(!user.errors.last().isEmpty(), "an error without a text");
        return Told::Failure;
    }

    std::unique_ptr<Form> form;
    int saved = 0;
};

struct TaskForm : PressedForm<frmTaskDetails> {
    void make(const FormServices& services)
    {
        form = std::make_unique<frmTaskDetails>(services, host);
        QObject::connect(form.get(), &frmTaskDetails::taskSaved, form.get(), [this] { ++saved; });
    }
    void enter() const
    {
        find<QLineEdit>(*form, "txtTask")->setText(QStringLiteral("Bob's call"));
        find<QPlainTextEdit>(*form, "txtDescription")->setPlainText(QStringLiteral("Two\nlines"));
        find<QComboBox>(*form, "cmbCategories")->setCurrentIndex(1);
        find<QComboBox>(*form, "cmbStatus")->setCurrentIndex(3);
        form->show();
    }
    NoOtherWindows host;
};

struct CategoryForm : PressedForm<frmCategoryDetails> {
    void make(const FormServices& services)
    {
        form = std::make_unique<frmCategoryDetails>(services, [] { return 0.5; });
        QObject::connect(form.get(), &frmCategoryDetails::categorySaved, form.get(), [this] { ++saved; });
    }
};

} // namespace

class TestFormFaults : public TestCase
{
    Q_OBJECT

private slots:
    void aNewTaskKeepsItsInputUntilItIsStored();
    void anEditedTaskKeepsItsInputUntilItIsStored();
    void aNewCategoryKeepsItsInputUntilItIsStored();
    void aNewCategoryIsNeverStoredWithoutItsPicture();
    void anEditedCategoryKeepsItsInputUntilItIsStored();
    void theSettingsPageKeepsItsInputUntilItIsStored();
    void theMaintenancePageDeletesAllTasksOrNone();
    void theMaintenancePageBacksUpAndLetsTheCheckerRun();
    void theMaintenancePageRestoresAndLetsTheCheckerRun();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    void trySweep(const TestServices& services, Operation operation)
    {
        Sweep sweep(services.database.folder().toStdString(), std::move(operation));
        sweep.everyFault();
        m_all += sweep.figures();
        qInfo("%s", qPrintable(sweep.figures().text()));
        QVERIFY2(sweep.complaints().isEmpty(), qPrintable(sweep.complaints()));
    }

    Sweep::Figures m_all;
};

void TestFormFaults::aNewTaskKeepsItsInputUntilItIsStored()
{
    AgreeableServices services;
    TaskForm task;
    trySweep(services,
        {[&] { return task.press(services.user); }, stateIn,
            [&] {
                task.make(services.faced);
                task.form->EmptyForm();
                task.enter();
            }});
}

void TestFormFaults::anEditedTaskKeepsItsInputUntilItIsStored()
{
    AgreeableServices services;
    const auto id = static_cast<qint16>(aTask(services.database).add());
    TaskForm task;
    trySweep(services,
        {[&] {
             const Told said = task.press(services.user);
             require(task.form->tag() == QString::number(id), "the dialog forgot its task");
             return said;
         },
            stateIn,
            [&] {
                task.make(services.faced);
                task.form->SetTag(id);
                task.enter();
            }});
}

void TestFormFaults::aNewCategoryKeepsItsInputUntilItIsStored()
{
    AgreeableServices services;
    CategoryForm category;
    trySweep(services,
        {[&] { return category.press(services.user); }, stateIn,
            [&] {
                category.make(services.faced);
                find<QLineEdit>(*category.form, "txtCatName")->setText(QStringLiteral("Garden"));
                category.form->SelectIcon(7);
                category.form->show();
            }});
}

void TestFormFaults::aNewCategoryIsNeverStoredWithoutItsPicture()
{
    AgreeableServices services;
    const QTemporaryDir pictures;
    const QByteArray picture = gifOf(QSize(24, 24));
    services.user.file = writeFile(pictures.path(), QStringLiteral("p.gif"), picture);
    CategoryForm category;
    const auto run = [&] {
        return category.press(services.user);
    };
    const auto stateWith = [&](const std::string& folder, bool needsPicture) {
        const std::string state = dataFileState(folder);
        const std::string stored = folder + "/custom icons/icon500000.gif";
        const bool isThere = std::filesystem::exists(stored);
        require(!isThere || bytesOf(QString::fromStdString(stored)) == picture, "half a picture");
        require(isThere || !needsPicture || state.find("icon500000.gif") == std::string::npos,
            "a category without its picture");
        return state;
    };
    const auto prepare = [&] {
        category.make(services.faced);
        find<QLineEdit>(*category.form, "txtCatName")->setText(QStringLiteral("Garden"));
        find<QRadioButton>(*category.form, "opnCustomIcon")->click();
        find<QAbstractButton>(*category.form, "btnBrowse")->click();
        category.form->show();
    };
    // Where the folder of the pictures cannot be flushed, a power cut may take the picture.
    trySweep(services,
        {run, [&](const std::string& folder) { return stateWith(folder, false); }, prepare,
            [&] {
                stateWith(services.database.folder().toStdString(), true);
            }});
    Sweep sweep(services.database.folder().toStdString(),
        {run, [&](const std::string& folder) { return stateWith(folder, true); }, prepare});
    sweep.everyPowerCut(4 * sweeps());
    QVERIFY2(sweep.complaints().isEmpty(), qPrintable(sweep.complaints()));
    m_all += sweep.figures();
}

void TestFormFaults::anEditedCategoryKeepsItsInputUntilItIsStored()
{
    AgreeableServices services;
    CategoryForm category;
    trySweep(services,
        {[&] { return category.press(services.user); }, stateIn,
            [&] {
                category.make(services.faced);
                category.form->SetTag(QStringLiteral("2"));
                find<QPlainTextEdit>(*category.form, "txtCatDesc")->setPlainText(QStringLiteral("new"));
                category.form->show();
            }});
}

void TestFormFaults::theSettingsPageKeepsItsInputUntilItIsStored()
{
    AgreeableServices services;
    copySkins(services.database.folder(), {QStringLiteral("Aqua"), QStringLiteral("Lemon")});
    SettingsRecord record;
    MemoryRegistry registry;
    Skins skins(services.files, services.user);
    RecordedMainWindow host(record);
    std::unique_ptr<SettingsPage> page;
    const auto save = [&] {
        const qsizetype errors = services.user.errors.size();
        const QStringList input = inputOf(*page);
        host.calls.clear();
        find<QAbstractButton>(*page, "btnSave")->click();
        require(inputOf(*page) == input, "the input changed");
        if (services.user.errors.size() == errors) {
            require(record.always_on_top && record.skin == QLatin1String("Lemon"), "the record is not new");
            require(host.calls.endsWith(QStringLiteral("LoadTasks")), "the settings are not in effect");
            return Told::Success;
        }
        require(services.user.errors.size() == errors + 1, "one failure was reported twice");
        require(!record.always_on_top && record.skin == QLatin1String("Aqua"), "the record is not old");
        require(host.calls.isEmpty() && registry.isEmpty(), "settings that are not stored are in effect");
        return Told::Failure;
    };
    trySweep(services,
        {save, stateIn, [&] {
             registry.deleteValue(RegistryValues::LocalMachine, QLatin1String(RunKeyPath), "Ambertask");
             record = SettingsRecord();
             record.skin = QStringLiteral("Aqua");
             page = std::make_unique<SettingsPage>(services.faced, record, registry, skins, host);
             page->LoadSkinsList();
             page->LoadSettingsPage();
             find<QCheckBox>(*page, "chkOnTop")->setChecked(true);
             find<QCheckBox>(*page, "chkStartWithWin")->setChecked(true);
             find<QComboBox>(*page, "cmbSkins")->setCurrentText(QStringLiteral("Lemon"));
         }});
}

void TestFormFaults::theMaintenancePageDeletesAllTasksOrNone()
{
    AgreeableServices services;
    for (int i = 0; i < 5; ++i) {
        aTask(services.database).add();
    }
    std::unique_ptr<MaintenancePage> page;
    int deleted = 0;
    trySweep(services,
        {[&] {
             const qsizetype errors = services.user.errors.size();
             deleted = 0;
             find<QAbstractButton>(*page, "btnDeleteTasksMaintenance")->click();
             const bool failed = services.user.errors.size() > errors;
             require(deleted == (failed ? 0 : 1), "the other windows were told wrongly");
             return failed ? Told::Failure : Told::Success;
         },
            stateIn,
            [&] {
                page = std::make_unique<MaintenancePage>(services.faced);
                connect(page.get(), &MaintenancePage::tasksDeleted, page.get(), [&] { ++deleted; });
                page->prepareFilters();
            }});
}

void TestFormFaults::theMaintenancePageBacksUpAndLetsTheCheckerRun()
{
    AgreeableServices services;
    services.user.file = services.database.folder() + QStringLiteral("/b.abk");
    std::unique_ptr<MaintenancePage> page;
    trySweep(services,
        {[&] {
             find<QAbstractButton>(*page, "btnBackup")->click();
             require(services.checkerTimer.enabled, "the checker stands still");
             require(services.user.errors.isEmpty() && services.user.told.isEmpty(), "something was said");
             return Told::Nothing;
         },
            [](const std::string& folder) {
                const bool isThere = std::filesystem::exists(folder + "/b.abk");
                return dataFileState(folder) + (isThere ? dataFileState(folder, "b.abk") : "none");
            },
            [&] {
                page = std::make_unique<MaintenancePage>(services.faced);
            }});
}

void TestFormFaults::theMaintenancePageRestoresAndLetsTheCheckerRun()
{
    AgreeableServices services;
    services.user.file = services.database.folder() + QStringLiteral("/b.abk");
    QVERIFY(QFile::copy(services.database.dataFile(), services.user.file));
    aTask(services.database).add();
    std::unique_ptr<MaintenancePage> page;
    int restored = 0;
    trySweep(services,
        {[&] {
             restored = 0;
             find<QAbstractButton>(*page, "btnRestore")->click();
             require(services.checkerTimer.enabled, "the checker stands still");
             require(services.user.errors.isEmpty() && services.user.told.isEmpty(), "something was said");
             // Nobody is told, but everything that is shown is read anew.
             return restored == 1 ? Told::Success : Told::Failure;
         },
            stateIn,
            [&] {
                page = std::make_unique<MaintenancePage>(services.faced);
                connect(page.get(), &MaintenancePage::dataRestored, page.get(), [&] { ++restored; });
            }});
}

AMBERTASK_TEST_MAIN(TestFormFaults)
#include "tst_form_faults.moc"
