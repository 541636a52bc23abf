#pragma once
// What can go wrong inside a routine, as a number and a description.
//
// A routine never lets a fault cross its edge: it catches FaultError (or looks at a returned Fault) at the one place
// where it ends, writes its own prefix and the description to the run log and answers with what it has.

#include <exception>
#include <string>
#include <string_view>

namespace ecr {

/// The numbers are those that appear in the run log behind a failed copy of the default files.
enum class FaultCode {
  none = 0,
  invalid_call = 5,
  overflow = 6,
  out_of_range = 9,
  type_mismatch = 13,
  file_not_found = 53,
  file_exists = 58,
  device_error = 57,
  disk_full = 61,
  past_end = 62,
  bad_file_name = 52,
  permission_denied = 70,
  path_access = 75,
  path_not_found = 76,
};

/// One fault. A default-constructed Fault means that nothing went wrong.
struct Fault {
  FaultCode code = FaultCode::none;

  [[nodiscard]] bool stands() const noexcept { return code != FaultCode::none; }
  [[nodiscard]] int number() const noexcept { return static_cast<int>(code); }
  [[nodiscard]] std::string_view description() const noexcept;
};

/// A fault on its way to the edge of the routine in which it arose.
class FaultError : public std::exception {
 public:
  explicit FaultError(FaultCode code) noexcept : fault_{code} {}
  explicit FaultError(Fault fault) noexcept : fault_{fault} {}
  [[nodiscard]] const Fault& fault() const noexcept { return fault_; }
  [[nodiscard]] const char* what() const noexcept override;

 private:
  Fault fault_;
};

/// The fault that an errno value of the host's file calls stands for.
[[nodiscard]] Fault fault_of_errno(int error) noexcept;

}  // namespace ecr
