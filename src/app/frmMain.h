#pragma once

#include "app/RestingPage.h"
#include "app/TaskListModel.h"
#include "platform/TrayIcon.h"
#include "ui/FormServices.h"

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

/// What the main window asks of the rest of the program.
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

/// The pages of the main window, made by whoever puts the program together; the main window takes ownership.
struct MainWindowPages {
    TasksPage* tasks = nullptr;
    CategoriesPage* categories = nullptr;
    SettingsPage* settings = nullptr;
    MaintenancePage* maintenance = nullptr;
};

/// The main window: header, four pages, tray icon and tray menu. It lives until the program ends; its close
/// box only hides it (where the desktop has no notification area, it minimizes).
class frmMain : public QWidget
{
    Q_OBJECT

public:
    frmMain(const FormServices& services, const SettingsRecord& settings, MainWindowHost& host,
        MainWindowPages pages);
    ~frmMain() override;

    /// Fills the pages, applies the settings and shows the window unless it is to start hidden. Throws
    /// DatabaseError; Cancelled when the program ends meanwhile.
    void Form_Load();
    /// The settings take effect on the window.
    void ApplyChanges();
    void LoadTasks();
    void LoadCategories();
    void refresh() { LoadTasks(); }
    /// Fills the category lists of the task filter and of the maintenance page anew.
    void reloadCategoryCombos();
    /// Stores what the settings page shows and lets it take effect.
    void saveSettings();
    /// Gives the keys to the task grid, to the category list; with another page in front to that page, where
    /// they stay with the control that has them.
    void focusTaskGrid();
    void focusCategoryList();

    /// Whether the window is on the screen; minimized counts as hidden.
    bool isShown() const;
    /// Puts the pages that nobody has seen yet into the window. Until the first painting, which does not wait
    /// for them, they are styled by nothing and laid out nowhere.
    void wakePages();
    /// Puts the icon into the notification area, which takes a dozen answers of the screen's server: not
    /// before the first painting. Nothing once the program ends.
    void addTrayIcon();
    /// Shows the window, or hides it together with the dialogs. Nothing while the task dialog is open over a
    /// hidden window.
    void toggle();
    /// Topmost as the setting says.
    void place(bool topmost);
    /// Only while the window loads; afterwards the caption follows the window alone.
    void setTrayCaption(const QString& caption);
    void removeTrayIcon() { m_trayIcon.remove(); }
    /// From now on a close request is let through.
    void setEnding() { m_ending = true; }
    /// A window that is hidden while the desktop has no notification area becomes a minimized one.
    void stayReachable();

    TasksPage* tasksPage() const { return m_pages.tasks; }
    CategoriesPage* categoriesPage() const { return m_pages.categories; }
    SettingsPage* settingsPage() const { return m_pages.settings; }

signals:
    /// The window, painted before, has become the active one.
    void activated();
    /// The window has appeared on the screen for the first time.
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
    void syncTrayCaption();
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
