#include "widgets/FileDialogs.h"

#include "widgets/ShownFileDialog.h"

#include <QDir>
#include <QFileInfo>

QString endingOf(const QString& nameFilter)
{
    return nameFilter.section(QLatin1String("(*."), -1).section(QLatin1String(")"), 0, 0).section(u' ', 0, 0);
}

void prepare(QFileDialog& dialog, const FileDialogRequest& request, QFileDialog::AcceptMode mode)
{
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
    if (listsAllFiles(request)) {
        // The filter for files without an extension would show an empty folder.
        dialog.selectNameFilter(filters.constLast());
    }
    if (!request.fileName.isEmpty()) {
        dialog.selectFile(request.fileName);
    }
}

QStringList nameFilters(const FileDialogRequest& request)
{
    QStringList filters;
    const QStringList parts = request.filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // The text shows the patterns in its last parentheses, for the eye; the second half is what counts.
        QString text = parts[i];
        if (const qsizetype parenthesis = text.lastIndexOf(u'('); parenthesis >= 0) {
            text.truncate(parenthesis);
        }
        const QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        filters.append(QStringLiteral("%1 (%2)").arg(text.trimmed(), patterns.join(u' ')));
    }
    if (listsAllFiles(request)) {
        filters.append(FileDialogs::tr("All Files (*)"));
    }
    return filters;
}

QString endingAsChosen(const QString& fileName, const QString& chosen, const QStringList& filters)
{
    for (const QString& filter : filters) {
        const QString ending = u'.' + endingOf(filter);
        if (fileName.endsWith(ending, Qt::CaseInsensitive)) {
            return fileName.chopped(ending.size()) + u'.' + endingOf(chosen);
        }
    }
    return fileName;
}

QString userFolder(QStandardPaths::StandardLocation place)
{
    // With a folder that does not exist the dialog would open in the current folder.
    const QString folder = QStandardPaths::writableLocation(place);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

QString ScreenFileDialogs::open(QWidget* owner, const FileDialogRequest& request)
{
    return showFileDialog(owner, request, QFileDialog::AcceptOpen);
}

QString ScreenFileDialogs::save(QWidget* owner, const FileDialogRequest& request)
{
    return showFileDialog(owner, request, QFileDialog::AcceptSave);
}
