#include "help/window/CompiledHelpWindow.h"
#include "widgets/printing/WindowPrinting.h"

extern "C" Q_DECL_EXPORT HelpWindow* ambertaskMakeHelpWindow(HelpHost& host)
{
    return new CompiledHelpWindow(host, hasPrinter);
}
