#include "data/RepeatRules.h"

#include "system/Modules.h"
#include "system/RuntimeError.h"

std::unique_ptr<RepeatRules> loadRepeatRules(Modules& modules)
{
    using Make = RepeatRules* (*)();
    const auto make = modules.resolve<Make>(QLatin1String(RepeatModule), "ambertaskMakeRepeatRules");
    if (make == nullptr) {
        throw RuntimeError(QCoreApplication::translate("RepeatRules",
            "Repeating tasks cannot go on: the module \"ambertask_repeats\" is missing from the program's "
            "folder or damaged."));
    }
    return std::unique_ptr<RepeatRules>(make());
}
