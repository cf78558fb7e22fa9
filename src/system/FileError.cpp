#include "system/FileError.h"

#include <cerrno>

QString FileError::reason(int error)
{
    switch (error) {
#ifdef EDQUOT
    case EDQUOT:
#endif
    case ENOSPC:
        return tr("the disk is full");
    case EFBIG:
        return tr("the file would be too large");
    case EACCES:
    case EPERM:
        return tr("there is no permission for that");
    case EROFS:
        return tr("nothing can be written to that disk");
    case ENOENT:
    case ENOTDIR:
        return tr("the file or its folder does not exist");
    case ENAMETOOLONG:
        return tr("the name is too long");
    case EIO:
    case ENXIO:
    case ENODEV:
        return tr("the disk failed or was taken out");
    default:
        return QString::fromStdString(std::generic_category().message(error));
    }
}

QString reasonOf(const std::exception& error)
{
    if (const auto* file = dynamic_cast<const FileError*>(&error);
        file != nullptr && !file->why().isEmpty()) {
        return file->why();
    }
    const auto* told = dynamic_cast<const RuntimeError*>(&error);
    return told == nullptr ? QString::fromLocal8Bit(error.what()) : told->text();
}
