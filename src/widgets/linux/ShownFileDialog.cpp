#include "widgets/ShownFileDialog.h"

#include "widgets/PlainDialogTexts.h"

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

} // namespace

bool listsAllFiles(const FileDialogRequest& request)
{
    return request.anyName || request.executables;
}

QString showFileDialog(QWidget* owner, const FileDialogRequest& request, QFileDialog::AcceptMode mode)
{
    const PlainDialogTexts plainTexts;
    PlainIcons icons;
    QFileDialog dialog(owner, QString(), request.initialFolder);
    dialog.setIconProvider(&icons);
    filterWhatWasRead(dialog);
    showColumnsWhole(dialog);
    prepare(dialog, request, mode);
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
