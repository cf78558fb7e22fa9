#include "exchange/TaskExchange.h"

extern "C" Q_DECL_EXPORT Exchange* ambertaskMakeExchange()
{
    return new TaskExchange(systemShortDate());
}
