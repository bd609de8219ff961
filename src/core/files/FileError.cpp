#include "core/files/FileError.h"

#include <cerrno>
#include <iterator>

namespace sonalyx {

std::string fileErrorText(int cause) {
  static const char* const texts[] = {
      "No error occurred.",
      "An unspecified error occurred.",
      "The file could not be located.",
      "All or part of the path is invalid.",
      "The permitted number of open files was exceeded.",
      "The file could not be accessed.",
      "There was an attempt to use an invalid file handle.",
      "The current working directory cannot be removed.",
      "There are no more directory entries.",
      "There was an error trying to set the file pointer.",
      "There was a hardware error.",
      "SHARE.EXE was not loaded, or a shared region was locked.",
      "There was an attempt to lock a region that was already locked.",
      "The disk is full.",
      "The end of file was reached.",
  };
  if (cause < 0 || cause >= static_cast<int>(std::size(texts))) return {};
  return texts[cause];
}

FileError::FileError(int cause, int osError)
    : std::runtime_error(fileErrorText(cause)), m_cause(cause), m_osError(osError) {}

FileError FileError::fromErrno(int errnoValue) {
  switch (errnoValue) {
    case ENOENT:
      return FileError(FileNotFound, errnoValue);
    case ENOTDIR:
    case ENAMETOOLONG:
    case EINVAL:
#ifdef ELOOP
    case ELOOP:
#endif
      return FileError(BadPath, errnoValue);
    case EMFILE:
    case ENFILE:
      return FileError(TooManyOpenFiles, errnoValue);
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EBUSY:
#ifdef ETXTBSY
    case ETXTBSY:
#endif
      return FileError(AccessDenied, errnoValue);
    case EBADF:
      return FileError(InvalidFile, errnoValue);
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return FileError(DiskFull, errnoValue);
    case EIO:
      return FileError(HardIO, errnoValue);
    default:
      return FileError(Generic, errnoValue);
  }
}

}  // namespace sonalyx
