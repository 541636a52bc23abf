#include "core/system.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace ecr {
namespace {
System* installed_system = nullptr;
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
