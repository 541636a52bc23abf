#pragma once
// A copy of the built installation for one measurement, in the system's temporary folder.

#include <string>
#include <string_view>

namespace ecr::bench {

class InstallationCopy {
 public:
  InstallationCopy();
  InstallationCopy(const InstallationCopy&) = delete;
  InstallationCopy& operator=(const InstallationCopy&) = delete;
  ~InstallationCopy();

  /// A path of the host, without a separator at its end.
  [[nodiscard]] const std::string& folder() const { return folder_; }

  /// Paths are relative to the folder, with '/'.
  [[nodiscard]] std::string bytes(std::string_view path) const;
  void write(std::string_view path, std::string_view bytes) const;

 private:
  std::string folder_;
};

}  // namespace ecr::bench
