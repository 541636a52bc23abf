#pragma once
// The file operations of the program. Every path is in the form of the folder variables, with backslashes; host_path
// turns it into a path of the host at the moment a file is opened. Nothing here throws; a Fault tells what went wrong.

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/fault.h"

namespace ecr {

/// The path as the host's file calls take it.
[[nodiscard]] std::string host_path(std::string_view path);

/// A path of the host in the form of the folder variables.
[[nodiscard]] std::string backslash_path(std::string_view host);

[[nodiscard]] bool file_exists(std::string_view path);
[[nodiscard]] bool folder_exists(std::string_view path);

/// Reads the whole file, at most `limit` bytes of it. On a fault `bytes` is left empty.
[[nodiscard]] Fault read_file(std::string_view path, std::string& bytes,
                              std::size_t limit = std::numeric_limits<std::size_t>::max());

/// The same, but a missing file is created empty and read as such.
[[nodiscard]] Fault read_or_create_file(std::string_view path, std::string& bytes,
                                        std::size_t limit = std::numeric_limits<std::size_t>::max());

/// Reads a file from its beginning on, piece by piece. One that cannot be opened reads as an empty one.
class FileReader {
 public:
  explicit FileReader(std::string_view path);

  /// In bytes, as it was when the file was opened.
  [[nodiscard]] std::uint64_t size() const noexcept { return size_; }

  /// Fills `bytes` from the place where the last piece ended. Answers how many there were; fewer than asked for means
  /// that the file has ended.
  std::size_t read(std::span<std::uint8_t> bytes);

 private:
  std::ifstream file_;
  std::uint64_t size_ = 0;
};

/// Appends `bytes` to the file, creating it where it is missing.
[[nodiscard]] Fault append_file(std::string_view path, std::string_view bytes);

/// Makes the file hold exactly `bytes`, in one step: see System::replace_file.
[[nodiscard]] Fault save_file(std::string_view path, std::string_view bytes);

/// Overwrites the head of the file with `bytes` and keeps what stands behind them, in one step.
[[nodiscard]] Fault overwrite_file(std::string_view path, std::string_view bytes);

[[nodiscard]] Fault delete_file(std::string_view path);
[[nodiscard]] Fault make_folder(std::string_view path);

/// Copies a file over another one or to a new one.
[[nodiscard]] Fault copy_file(std::string_view from, std::string_view to);

/// Gives a file a new name; a name that is taken is a fault and both files stay.
[[nodiscard]] Fault rename_file(std::string_view from, std::string_view to);

/// The names of the files in `folder` that match `pattern`, by name. `*` stands for any characters, `?` for one; case
/// does not matter. A folder that cannot be listed holds no files.
[[nodiscard]] std::vector<std::string> files_matching(std::string_view folder, std::string_view pattern);

/// Whether a name matches such a pattern.
[[nodiscard]] bool matches_pattern(std::string_view name, std::string_view pattern);

/// Removes the files that saves which were cut off have left in `folder`, told by their names (is_unfinished_save).
/// Answers the names of those that it removed. Links and folders of such a name stay.
std::vector<std::string> remove_unfinished_saves(std::string_view folder);

}  // namespace ecr
