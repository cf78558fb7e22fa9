#pragma once

#include "platform/ProgramFiles.h"
#include "settings/SkinEngine.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class MessageBoxes;

/// The skins of the program, the engine that wears them, and the report of those that cannot be worn.
/// One instance in a program.
class Skins : public QObject
{
    Q_OBJECT

public:
    /// `messages` outlives this object. The engine is made on the first use.
    Skins(ProgramFiles files, MessageBoxes& messages, QObject* parent = nullptr);
    ~Skins() override;

    /// The file of the skin of that name.
    QString fileOf(const QString& name) const;
    /// The names of the skins, in the file system's order, the program folder's first; unreadable files are
    /// left out, and those that a file of the same name in the program folder takes the place of.
    /// Pending messages other than user input run between the files.
    QStringList names();
    /// Who asks for a skin: the start of the program, for the one that is stored, or the user who has chosen
    /// it just now.
    enum class Asked { AtStart, ByUser };
    /// Loads the skin of that name without applying it. False when it cannot be; what `wear` says holds.
    bool load(const QString& name, Asked asked);
    /// Whether the skin that was loaded last has that name, and so is on the list.
    bool isLoaded(const QString& name) const;
    /// All windows wear the skin that was loaded last.
    void apply();
    /// Loads and applies the skin of that name. False when it cannot be: the look stays as it was, and the
    /// user is told once, by file name, when the window of `reportOn` is on the screen. No name is no fault.
    /// That the skin lies there in a file of another name is told to the user who chooses it, at no start.
    bool wear(const QString& name, Asked asked = Asked::ByUser);
    /// Copies a skin file into the program folder, over a file of that name. The name of the skin. Throws
    /// RuntimeError for a file that is no skin, or that is not named after its skin: it could not be worn.
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
