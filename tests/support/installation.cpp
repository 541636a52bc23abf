#include "support/installation.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <stdexcept>
#include <utility>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "core/text.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "lang/language.h"
#include "link/firmware.h"
#include "link/ports.h"
#include "platform/platform.h"

namespace ecr::test {
namespace fs = std::filesystem;
namespace {

std::string fresh_folder() {
  std::random_device random;
  for (int attempt = 0; attempt < 100; ++attempt) {
    const fs::path folder = fs::temp_directory_path() / ("vermanto-test-" + std::to_string(random()));
    if (fs::create_directory(folder)) return folder.string();
  }
  throw std::runtime_error{"no folder for the test could be made"};
}

void reset_everything() {
  Global::reset();
  reset_catalogue();
  reset_prg_mode();
  reset_prg_plu();
  reset_language();
  reset_firmware();
  reset_ports();
  install_link_library(nullptr);
}

}  // namespace

InstallationTest::InstallationTest() : folder_{fresh_folder()} {
  reset_everything();
  install_system(&host_system());
  Global::set_folders(backslash_path(folder_));
  Global::crea_cartelle();
}

InstallationTest::~InstallationTest() {
  reset_everything();
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

std::string InstallationTest::host(std::string_view path) const {
  return folder_ + "/" + std::string{path};
}

void InstallationTest::write(std::string_view path, std::string_view bytes) const {
  fs::create_directories(fs::path{host(path)}.parent_path());
  std::ofstream file{host(path), std::ios::binary};
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string InstallationTest::bytes(std::string_view path) const {
  std::ifstream file{host(path), std::ios::binary};
  return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
}

bool InstallationTest::exists(std::string_view path) const {
  return fs::exists(host(path));
}

void InstallationTest::make_folder(std::string_view path) const {
  fs::create_directories(host(path));
}

void InstallationTest::remove(std::string_view path) const {
  fs::remove_all(host(path));
}

void InstallationTest::copy(std::string_view from, std::string_view to) const {
  write(to, bytes(from));
}

std::vector<std::string> InstallationTest::log() const {
  const std::string content = bytes("Log/memo_log.txt");
  std::vector<std::string> texts;
  for (const std::string_view line : lines_of(content)) {
    // "dd-mm-yy hh:mm:ss " stands in front.
    constexpr std::size_t stamp = 18;
    texts.emplace_back(line.substr(std::min(line.size(), stamp)));
  }
  return texts;
}

FakeLink& InstallationTest::link() {
  if (link_ == nullptr) {
    auto fake = std::make_unique<FakeLink>();
    link_ = fake.get();
    install_link_library(std::move(fake));
  }
  return *link_;
}

std::string test_data(std::string_view name) {
  return std::string{VERMANTO_TEST_DATA "/"} + std::string{name};
}

}  // namespace ecr::test
