#include "core/files/FileError.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

namespace sonalyx {
namespace {

TEST(FileError, EachCauseHasItsText) {
  struct Case {
    int cause;
    const char* text;
  };
  const Case cases[] = {
      {0, "No error occurred."},
      {1, "An unspecified error occurred."},
      {2, "The file could not be located."},
      {3, "All or part of the path is invalid."},
      {4, "The permitted number of open files was exceeded."},
      {5, "The file could not be accessed."},
      {6, "There was an attempt to use an invalid file handle."},
      {7, "The current working directory cannot be removed."},
      {8, "There are no more directory entries."},
      {9, "There was an error trying to set the file pointer."},
      {10, "There was a hardware error."},
      {11, "SHARE.EXE was not loaded, or a shared region was locked."},
      {12, "There was an attempt to lock a region that was already locked."},
      {13, "The disk is full."},
      {14, "The end of file was reached."},
      {15, ""},
      {-1, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.cause);
    EXPECT_EQ(fileErrorText(c.cause), c.text);
    const FileError e(c.cause);
    EXPECT_EQ(e.cause(), c.cause);
    EXPECT_STREQ(e.what(), c.text);
    EXPECT_EQ(e.osError(), 0);
  }
}

TEST(FileError, OperatingSystemErrorsMapToCauses) {
  struct Case {
    const char* name;
    int errnoValue;
    int cause;
  };
  const Case cases[] = {
      {"ENOENT", ENOENT, 2},   {"ENOTDIR", ENOTDIR, 3}, {"ENAMETOOLONG", ENAMETOOLONG, 3},
      {"ELOOP", ELOOP, 3},     {"EINVAL", EINVAL, 3},   {"EMFILE", EMFILE, 4},
      {"ENFILE", ENFILE, 4},   {"EACCES", EACCES, 5},   {"EPERM", EPERM, 5},
      {"EROFS", EROFS, 5},     {"EISDIR", EISDIR, 5},   {"EBUSY", EBUSY, 5},
      {"ETXTBSY", ETXTBSY, 5}, {"EBADF", EBADF, 6},     {"ENOSPC", ENOSPC, 13},
      {"EDQUOT", EDQUOT, 13},  {"EFBIG", EFBIG, 13},    {"EIO", EIO, 10},
      {"EEXIST", EEXIST, 1},   {"EAGAIN", EAGAIN, 1},   {"no error number", 0, 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const FileError e = FileError::fromErrno(c.errnoValue);
    EXPECT_EQ(e.cause(), c.cause);
    EXPECT_EQ(e.osError(), c.errnoValue);
    EXPECT_EQ(std::string(e.what()), fileErrorText(c.cause));
  }
}

}  // namespace
}  // namespace sonalyx
