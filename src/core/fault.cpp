#include "core/fault.h"

#include <cerrno>

namespace ecr {

std::string_view Fault::description() const noexcept {
  switch (code) {
    case FaultCode::none:
      return "";
    case FaultCode::invalid_call:
      return "Invalid call or argument";
    case FaultCode::overflow:
      return "Overflow";
    case FaultCode::out_of_range:
      return "Index out of range";
    case FaultCode::type_mismatch:
      return "Type mismatch";
    case FaultCode::file_not_found:
      return "File not found";
    case FaultCode::file_exists:
      return "File already exists";
    case FaultCode::device_error:
      return "Device error";
    case FaultCode::disk_full:
      return "Disk full";
    case FaultCode::past_end:
      return "Read past the end of the file";
    case FaultCode::bad_file_name:
      return "Bad file name";
    case FaultCode::permission_denied:
      return "Permission denied";
    case FaultCode::path_access:
      return "Path or file access error";
    case FaultCode::path_not_found:
      return "Path not found";
  }
  return "Unknown fault";
}

const char* FaultError::what() const noexcept {
  return fault_.description().data();
}

Fault fault_of_errno(int error) noexcept {
  switch (error) {
    case 0:
      return {};
    case ENOENT:
      return {FaultCode::file_not_found};
    case ENOTDIR:
      return {FaultCode::path_not_found};
    case EEXIST:
    case ENOTEMPTY:
      return {FaultCode::file_exists};
    case ENOSPC:
      return {FaultCode::disk_full};
    case EACCES:
    case EPERM:
    case EAGAIN:
    case EBUSY:
#ifdef ETXTBSY
    case ETXTBSY:
#endif
      return {FaultCode::permission_denied};
    case EISDIR:
    case EROFS:
      return {FaultCode::path_access};
    case ENAMETOOLONG:
    case EINVAL:
      return {FaultCode::bad_file_name};
    default:
      return {FaultCode::device_error};
  }
}

}  // namespace ecr
