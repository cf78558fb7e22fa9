#pragma once

#include "app/RestingPage.h"
#include "app/TaskListModel.h"
#include "widgets/FormServices.h"
#include "widgets/TrayIcon.h"

#include <QWidget>
#include <vector>

class CategoriesPage;
class MaintenancePage;
class QAction;
class QMenu;
class QTabWidget;
class SettingsPage;
class TasksPage;
struct SettingsRecord;

/// What the main window needs from the rest of the program.
class MainWindowHost
{
public:
    MainWindowHost() = default;
    virtual ~MainWindowHost() = default;
    MainWindowHost(const MainWindowHost&) = delete;
    MainWindowHost& operator=(const MainWindowHost&) = delete;

    virtual bool isTaskDialogVisible() const = 0;
    /// Makes the task dialog and the category dialog invisible.
    virtual void hideDialogs() = 0;
    /// Whether the desktop has a notification area now.
    virtual bool hasNotificationArea() const = 0;
};

/// The pages of the main window, made by the composition root; the main window takes ownership.
struct MainWindowPages {
    TasksPage* tasks = nullptr;
    CategoriesPage* categories = nullptr;
    SettingsPage* settings = nullptr;
    MaintenancePage* maintenance = nullptr;
};

/// The main window: header, four pages, tray icon and tray menu. It lives until the program ends. Its close
/// box hides it, or minimizes it where the desktop has no notification area.
class frmMain : public QWidget
{
    Q_OBJECT

public:
    frmMain(const FormServices& services, const SettingsRecord& settings, MainWindowHost& host,
        MainWindowPages pages);
    ~frmMain() override;

    /// Fills the pages, applies the settings and shows the window unless it is to start hidden. Throws
    /// DatabaseError, and Cancelled when the program ends meanwhile.
    void Form_Load();
    /// Applies the settings to the window.
    void ApplyChanges();
    void LoadTasks();
    void LoadCategories();
    void refresh() { LoadTasks(); }
    /// Reloads the category lists of the task filter and of the maintenance page.
    void reloadCategoryCombos();
    /// Stores the content of the settings page and applies it.
    void saveSettings();
    /// Give the keyboard focus to the task list, to the category list. If another page is in front, that
    /// page gets it, where the control that has it keeps it.
    void focusTaskGrid();
    void focusCategoryList();

    /// Whether the window is on the screen; minimized counts as hidden.
    bool isShown() const { return isVisible() && !isMinimized(); }
    /// Puts the pages that have not been seen yet into the window. The first painting does not wait for
    /// them; until then they are neither styled nor laid out.
    void wakePages();
    /// Shows the icon in the notification area, which takes a dozen round trips to the X server: not before
    /// the first painting. Does nothing once the program ends.
    void addTrayIcon();
    /// Shows the window, or hides it together with the dialogs. Does nothing while the task dialog is open
    /// over a hidden window.
    void toggle();
    /// Makes the window topmost or ends that state.
    void place(bool topmost);
    /// Has an effect only while the window loads; afterwards the caption follows the window.
    void setTrayCaption(const QString& caption);
    TrayIcon& trayIcon() { return m_trayIcon; }
    void removeTrayIcon() { m_trayIcon.remove(); }
    /// From now on the window accepts close requests.
    void setEnding() { m_ending = true; }
    /// Minimizes a window that is hidden while the desktop has no notification area.
    void stayReachable();

    QTabWidget& tabs() const { return *m_tabs; }
    TasksPage* tasksPage() const { return m_pages.tasks; }
    CategoriesPage* categoriesPage() const { return m_pages.categories; }
    MaintenancePage* maintenancePage() const { return m_pages.maintenance; }
    SettingsPage* settingsPage() const { return m_pages.settings; }

signals:
    /// The window was activated after its first painting.
    void activated();
    /// The window was painted for the first time.
    void firstPainted();
    /// "About" was chosen.
    void aboutRequested();
    /// "Help" was chosen or F1 pressed.
    void helpRequested();
    /// "Exit" was chosen.
    void exitRequested();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void fillPages();
    void wakePage(int page);
    void tabMain_Switch(int page);
    void mnuFeedBack_Click();
    void header_Click();
    void header_Menu(const QPoint& place, bool byKeys);
    void focusListOf(int page);
    void focusPage();
    void hideWindow();
    void showWindow();
    void syncTrayCaption(bool shown);
    QWidget* makeHeader();
    QMenu* makeTrayMenu();

    const FormServices& m_services;
    const SettingsRecord& m_settings;
    MainWindowHost& m_host;
    MainWindowPages m_pages;
    QTabWidget* m_tabs = nullptr;
    std::vector<RestingPage> m_resting;
    QMenu* m_trayMenu = nullptr;
    QAction* m_mnuShow = nullptr;
    TrayIcon m_trayIcon;
    bool m_loaded = false;
    bool m_ending = false;
    bool m_painted = false;
};
