#pragma once

#include <stdexcept>
#include <string>
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

// Captions of the message boxes that report a failed load or save (translated by the
// caller; the English text is its own key).
inline constexpr char kFileOpenErrorCaption[] = SLX_TR("File Open Error");
inline constexpr char kFileSaveErrorCaption[] = SLX_TR("File Save Error");

// The English text of a file failure's cause; causes outside 0..14 have no text.
std::string fileErrorText(int cause);

// A data-set file that could not be opened, written or replaced. what() is the text
// of the cause, which is what the user is told.
class FileError : public std::runtime_error {
 public:
  enum Cause : int {
    None = 0,
    Generic = 1,
    FileNotFound = 2,
    BadPath = 3,
    TooManyOpenFiles = 4,
    AccessDenied = 5,
    InvalidFile = 6,
    RemoveCurrentDir = 7,
    DirectoryFull = 8,
    BadSeek = 9,
    HardIO = 10,
    SharingViolation = 11,
    LockViolation = 12,
    DiskFull = 13,
    EndOfFile = 14,
  };

  // osError: the operating system's errno value behind the cause, 0 when none.
  explicit FileError(int cause, int osError = 0);

  // The cause that describes an operating-system error to the user.
  static FileError fromErrno(int errnoValue);

  int cause() const { return m_cause; }
  int osError() const { return m_osError; }

 private:
  int m_cause;
  int m_osError;
};

}  // namespace sonalyx
