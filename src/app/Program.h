#pragma once

#include "app/frmMain.h"
#include "data/DayCopy.h"
#include "data/RepeatRules.h"
#include "data/SettingsRecord.h"
#include "data/UndoHistory.h"
#include "data/UnreadableRecords.h"
#include "exchange/Exchange.h"
#include "help/HTMLHelpViewer.h"
#include "reminders/AlertsHost.h"
#include "report/ReportWindow.h"
#include "settings/SettingsPageHost.h"
#include "settings/Skins.h"
#include "store/ForeignChanges.h"
#include "system/HelperProcess.h"
#include "system/Notifications.h"
#include "system/ProgramFiles.h"
#include "system/WaveBackend.h"
#include "tasks/TaskDetailsHost.h"
#include "widgets/CheckerTimer.h"
#include "widgets/ElidedTextTips.h"
#include "widgets/FormServices.h"
#include "widgets/ImageList.h"

#include <QObject>
#include <memory>

class FileExchange;
class Registry;
class TrayNews;
class WindowState;
class drTasks;
class frmAbout;
class frmAlerts;
class frmCategoryDetails;
class frmCopies;
class frmTaskDetails;
struct TaskFilter;

/// What the program needs of its surroundings. Nothing is owned; everything outlives the program.
struct Machine {
    const DatabaseEngine& engine;
    MessageBoxes& messages;
    FileDialogs& fileDialogs;
    ErrorReport& errors;
    Shell& shell;
    Registry& registry;
    WaveBackendFactory waveBackend;
    /// Whether the desktop has a notification area now.
    std::function<bool()> hasNotificationArea;
    HelpWindowFactory helpWindow;
    ReportWindowFactory reportWindow;
    ExchangeFactory exchange = {};
    /// The program that reads pictures; without one they are read between events.
    ProgramPath pictureReader = {};
    /// The folder of shipped skins, sounds and help; empty where they are in the program folder.
    QString shippedFolder = {};
    /// The file for what the user has arranged in the main window; empty to keep nothing.
    QString stateFile = {};
    /// Where the alert window cannot come up by itself.
    NotificationsFactory notifications = {};
};

/// The program: the one instance of each form and of what they share, and their connections. Interface
/// thread only.
class Program final : public QObject,
                      private MainWindowHost,
                      private TaskDetailsHost,
                      private AlertsHost,
                      private SettingsPageHost,
                      private CheckerTimer
{
    Q_OBJECT

public:
    explicit Program(const Machine& machine);
    ~Program() override;

    /// Reads the settings, applies the skin and loads the main window. Calls `noteFirstStart` once the
    /// settings are read; when it answers true, registers the program with the session. Throws
    /// RuntimeError.
    void start(const std::function<bool()>& noteFirstStart);
    /// Removes the tray icon and leaves all event loops, which cancels open boxes.
    void end();
    /// `end()` has been called.
    bool isEnding() const { return m_ending; }
    /// Unloads the forms in their order. To be called after `end()`, outside of every handler.
    void unload();

    /// Loads the task dialog, the category dialog and the alert window in this order, without showing them;
    /// does nothing for those that are loaded.
    void loadDialogs();

    frmMain& mainWindow() { return *m_main; }
    frmTaskDetails& taskDetails();
    frmCategoryDetails& categoryDetails();
    frmAlerts& alerts();
    drTasks& report();

signals:
    void endRequested();

private:
    void makeMainWindow();
    void onFirstPainted();
    void tellUnreadablePictures();
    void onPictureCame();
    /// What is late, due and today follows the ticks of the alert window, and so does what other processes
    /// change in the data file.
    void followTime();
    void followOthers();

    /// The loaded windows that may be open beside the main window, dialogs with input aside.
    QList<QWidget*> windowsBeside() const;
    FileExchange& exchange();
    void exportTasks();
    void importTasks();
    void connectHelp(const MainWindowPages& pages);
    void showAbout();
    void showCopies();
    void addTask(qint16 category);
    void editTask(qint16 id);
    void printTasks(const TaskFilter& filter, const ShownTasks& shown);
    void onTaskStored();
    void onTaskSaved(qint32 id);
    void onTaskCancelled();
    void onCategoryStored();
    void onCategorySaved();
    void onCategoriesChanged();
    void onDataRestored();
    /// Rows have been changed that any list may show.
    void onDataChanged();
    /// Tasks are gone by another way than the list's.
    void onTasksDeleted();
    /// An open alert shows at once what the main window has done to tasks.
    void onTasksChanged();
    /// As a tick does.
    void checkOpenAlert();
    /// After a restore the ids that windows remember mean other records: an open dialog keeps its input and
    /// stores it as a new record, the alert empties its list and the next tick fills it, the report saves
    /// none of its tasks.
    void forgetRecords();
    /// Names the records that lists have left out since the last call, once the main window has been seen.
    void tellUnreadableRecords();
    /// Says at the foot of the page in front, behind what the present change says there, that no copy was
    /// kept.
    void tellNoCopy(const QString& why);
    /// The window on which the user is waiting; null when none is on the screen.
    QWidget* waitingWindow() const;
    void reloadCategoryCombos();
    void focusCategoryList();

    // MainWindowHost
    bool isTaskDialogVisible() const override;
    void hideDialogs() override;
    bool hasNotificationArea() const override;
    // TaskDetailsHost
    int selectedCategoryIndex() const override;
    // AlertsHost
    void openTask(qint16 id) override;
    // SettingsPageHost
    void setTrayCaption(const QString& caption) override;
    void placeMainWindow(bool topmost) override;
    void setGridLines(bool shown) override;
    void LoadTasks() override;
    // CheckerTimer
    void setCheckerEnabled(bool enabled) override;

    Machine m_machine;
    UnreadableRecords m_unreadable;
    ForeignChanges m_foreign;
    Repeating m_repeating;
    /// A copy of the machine's, with the listener for unreadable records, the keeper of copies, the watch for
    /// changes of others and what repeats.
    DatabaseEngine m_engine;
    DayCopy m_dayCopy;
    ProgramFiles m_files;
    ImageList m_images;
    SettingsRecord m_settings;
    UndoHistory m_undo;
    FormServices m_services;
    Skins m_skins;
    ElidedTextTips m_tips;
    HTMLHelpViewer m_helpViewer;
    std::unique_ptr<frmMain> m_main;
    std::unique_ptr<WindowState> m_windowState; ///< of the main window
    std::unique_ptr<frmTaskDetails> m_taskDetails;
    std::unique_ptr<frmCategoryDetails> m_categoryDetails;
    std::unique_ptr<frmAlerts> m_alerts;
    std::unique_ptr<TrayNews> m_trayNews;
    std::unique_ptr<frmAbout> m_about;
    std::unique_ptr<frmCopies> m_copies;
    std::unique_ptr<drTasks> m_report;
    std::unique_ptr<FileExchange> m_exchange;
    bool m_hasBeenSeen = false;
    bool m_dialogsLoaded = false;
    bool m_taskDialogHasKeyboard = false; ///< when its task was stored
    bool m_ending = false;
};
