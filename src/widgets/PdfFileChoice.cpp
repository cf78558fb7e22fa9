#include "widgets/PdfFileChoice.h"

#include "widgets/CheckerTimer.h"
#include "widgets/FileDialogs.h"
#include "widgets/FormServices.h"

#include <QCoreApplication>

QString choosePdfFile(const FormServices& services, QWidget* owner, const QString& name)
{
    const CheckerPause pause(services.checkerTimer);
    FileDialogRequest request;
    request.filter = QCoreApplication::translate("PdfFileChoice", "PDF Files (*.pdf)|*.pdf");
    request.fileName = name;
    request.initialFolder = userFolder(QStandardPaths::DocumentsLocation);
    request.promptBeforeOverwriting = true;
    request.endsAsChosen = true;
    return services.fileDialogs.save(owner, request);
}
