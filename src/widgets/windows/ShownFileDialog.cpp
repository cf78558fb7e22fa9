#include "widgets/ShownFileDialog.h"

// The dialogs are the system's: they have its places, columns and icons, and look after a name's ending.

namespace
{

void endAsChosen(QFileDialog& dialog)
{
    const auto follow = [&dialog](const QString& chosen) {
        dialog.setDefaultSuffix(endingOf(chosen));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    follow(dialog.selectedNameFilter());
}

} // namespace

bool listsAllFiles(const FileDialogRequest& request)
{
    // Programs have an extension.
    return request.anyName;
}

QString showFileDialog(QWidget* owner, const FileDialogRequest& request, QFileDialog::AcceptMode mode)
{
    QFileDialog dialog(owner, QString(), request.initialFolder);
    prepare(dialog, request, mode);
    if (request.endsAsChosen) {
        endAsChosen(dialog);
    }
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
