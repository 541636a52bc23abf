#include "core/fault.h"

#include <cerrno>
#include <gtest/gtest.h>
#include <string>

namespace ecr::test {
namespace {

struct Row {
  FaultCode code;
  int number;
  const char* description;
};
const Row rows[] = {
    {FaultCode::none, 0, ""},
    {FaultCode::invalid_call, 5, "Invalid call or argument"},
    {FaultCode::overflow, 6, "Overflow"},
    {FaultCode::out_of_range, 9, "Index out of range"},
    {FaultCode::type_mismatch, 13, "Type mismatch"},
    {FaultCode::bad_file_name, 52, "Bad file name"},
    {FaultCode::file_not_found, 53, "File not found"},
    {FaultCode::device_error, 57, "Device error"},
    {FaultCode::file_exists, 58, "File already exists"},
    {FaultCode::disk_full, 61, "Disk full"},
    {FaultCode::past_end, 62, "Read past the end of the file"},
    {FaultCode::permission_denied, 70, "Permission denied"},
    {FaultCode::path_access, 75, "Path or file access error"},
    {FaultCode::path_not_found, 76, "Path not found"},
};

TEST(Faults, HaveTheirNumbersAndDescriptions) {
  for (const Row& row : rows) {
    const Fault fault{row.code};
    EXPECT_EQ(fault.number(), row.number) << row.description;
    EXPECT_EQ(fault.description(), row.description);
    EXPECT_EQ(fault.stands(), row.number != 0);
    EXPECT_STREQ(FaultError{row.code}.what(), row.description);
    EXPECT_EQ(FaultError{fault}.fault().code, row.code);
  }
  EXPECT_EQ(Fault{static_cast<FaultCode>(-1)}.description(), "Unknown fault");
  EXPECT_FALSE(Fault{}.stands());
}

TEST(Faults, StandForWhatTheHostsFileCallsSay) {
  struct HostRow {
    int error;
    FaultCode code;
  };
  const HostRow host_rows[] = {
      {0, FaultCode::none},
      {ENOENT, FaultCode::file_not_found},
      {ENOTDIR, FaultCode::path_not_found},
      {EEXIST, FaultCode::file_exists},
      {ENOTEMPTY, FaultCode::file_exists},
      {ENOSPC, FaultCode::disk_full},
      {EACCES, FaultCode::permission_denied},
      {EPERM, FaultCode::permission_denied},
      {EAGAIN, FaultCode::permission_denied},
      {EBUSY, FaultCode::permission_denied},
      {EISDIR, FaultCode::path_access},
      {EROFS, FaultCode::path_access},
      {ENAMETOOLONG, FaultCode::bad_file_name},
      {EINVAL, FaultCode::bad_file_name},
      {EIO, FaultCode::device_error},
      {123456, FaultCode::device_error},
  };
  for (const HostRow& row : host_rows) EXPECT_EQ(fault_of_errno(row.error).code, row.code) << row.error;
}

}  // namespace
}  // namespace ecr::test
