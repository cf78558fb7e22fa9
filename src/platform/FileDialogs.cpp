#include "platform/FileDialogs.h"

#include "platform/PlainDialogTexts.h"

#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemModel>

namespace
{

/// Pictures by what a directory entry is, never by what a file holds: reading files to picture them would
/// freeze the program on a slow or endless one.
class PlainIcons final : public QFileIconProvider
{
public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo& entry) const override { return icon(entry.isDir() ? Folder : File); }
    QString type(const QFileInfo& entry) const override
    {
        return entry.isDir() ? FileDialogs::tr("Folder") : entry.suffix();
    }
};

bool listsAll(const FileDialogRequest& request)
{
#ifdef Q_OS_WIN
    return request.anyName;
#else
    return request.anyName || request.executables;
#endif
}

/// Qt 6.4.2 now and then leaves the list of a folder empty whose entries have been read (7 of 600 dialogs,
/// more on a busy machine; cause unknown): once all are read, they are filtered again.
void filterWhatWasRead(QFileDialog& dialog)
{
    for (auto* model : dialog.findChildren<QFileSystemModel*>()) {
        QObject::connect(model, &QFileSystemModel::directoryLoaded, model,
            [model] { model->setNameFilters(model->nameFilters()); });
    }
}

QString show(QWidget* owner, const FileDialogRequest& request, QFileDialog::AcceptMode mode)
{
    const PlainDialogTexts plainTexts;
    PlainIcons icons;
    QFileDialog dialog(owner, QString(), request.initialFolder);
    dialog.setIconProvider(&icons);
    filterWhatWasRead(dialog);
    dialog.setObjectName(request.name);
    dialog.setAcceptMode(mode);
    if (mode == QFileDialog::AcceptOpen) {
        dialog.setFileMode(request.fileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    } else {
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.promptBeforeOverwriting);
    }
    const QStringList filters = nameFilters(request);
    dialog.setNameFilters(filters);
    if (listsAll(request)) {
        // The filter of what carries no extension would show an empty folder.
        dialog.selectNameFilter(filters.constLast());
    }
    if (!request.fileName.isEmpty()) {
        dialog.selectFile(request.fileName);
    }
    if (owner != nullptr && owner->window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
        dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    return dialog.selectedFiles().value(0);
}

} // namespace

QStringList nameFilters(const FileDialogRequest& request)
{
    QStringList filters;
    const QStringList parts = request.filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // The text carries the patterns for the eye in its last parentheses; the second half says which they
        // are.
        QString text = parts[i];
        if (const qsizetype parenthesis = text.lastIndexOf(u'('); parenthesis >= 0) {
            text.truncate(parenthesis);
        }
        const QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        filters.append(QStringLiteral("%1 (%2)").arg(text.trimmed(), patterns.join(u' ')));
    }
    if (listsAll(request)) {
        filters.append(FileDialogs::tr("All Files (*)"));
    }
    return filters;
}

QString userFolder(QStandardPaths::StandardLocation place)
{
    // A folder that does not exist would leave the dialog where the program was started.
    const QString folder = QStandardPaths::writableLocation(place);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

QString ScreenFileDialogs::open(QWidget* owner, const FileDialogRequest& request)
{
    return show(owner, request, QFileDialog::AcceptOpen);
}

QString ScreenFileDialogs::save(QWidget* owner, const FileDialogRequest& request)
{
    return show(owner, request, QFileDialog::AcceptSave);
}
