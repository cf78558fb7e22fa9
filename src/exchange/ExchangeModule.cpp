#include "exchange/TaskExchange.h"
#include "system/Language.h"

extern "C" Q_DECL_EXPORT Exchange* ambertaskMakeExchange()
{
    return new TaskExchange(shortDateFormat());
}
