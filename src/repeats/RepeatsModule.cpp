#include "repeats/IcalRepeatRules.h"

#include <QtGlobal>

extern "C" Q_DECL_EXPORT RepeatRules* ambertaskMakeRepeatRules()
{
    return new IcalRepeatRules;
}
