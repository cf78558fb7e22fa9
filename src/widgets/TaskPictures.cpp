#include "widgets/TaskPictures.h"

#include "data/TaskCodes.h"
#include "widgets/clsGuiLoader.h"

#include <QCoreApplication>

namespace
{

struct CategoryPictures {
    Q_DECLARE_TR_FUNCTIONS(CategoryPictures)
};

} // namespace

int statusPicture(qint32 status)
{
    switch (status) {
    case TaskStatus::NotStarted:
        return 16;
    case TaskStatus::InProgress:
        return 17;
    case TaskStatus::Completed:
        return 15;
    case TaskStatus::Waiting:
        return 13;
    case TaskStatus::Deferred:
        return 14;
    default:
        return NoPicture;
    }
}

int periorityPicture(qint32 periority)
{
    switch (periority) {
    case TaskPeriority::High:
        return 19;
    case TaskPeriority::Normal:
        return 18;
    case TaskPeriority::Low:
        return 20;
    default:
        return NoPicture;
    }
}

QString statusWord(qint32 status)
{
    switch (status) {
    case TaskStatus::NotStarted:
        return clsGuiLoader::tr("Not Started");
    case TaskStatus::InProgress:
        return clsGuiLoader::tr("In Progress");
    case TaskStatus::Completed:
        return clsGuiLoader::tr("Completed");
    case TaskStatus::Waiting:
        return clsGuiLoader::tr("Waiting on someone else");
    case TaskStatus::Deferred:
        return clsGuiLoader::tr("Deferred");
    default:
        return {};
    }
}

QString periorityWord(qint32 periority)
{
    switch (periority) {
    case TaskPeriority::High:
        return clsGuiLoader::tr("High");
    case TaskPeriority::Normal:
        return clsGuiLoader::tr("Normal");
    case TaskPeriority::Low:
        return clsGuiLoader::tr("Low");
    default:
        return {};
    }
}

QString categoryPictureWord(int picture)
{
    switch (picture) {
    case 0:
        return CategoryPictures::tr("Home");
    case 1:
        return CategoryPictures::tr("Work");
    case 2:
        return CategoryPictures::tr("Shopping");
    case 3:
        return CategoryPictures::tr("Calendar");
    case 4:
        return CategoryPictures::tr("Phone");
    case 5:
        return CategoryPictures::tr("Mail");
    case 6:
        return CategoryPictures::tr("Finance");
    case 7:
        return CategoryPictures::tr("Health");
    case 8:
        return CategoryPictures::tr("Travel");
    case 9:
        return CategoryPictures::tr("Study");
    case 10:
        return CategoryPictures::tr("Family");
    case 11:
        return CategoryPictures::tr("Ideas");
    default:
        return {};
    }
}
