#pragma once

#include "settings/SkinEngine.h"
#include "system/ProgramFiles.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class MessageBoxes;

/// The skins of the program, the engine that applies them, and the report of those that cannot be applied.
/// One instance in a program.
class Skins : public QObject
{
    Q_OBJECT

public:
    /// `messages` outlives this object. The engine is made on first use.
    Skins(ProgramFiles files, MessageBoxes& messages, QObject* parent = nullptr);
    ~Skins() override;

    /// The file of the skin of that name.
    QString fileOf(const QString& name) const;
    /// The names of the skins in the file system's order, those in the program folder first. Unreadable
    /// files are left out, and so are shipped skins that a file of the same name in the program folder
    /// replaces. Pending events other than user input are handled between the files.
    QStringList names();
    /// Who asks for a skin: the start of the program, for the stored one, or the user, who has just chosen
    /// it.
    enum class Asked { AtStart, ByUser };
    /// Loads the skin of that name without applying it. False when that fails; reports as `wear` does.
    bool load(const QString& name, Asked asked);
    /// Whether the skin loaded last has that name, and so is on the list.
    bool isLoaded(const QString& name) const;
    /// Applies the skin loaded last to all windows.
    void apply();
    /// Loads and applies the skin of that name. False when that fails: the look stays, and the user is told
    /// once, by file name, when the window of `reportOn` is on the screen. An empty name is not a failure.
    /// That the skin is in a file of another name is told only to a user who chooses it, not at a start.
    bool wear(const QString& name, Asked asked = Asked::ByUser);
    /// Copies a skin file into the program folder, replacing a file of that name, and returns the skin's
    /// name. Throws RuntimeError for a file that is no skin or is not named after its skin and so could not
    /// be loaded.
    QString add(const QString& file) const;
    /// The window over which the reports are shown; not owned.
    void reportOn(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    SkinEngine& engine();
    QString otherFileOf(const QString& name);
    void noteUnreadable(const QString& fileName, const QString& why);
    void reportSoon();
    void reportPending();

    ProgramFiles m_files;
    MessageBoxes& m_messages;
    std::unique_ptr<SkinEngine> m_engine;
    QPointer<QWidget> m_window;
    QStringList m_pending;
    QStringList m_reported;
    bool m_reporting = false;
};
