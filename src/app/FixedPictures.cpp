#include "app/FixedPictures.h"

#include "widgets/ImageList.h"
#include "widgets/SizedIcon.h"

#include <array>

namespace
{

// One name for each picture, in the order of the list.
constexpr std::array pictureNames{"00-home", "01-work", "02-shopping", "03-calendar", "04-phone", "05-mail",
    "06-finance", "07-health", "08-travel", "09-study", "10-family", "11-ideas", "12-reminder",
    "13-status-waiting", "14-status-deferred", "15-status-completed", "16-status-not-started",
    "17-status-in-progress", "18-priority-normal", "19-priority-high", "20-priority-low"};

constexpr std::array pictureSizes{16, 24, 32, 48, 64, 96};
constexpr std::array listSizes{16, 24, 32, 48};
constexpr std::array programSizes{16, 22, 24, 32, 48, 64, 128, 256};
constexpr std::array windowSizes{16, 24, 32, 48, 64, 128};
constexpr std::array logoSizes{24, 32, 48, 96};
constexpr int LogoProportion = 3;

const QLatin1String ProgramFolder(":/program");
const QLatin1String ProgramName("ambertask");

} // namespace

void appendFixedPictures(ImageList& images)
{
    for (const char* name : pictureNames) {
        images.append(sizedIcon({QLatin1String(":/image-list"), QLatin1String(name), pictureSizes}));
    }
}

QIcon repeatingIcon(bool withReminder)
{
    return sizedIcon({QLatin1String(":/list"),
        withReminder ? QLatin1String("reminder-repeating") : QLatin1String("repeating"), listSizes});
}

QIcon programIcon()
{
    return sizedIcon({ProgramFolder, ProgramName, programSizes});
}

QIcon programWindowIcon()
{
    return sizedIcon({ProgramFolder, ProgramName, windowSizes});
}

QIcon logoIcon()
{
    return sizedIcon({QLatin1String(":/logo"), QLatin1String("logo"), logoSizes, LogoProportion});
}
