#pragma once
// docs/fields.md.

#include <string>
#include <string_view>

namespace ecr {

/// The page, UTF-8. `english` is a language source, UTF-8: its texts go into the catalogue, which keeps them.
[[nodiscard]] std::string field_book_page(std::string_view english);

}  // namespace ecr
