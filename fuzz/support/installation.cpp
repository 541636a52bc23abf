#include "support/installation.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "lang/language.h"
#include "link/firmware.h"
#include "link/ports.h"
#include "platform/platform.h"

namespace ecr::fuzz {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view log_file = "Log/memo_log.txt";

/// Folders below which files live in memory, if one is there. Whoever wants another place names it in TMPDIR.
fs::path place_for_folders() {
  const fs::path in_memory = "/dev/shm";
  std::error_code ignored;
  const bool named = std::getenv("TMPDIR") != nullptr;
  return !named && fs::is_directory(in_memory, ignored) ? in_memory : fs::temp_directory_path();
}

std::string fresh_folder() {
  std::random_device random;
  for (int attempt = 0; attempt < 100; ++attempt) {
    const fs::path folder = place_for_folders() / ("vermanto-fuzz-" + std::to_string(random()));
    if (fs::create_directory(folder)) return folder.string();
  }
  throw std::runtime_error{"no folder for the target could be made"};
}

}  // namespace

void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", what);
  std::abort();
}

Answer QuietShell::box(BoxKind, BoxButtons buttons, std::string_view, std::string_view) {
  ++boxes;
  return buttons == BoxButtons::ok ? Answer::ok : Answer::no;
}

void QuietShell::let_screens_work() {
  moment.second_of_day += 0.05;
  if (moment.second_of_day >= 86400) moment.second_of_day -= 86400;
}

void QuietShell::run_beside(const WorkInHand&, Waiting, const std::function<void()>& job) {
  job();
}

void QuietShell::wait_until(const WorkInHand&, double, const std::function<bool()>& done) {
  while (!done()) let_screens_work();
}

Fault QuietSystem::write_beside(const std::string& path, std::string_view bytes, FreshFile& fresh) {
  return host_system().write_beside(path, bytes, fresh);
}

Fault QuietSystem::rename_over(const FreshFile& fresh) {
  return host_system().rename_over(fresh);
}

Fault QuietSystem::flush_folder_of(const std::string& target) {
  return host_system().flush_folder_of(target);
}

Fault QuietSystem::append_file(const std::string& path, std::string_view bytes) {
  return host_system().append_file(path, bytes);
}

Fault QuietSystem::start_minimised(const std::string&, const std::vector<std::string>&) {
  return {FaultCode::file_not_found};
}

std::unique_ptr<Library> QuietSystem::load_library(const std::string&, std::string& why) {
  why = "there is none";
  return nullptr;
}

std::int32_t ScriptedLink::send_cmd(std::string&, std::uint8_t, std::uint8_t fileNumber, std::int32_t& resultCode,
                                    std::int32_t, std::uint8_t port) {
  resultCode = script_(fileNumber, port);
  return 1;
}

std::int32_t ScriptedLink::range_report(std::string&, std::uint8_t fileNumber, std::int32_t& resultCode, std::int32_t,
                                        std::int32_t, std::int32_t, std::uint8_t port) {
  resultCode = script_(fileNumber, port);
  return 1;
}

std::int32_t ScriptedLink::send_logo(std::string&, const std::string&, const std::string&, std::int32_t& resultCode,
                                     std::int32_t) {
  resultCode = script_(2, 0);
  return 1;
}

Installation::Installation() : folder_{fresh_folder()} {
  install_system(&system);
  install_shell(&shell);
  install_clock([this] { return shell.moment; });
  reset();
  Global::crea_cartelle();
}

Installation::~Installation() {
  install_link_library(nullptr);
  install_clock({});
  install_shell(nullptr);
  install_system(nullptr);
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

void Installation::reset() {
  Global::reset();
  reset_catalogue();
  reset_prg_mode();
  reset_prg_plu();
  reset_language();
  reset_firmware();
  reset_ports();
  install_link_library(nullptr);
  shell.boxes = 0;
  system.captions.reset();
  Global::set_folders(backslash_path(folder_));
  remove(log_file);
}

void Installation::write(std::string_view path, std::string_view bytes) const {
  fs::create_directories(fs::path{host(path)}.parent_path());
  std::ofstream file{host(path), std::ios::binary};
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error{"the input could not be written"};
}

std::string Installation::bytes(std::string_view path) const {
  std::ifstream file{host(path), std::ios::binary};
  return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
}

bool Installation::exists(std::string_view path) const {
  return fs::exists(host(path));
}

void Installation::remove(std::string_view path) const {
  fs::remove_all(host(path));
}

void Installation::put_folder(std::string_view path) const {
  remove(path);
  fs::create_directories(host(path));
}

std::size_t Installation::lines_in_log() const {
  const std::string log = bytes(log_file);
  return static_cast<std::size_t>(std::count(log.begin(), log.end(), '\n'));
}

void Installation::link(ScriptedLink::Script script) {
  install_link_library(std::make_unique<ScriptedLink>(std::move(script)));
}

}  // namespace ecr::fuzz
