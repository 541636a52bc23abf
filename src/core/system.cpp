#include "core/system.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace ecr {
namespace {
System* installed_system = nullptr;
}

Fault System::replace_file(const std::string& path, std::string_view bytes) {
  FreshFile fresh;
  Fault fault;
  // The same program, started once more in this folder just now, takes the new file for one that a save which was cut
  // off has left, and removes it. It does so once, so a second new file stays.
  for (int attempt = 1; attempt <= 2; ++attempt) {
    fault = write_beside(path, bytes, fresh);
    if (fault.stands()) return fault;
    fault = rename_over(fresh);
    if (fault.code != FaultCode::file_not_found) break;
  }
  return fault.stands() ? fault : flush_folder_of(fresh.target);
}

System& system_layer() noexcept {
  if (installed_system == nullptr) {
    std::fputs("no system layer was installed\n", stderr);
    std::abort();
  }
  return *installed_system;
}

System* install_system(System* system) noexcept {
  return std::exchange(installed_system, system);
}

}  // namespace ecr
