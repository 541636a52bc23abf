#include "installation.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace ecr::bench {
namespace fs = std::filesystem;
namespace {

std::string fresh_folder() {
  std::random_device random;
  for (int attempt = 0; attempt < 100; ++attempt) {
    const fs::path folder = fs::temp_directory_path() / ("vermanto-bench-" + std::to_string(random()));
    if (fs::create_directory(folder)) return folder.string();
  }
  throw std::runtime_error{"no folder for the measurement could be made"};
}

}  // namespace

InstallationCopy::InstallationCopy() : folder_{fresh_folder()} {
  fs::copy(VERMANTO_APP_DIR, folder_, fs::copy_options::recursive);
}

InstallationCopy::~InstallationCopy() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

std::string InstallationCopy::bytes(std::string_view path) const {
  std::ifstream file{fs::path{folder_} / path, std::ios::binary};
  if (!file) throw std::runtime_error{"the installation lacks " + std::string{path}};
  return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
}

void InstallationCopy::write(std::string_view path, std::string_view bytes) const {
  std::ofstream file{fs::path{folder_} / path, std::ios::binary};
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace ecr::bench
