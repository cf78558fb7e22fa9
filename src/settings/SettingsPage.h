#pragma once

#include "settings/SettingsRecord.h"

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

/// The page "Settings". Its controls are a working copy of the settings record: nothing takes effect until it
/// is saved, except that the main window asks some of the boxes directly.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    /// None of the arguments is owned; all of them outlive the page.
    SettingsPage(const FormServices& services, SettingsRecord& record, Registry& registry, Skins& skins,
        SettingsPageHost& host, QWidget* parent = nullptr);

    /// Fills the list of skins from the folder and selects the first.
    void LoadSkinsList();
    /// The same at a start. While the stored skin is the one that is loaded, the list holds it alone until
    /// `completeSkinsList`: nobody sees the others before the first painting.
    void startSkinsList();
    void completeSkinsList();
    /// Copies the record into the controls.
    void LoadSettingsPage();
    /// Stores what the page shows and lets it take effect. Throws DatabaseError.
    void btnSave_Click();
    /// Wears the skin that the list shows when the program starts.
    void applySkin();

    // What the boxes say, saved or not.
    bool showTodayTasksChecked() const;
    bool showGridChecked() const;
    bool showBallonChecked() const;
    bool showStatusChecked() const;
    bool showDueDateChecked() const;
    bool showPeriorityChecked() const;
    bool showReminderChecked() const;

    /// The help button is disabled until there is a help to open.
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
    /// Another skin was chosen, or the list was rebuilt, and what it shows was not saved yet.
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
