#include "system/Notifications.h"

std::unique_ptr<Notifications> makeNotifications()
{
    // Windows come to the front by themselves here.
    return nullptr;
}
