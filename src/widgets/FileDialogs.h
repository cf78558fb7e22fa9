#pragma once

#include <QCoreApplication>
#include <QStandardPaths>
#include <QStringList>

class QWidget;

/// What a file dialog is asked to show.
struct FileDialogRequest {
    QString name; ///< objectName of the dialog
    QString fileName; ///< proposed name; empty for none
    QString filter; ///< entries "text|pattern;pattern", separated by "|"
    QString initialFolder; ///< empty for the dialog's own choice
    QString sideFolder; ///< offered in the side bar, beside the user's places, if it exists; empty for none
    bool fileMustExist = false;
    bool promptBeforeOverwriting = false;
    /// Adds "All Files (*)" and selects it where programs have no extension.
    bool executables = false;
    /// Adds "All Files (*)" and selects it: the files may have been saved without the extension.
    bool anyName = false;
    /// The name to save under gets the ending of the chosen filter: while the user has typed none, and
    /// instead of another filter's.
    bool endsAsChosen = false;
};

/// The name filters of a filter text, in Qt's form: "Wave Files (*.wav)|*.wav" gives "Wave Files
/// (*.wav)".
QStringList nameFilters(const FileDialogRequest& request);
/// `fileName` with the first ending of the name filter `chosen` instead of one of another of `filters`.
QString endingAsChosen(const QString& fileName, const QString& chosen, const QStringList& filters);

/// The user's folder for files of that kind; the home folder where there is none.
QString userFolder(QStandardPaths::StandardLocation place);

/// The file dialogs of the program, modal to it.
class FileDialogs
{
    Q_DECLARE_TR_FUNCTIONS(FileDialogs)

public:
    FileDialogs() = default;
    virtual ~FileDialogs() = default;
    FileDialogs(const FileDialogs&) = delete;
    FileDialogs& operator=(const FileDialogs&) = delete;

    /// The chosen file; empty when the dialog was cancelled.
    virtual QString open(QWidget* owner, const FileDialogRequest& request) = 0;
    virtual QString save(QWidget* owner, const FileDialogRequest& request) = 0;
};

/// The file dialogs on the screen.
class ScreenFileDialogs final : public FileDialogs
{
public:
    QString open(QWidget* owner, const FileDialogRequest& request) override;
    QString save(QWidget* owner, const FileDialogRequest& request) override;
};
