#include "report/PreviewWindow.h"

#include <QPrinterInfo>

extern "C" Q_DECL_EXPORT ReportWindow* ambertaskMakeReportWindow(ReportHost& host)
{
    return new PreviewWindow(host, [] { return !QPrinterInfo::availablePrinterNames().isEmpty(); });
}
