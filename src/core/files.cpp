#include "core/files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <ios>
#include <system_error>
#include <type_traits>

#include "core/code_page.h"
#include "core/system.h"
#include "core/text.h"
#include "core/unfinished_save.h"

namespace ecr {
namespace fs = std::filesystem;
namespace {

Fault fault_of(const std::error_code& error) {
  return error ? fault_of_errno(error.default_error_condition().value()) : Fault{};
}

/// Why a file that the stream could not open cannot be opened.
Fault reason_not_opened(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) return {FaultCode::file_not_found};
  if (status.type() == fs::file_type::directory) return {FaultCode::path_access};
  if (error) return fault_of(error);
  return {FaultCode::permission_denied};
}

/// A path of the host as the standard library takes it. Where it keeps paths in wide characters, it does not know that
/// the program's bytes are of the fixed code page.
fs::path native_path(std::string_view path) {
  const std::string host = host_path(path);
  if constexpr (std::is_same_v<fs::path::value_type, char>) {
    return {host};
  } else {
    const std::u16string text = unicode_of(host);
    return {std::wstring{text.begin(), text.end()}};
  }
}

/// The bytes of a file's name, the other way round.
std::string bytes_of_name(const fs::path& name) {
  if constexpr (std::is_same_v<fs::path::value_type, char>) {
    return name.string();
  } else {
    const std::wstring text = name.wstring();
    return bytes_of(std::u16string{text.begin(), text.end()});
  }
}

bool is_separator(char c) {
  return c == '\\' || c == '/';
}

}  // namespace

std::string host_path(std::string_view path) {
  std::string host{path};
#ifndef _WIN32
  std::replace(host.begin(), host.end(), '\\', '/');
#endif
  return host;
}

std::string backslash_path(std::string_view host) {
  std::string path{host};
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

bool file_exists(std::string_view path) {
  // A path that ends with a separator names a folder, never a file.
  if (path.empty() || is_separator(path.back())) return false;
  std::error_code error;
  const auto type = fs::status(native_path(path), error).type();
  return type != fs::file_type::not_found && type != fs::file_type::none && type != fs::file_type::directory;
}

bool folder_exists(std::string_view path) {
  std::error_code error;
  return fs::is_directory(native_path(path), error);
}

Fault read_file(std::string_view path, std::string& bytes, std::size_t limit) {
  bytes.clear();
  const fs::path host = native_path(path);
  std::error_code error;
  if (!fs::is_regular_file(host, error)) {
    const Fault reason = reason_not_opened(host);
    return reason.stands() ? reason : Fault{FaultCode::path_access};
  }
  std::ifstream file{host, std::ios::binary};
  if (!file) return reason_not_opened(host);
  constexpr std::size_t step = 64 * 1024;
  while (file && bytes.size() < limit) {
    const std::size_t wanted = std::min(step, limit - bytes.size());
    const std::size_t filled = bytes.size();
    bytes.resize(filled + wanted);
    file.read(bytes.data() + filled, static_cast<std::streamsize>(wanted));
    bytes.resize(filled + static_cast<std::size_t>(file.gcount()));
  }
  if (file.bad()) {
    bytes.clear();
    return {FaultCode::device_error};
  }
  return {};
}

FileReader::FileReader(std::string_view path) {
  const fs::path host = native_path(path);
  std::error_code error;
  if (!fs::is_regular_file(host, error)) return;
  file_.open(host, std::ios::binary);
  if (!file_) return;
  const std::uintmax_t size = fs::file_size(host, error);
  if (!error) size_ = size;
}

std::size_t FileReader::read(std::span<std::uint8_t> bytes) {
  if (!file_.is_open() || !file_) return 0;
  file_.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  return static_cast<std::size_t>(file_.gcount());
}

Fault append_file(std::string_view path, std::string_view bytes) {
  return system_layer().append_file(host_path(path), bytes);
}

Fault read_or_create_file(std::string_view path, std::string& bytes, std::size_t limit) {
  const Fault fault = read_file(path, bytes, limit);
  if (fault.code != FaultCode::file_not_found) return fault;
  return save_file(path, {});
}

Fault save_file(std::string_view path, std::string_view bytes) {
  if (folder_exists(path)) return {FaultCode::path_access};
  return system_layer().replace_file(host_path(path), bytes);
}

Fault overwrite_file(std::string_view path, std::string_view bytes) {
  std::string whole;
  const Fault fault = read_file(path, whole);
  if (fault.stands() && fault.code != FaultCode::file_not_found) return fault;
  if (whole.size() <= bytes.size()) return save_file(path, bytes);
  whole.replace(0, bytes.size(), bytes);
  return save_file(path, whole);
}

Fault delete_file(std::string_view path) {
  if (!file_exists(path)) return {folder_exists(path) ? FaultCode::path_access : FaultCode::file_not_found};
  std::error_code error;
  fs::remove(native_path(path), error);
  return fault_of(error);
}

Fault make_folder(std::string_view path) {
  std::error_code error;
  const fs::path host = native_path(path);
  if (fs::exists(host, error)) return {FaultCode::path_access};
  fs::create_directory(host, error);
  return fault_of(error);
}

Fault copy_file(std::string_view from, std::string_view to) {
  std::string bytes;
  const Fault fault = read_file(from, bytes);
  return fault.stands() ? fault : save_file(to, bytes);
}

Fault rename_file(std::string_view from, std::string_view to) {
  std::error_code error;
  if (fs::exists(native_path(to), error)) return {FaultCode::file_exists};
  // Not every standard library tells why a file could not be renamed.
  if (!fs::exists(native_path(from), error)) return {FaultCode::file_not_found};
  fs::rename(native_path(from), native_path(to), error);
  return fault_of(error);
}

std::vector<std::string> files_matching(std::string_view folder, std::string_view pattern) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry{native_path(folder), error}, end; !error && entry != end; entry.increment(error)) {
    std::error_code ignored;
    if (entry->is_directory(ignored)) continue;
    std::string name = bytes_of_name(entry->path().filename());
    if (matches_pattern(name, pattern)) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> remove_unfinished_saves(std::string_view folder) {
  std::vector<fs::path> left;
  std::error_code error;
  for (fs::directory_iterator entry{native_path(folder), error}, end; !error && entry != end; entry.increment(error)) {
    std::error_code ignored;
    const bool is_file = fs::is_regular_file(entry->symlink_status(ignored));
    if (is_file && is_unfinished_save(bytes_of_name(entry->path().filename()))) left.push_back(entry->path());
  }
  std::vector<std::string> removed;
  for (const fs::path& path : left) {
    if (fs::remove(path, error)) removed.push_back(bytes_of_name(path.filename()));
  }
  return removed;
}

bool matches_pattern(std::string_view name, std::string_view pattern) {
  // The usual walk with one place to fall back to: behind the last star seen, one more character swallowed each time.
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t swallowed = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      swallowed = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || lower_ascii(pattern[p]) == lower_ascii(name[n]))) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++swallowed;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace ecr
