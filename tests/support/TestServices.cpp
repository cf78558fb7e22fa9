#include "support/TestServices.h"

#include <QPixmap>

namespace
{

constexpr int FixedPictures = 21;

}

TestServices::TestServices()
    : files(database.folder()),
      undo(database.engine()), services{database.engine(), database.clock(), dialogs, dialogs, dialogs, shell,
                                   checkerTimer, images, [this] { return alwaysOnTop; }, files, undo}
{
    for (int i = 0; i < FixedPictures; ++i) {
        QPixmap pixmap(16, 16);
        pixmap.fill(QColor::fromHsv(i * 17 % 360, 200, 200));
        images.append(QIcon(pixmap));
    }
}
