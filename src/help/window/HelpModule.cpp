#include "help/window/CompiledHelpWindow.h"

extern "C" Q_DECL_EXPORT HelpWindow* ambertaskMakeHelpWindow(const WebPageOpener& openWebPage)
{
    return new CompiledHelpWindow(openWebPage);
}
