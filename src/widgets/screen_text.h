#pragma once
// The widget's edge: the one place where bytes of the code page become screen text and back.

#include <string>
#include <string_view>

#include <QString>

#include "core/code_page.h"
#include "lang/own_texts.h"

namespace ecr {

/// Bytes of the code page as screen text; a carriage return, with or without a line feed, is a line break.
[[nodiscard]] QString screen_text(std::string_view bytes);

/// A built-in text in the chosen language.
[[nodiscard]] QString own_words(OwnText text);

/// Bytes of the code page as a field holds them, one character each: page_bytes gives the same bytes back.
[[nodiscard]] QString field_text(std::string_view bytes);

/// Screen text as codes, one a character, for sostituzione_to_ecr.
[[nodiscard]] CodeText codes_of(const QString& text);

/// Screen text as bytes of the code page; what the page lacks becomes a question mark.
[[nodiscard]] std::string page_bytes(const QString& text);

/// A path of the host, as 8-bit text, for the toolkit, and back.
[[nodiscard]] QString path_for_toolkit(const std::string& host);
[[nodiscard]] std::string path_of_toolkit(const QString& path);

/// Without the blanks at its end. Only blanks are trimmed.
[[nodiscard]] QString trim_end(const QString& text);

}  // namespace ecr
