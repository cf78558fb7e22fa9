#include "report/PreviewWindow.h"
#include "widgets/printing/WindowPrinting.h"

extern "C" Q_DECL_EXPORT ReportWindow* ambertaskMakeReportWindow(ReportHost& host)
{
    return new PreviewWindow(host, hasPrinter);
}
