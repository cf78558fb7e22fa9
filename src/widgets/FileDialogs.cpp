#include "widgets/FileDialogs.h"

#include "widgets/PlainDialogTexts.h"

#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QTreeView>
#include <QUrl>

namespace
{

/// Icons by the kind of a directory entry only. Qt's own provider reads files to choose an icon, which
/// would freeze the program on a slow or endless one.
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

/// Workaround: in Qt 6.4.2 the list of a folder now and then stays empty although its entries have been
/// read (7 of 600 dialogs, more on a busy machine; the cause is unknown, so no test shows it). Setting the
/// filters again once the folder has been read fills the list.
void filterWhatWasRead(QFileDialog& dialog)
{
    for (auto* model : dialog.findChildren<QFileSystemModel*>()) {
        QObject::connect(model, &QFileSystemModel::directoryLoaded, model,
            [model] { model->setNameFilters(model->nameFilters()); });
    }
}

/// Workaround: Qt 6.4.2 sizes the columns for one format of date and size, whatever the system uses, and
/// elides other values in the middle (tst_qt_workarounds, theSizeColumnOfAFileDialogIsTooNarrow). Often only
/// size and date tell two backups apart.
void showColumnsWhole(const QFileDialog& dialog)
{
    QHeaderView* header = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    // Only visible rows count, as a folder may hold very many files.
    header->setResizeContentsPrecision(0);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
}

/// The ending of the first pattern of a name filter: "ics" of "iCalendar Files (*.ics)".
QString endingOf(const QString& nameFilter)
{
    return nameFilter.section(QLatin1String("(*."), -1).section(QLatin1String(")"), 0, 0).section(u' ', 0, 0);
}

void endAsChosen(QFileDialog& dialog)
{
    const auto follow = [&dialog](const QString& chosen) {
        dialog.setDefaultSuffix(endingOf(chosen));
        const QString named = dialog.selectedFiles().value(0);
        if (!named.isEmpty() && !QFileInfo(named).isDir()) {
            dialog.selectFile(endingAsChosen(named, chosen, dialog.nameFilters()));
        }
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    dialog.setDefaultSuffix(endingOf(dialog.selectedNameFilter()));
}

/// Offers a folder in the side bar of a dialog while it lives. Qt keeps the side bar for the next dialog of
/// any program.
class SideFolder
{
public:
    SideFolder(QFileDialog& dialog, const QString& folder)
        : m_dialog(dialog), m_place(QUrl::fromLocalFile(folder))
    {
        const QList<QUrl> places = dialog.sidebarUrls();
        m_isOurs = !folder.isEmpty() && QFileInfo(folder).isDir() && !places.contains(m_place);
        if (m_isOurs) {
            dialog.setSidebarUrls(places + QList<QUrl>{m_place});
        }
    }
    ~SideFolder()
    {
        if (m_isOurs) {
            QList<QUrl> places = m_dialog.sidebarUrls();
            places.removeAll(m_place);
            m_dialog.setSidebarUrls(places);
        }
    }
    SideFolder(const SideFolder&) = delete;
    SideFolder& operator=(const SideFolder&) = delete;

private:
    QFileDialog& m_dialog;
    QUrl m_place;
    bool m_isOurs = false;
};

QString show(QWidget* owner, const FileDialogRequest& request, QFileDialog::AcceptMode mode)
{
    const PlainDialogTexts plainTexts;
    PlainIcons icons;
    QFileDialog dialog(owner, QString(), request.initialFolder);
    dialog.setIconProvider(&icons);
    filterWhatWasRead(dialog);
    showColumnsWhole(dialog);
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
        // The filter for files without an extension would show an empty folder.
        dialog.selectNameFilter(filters.constLast());
    }
    if (!request.fileName.isEmpty()) {
        dialog.selectFile(request.fileName);
    }
    if (request.endsAsChosen) {
        endAsChosen(dialog);
    }
    if (owner != nullptr && owner->window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
        dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    const SideFolder side(dialog, request.sideFolder);
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
        // The text shows the patterns in its last parentheses, for the eye; the second half is what counts.
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
    return show(owner, request, QFileDialog::AcceptOpen);
}

QString ScreenFileDialogs::save(QWidget* owner, const FileDialogRequest& request)
{
    return show(owner, request, QFileDialog::AcceptSave);
}
