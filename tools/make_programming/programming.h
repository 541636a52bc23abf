#pragma once
// The register's files from their readable sources: the programming image (PRG_MODE.BIN), the item table (PRG_PLU.BIN),
// the default keyboard (KEY_DEFAULT...BIN) and the register's texts in a language. The first three come back as sources
// too: for any bytes of these forms, make(explain(bytes)) is bytes.

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "make_programming/source.h"

namespace ecr {

/// Bytes that are none of the three files.
class NotProgramming : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The file's bytes. What a source does not say is 0, a blank in a text, "NO OPERATION" on the keyboard. Throws
/// SourceError.
[[nodiscard]] std::string make_programming(const std::vector<Statement>& statements);

/// The source of a file, which is told apart by its length. Throws NotProgramming.
[[nodiscard]] std::string explain_programming(std::string_view bytes);

}  // namespace ecr
