#include "frame/file_error.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace korvin {
namespace {

FileErrorKind kindOf(int number) {
  switch (number) {
    case ENOENT:
    case ENOTDIR:
      return FileErrorKind::notFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return FileErrorKind::noPermission;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return FileErrorKind::noSpace;
    case EIO:
    case ENXIO:
    case ENODEV:
      return FileErrorKind::inputOutput;
    case EISDIR:
      return FileErrorKind::notAFile;
    case ENAMETOOLONG:
      return FileErrorKind::nameTooLong;
    case EWOULDBLOCK:
    case EBUSY:
    case ETXTBSY:
      return FileErrorKind::busy;
    default:
      return FileErrorKind::other;
  }
}

}  // namespace

FileError FileError::ofSystem(int number, std::string path) {
  return {kindOf(number), number, std::move(path)};
}

std::string FileError::systemText() const {
  return *this ? std::generic_category().message(number) : std::string();
}

}  // namespace korvin
