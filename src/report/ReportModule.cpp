#include "platform/printing/WindowPrinting.h"
#include "report/PreviewWindow.h"

extern "C" Q_DECL_EXPORT ReportWindow* ambertaskMakeReportWindow(ReportHost& host)
{
    return new PreviewWindow(host, hasPrinter);
}
