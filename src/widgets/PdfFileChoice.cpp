#include "widgets/PdfFileChoice.h"

#include "widgets/CheckerTimer.h"
#include "widgets/FileDialogs.h"
#include "widgets/FormServices.h"
#include "widgets/MessageBoxes.h"

#include <QCoreApplication>
#include <QFileInfo>

QString choosePdfFile(const FormServices& services, QWidget* owner, const QString& name)
{
    const CheckerPause pause(services.checkerTimer);
    FileDialogRequest request;
    request.filter = QCoreApplication::translate("PdfFileChoice", "PDF Files (*.pdf)|*.pdf");
    request.fileName = name;
    request.initialFolder = userFolder(QStandardPaths::DocumentsLocation);
    request.promptBeforeOverwriting = true;
    QString file = services.fileDialogs.save(owner, request);
    if (file.isEmpty() || !QFileInfo(file).suffix().isEmpty()) {
        return file;
    }
    file += QStringLiteral(".pdf");
    // The dialog has asked about the name before the ending was added.
    const bool replaces = QFileInfo::exists(file);
    const QString question =
        QCoreApplication::translate("PdfFileChoice", "\"%1\" already exists. Do you want to replace it?")
            .arg(file);
    return !replaces || services.messages.ask(owner, question) ? file : QString();
}
