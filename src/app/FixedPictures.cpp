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

constexpr int LogoProportion = 3;

/// `sizes` are heights; a picture is `proportion` times as wide as high.
template <std::size_t Count>
QIcon iconOf(const QString& folder, const char* name, const std::array<int, Count>& sizes, int proportion = 1)
{
    QList<SizedPicture> pictures;
    for (const int size : sizes) {
        pictures.append({QStringLiteral(":/%1/%2/%3.pixels").arg(folder).arg(size).arg(QLatin1String(name)),
            QSize(size * proportion, size)});
    }
    return sizedIcon(pictures);
}

} // namespace

void appendFixedPictures(ImageList& images)
{
    constexpr std::array sizes{16, 24, 32, 48, 64, 96};
    for (const char* name : pictureNames) {
        images.append(iconOf(QStringLiteral("image-list"), name, sizes));
    }
}

QIcon programIcon()
{
    constexpr std::array sizes{16, 22, 24, 32, 48, 64, 128, 256};
    return iconOf(QStringLiteral("program"), "ambertask", sizes);
}

QIcon programWindowIcon()
{
    constexpr std::array sizes{16, 24, 32, 48, 64, 128};
    return iconOf(QStringLiteral("program"), "ambertask", sizes);
}

QIcon logoIcon()
{
    constexpr std::array sizes{24, 32, 48, 96};
    return iconOf(QStringLiteral("logo"), "logo", sizes, LogoProportion);
}
