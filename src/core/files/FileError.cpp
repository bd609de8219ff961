#include "core/files/FileError.h"

#include <cerrno>
#include <iterator>
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

std::string fileErrorText(int cause) {
  static const char* const texts[] = {
      SLX_TR("No error occurred."),
      SLX_TR("An unspecified error occurred."),
      SLX_TR("The file could not be located."),
      SLX_TR("All or part of the path is invalid."),
      SLX_TR("The permitted number of open files was exceeded."),
      SLX_TR("The file could not be accessed."),
      SLX_TR("There was an attempt to use an invalid file handle."),
      SLX_TR("The current working directory cannot be removed."),
      SLX_TR("There are no more directory entries."),
      SLX_TR("There was an error trying to set the file pointer."),
      SLX_TR("There was a hardware error."),
      SLX_TR("SHARE.EXE was not loaded, or a shared region was locked."),
      SLX_TR("There was an attempt to lock a region that was already locked."),
      SLX_TR("The disk is full."),
      SLX_TR("The end of file was reached."),
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
