#pragma once
// A programming source as statements: one a line, "name = value, value, ...", comments from "#" on, and
// `include "FILE"` for the lines of another file in the same folder or below.

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ecr {

/// What is wrong with a source; the message begins with "FILE:LINE: ".
class SourceError : public std::runtime_error {
 public:
  SourceError(const std::string& file, int line, const std::string& what)
      : std::runtime_error{file + ":" + std::to_string(line) + ": " + what} {}
};

struct Statement {
  std::string file;
  int line = 0;
  std::string target;               ///< what stands in front of "="
  std::vector<std::string> values;  ///< as written, without the blanks around them
};

/// Throws SourceError. `name` is the file's name in messages and the place from which its includes are found.
[[nodiscard]] std::vector<Statement> parse_source(std::string_view text, const std::string& name);

/// Reads and parses a file. Throws SourceError, with line 0 if the file cannot be read.
[[nodiscard]] std::vector<Statement> read_source(const std::string& file);

}  // namespace ecr
