#pragma once

#include "data/SettingsRecord.h"

#include <QWidget>

class ComboBox;
class QCheckBox;
class QGroupBox;
class QPushButton;
class QuietLine;
class LinkLabel;
class Registry;
class SettingsPageHost;
class Skins;
struct FormServices;

/// The page "Settings". Its controls are a working copy of the settings record: nothing takes effect until
/// it is saved, except that the main window reads some of the boxes directly.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    /// None of the arguments is owned; all of them outlive the page.
    SettingsPage(const FormServices& services, SettingsRecord& record, Registry& registry, Skins& skins,
        SettingsPageHost& host, QWidget* parent = nullptr);

    /// Fills the list of skins from the folders and selects the first.
    void LoadSkinsList();
    /// The same during a start: if the stored skin is loaded, lists only that one until
    /// `completeSkinsList`, as nobody sees the others before the first painting. If it cannot be loaded all
    /// files are read at once, and the first of the list is applied.
    void startSkinsList();
    void completeSkinsList();
    /// Copies the settings record into the controls.
    void LoadSettingsPage();
    /// Stores the content of the page and applies it. Throws DatabaseError.
    void btnSave_Click();
    /// During a start, applies the skin that the list shows.
    void applySkin();

    // The state of the boxes, saved or not.
    bool showTodayTasksChecked() const;
    bool showGridChecked() const;
    bool showBallonChecked() const;
    bool showStatusChecked() const;
    bool showDueDateChecked() const;
    bool showPeriorityChecked() const;
    bool showReminderChecked() const;

    /// Enables the help button, which is disabled at first.
    void setHelpEnabled(bool enabled);

signals:
    void helpRequested();

private:
    QGroupBox* makeGeneralFrame();
    QGroupBox* makeColumnsFrame();
    QGroupBox* makeSkinsFrame();
    QCheckBox* makeBox(const char* name, const QString& caption);
    void connectControls();

    void cmbSkins_Click();
    void btnBrowseNewSkin_Click();
    void lblDownloadSkins_Click();

    void selectSkin();
    SettingsRecord shownSettings() const;
    void updateRunEntry() const;

    const FormServices& m_services;
    SettingsRecord& m_record;
    Registry& m_registry;
    Skins& m_skins;
    SettingsPageHost& m_host;
    /// Another skin was chosen or the list was rebuilt, and the selection has not been saved yet.
    bool m_skinChanged = false;
    bool m_listIsOwed = false;

    QCheckBox* m_chkShowGrid = nullptr;
    QCheckBox* m_chkShowTodayTasksOnStart = nullptr;
    QCheckBox* m_chkStartWithWin = nullptr;
    QCheckBox* m_chkOnTop = nullptr;
    QCheckBox* m_chkMinimizeOnStart = nullptr;
    QCheckBox* m_chkShowBallon = nullptr;
    QCheckBox* m_chkShowPeriority = nullptr;
    QCheckBox* m_chkShowDueDate = nullptr;
    QCheckBox* m_chkShowReminder = nullptr;
    QCheckBox* m_chkShowStatus = nullptr;
    ComboBox* m_cmbSkins = nullptr;
    QPushButton* m_btnBrowseNewSkin = nullptr;
    LinkLabel* m_lblDownloadSkins = nullptr;
    QPushButton* m_btnSave = nullptr;
    QPushButton* m_btnHelpSettings = nullptr;
    QuietLine* m_quietLine = nullptr;
};
