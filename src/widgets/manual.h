#pragma once
// The pages of the manual as files: where each one lies, and which of them hold given words.

#include <vector>

#include <QString>

namespace ecr {

/// A file of the manual: in the help folder of the chosen language, or the English one where that folder lacks it. The
/// file need not exist in either.
[[nodiscard]] QString manual_file(const QString& file);

struct ManualPage {
  QString file;  ///< without its folder
  QString title;
  QString text;  ///< as it is read, without marks
};

/// All pages but the table of contents, by title.
[[nodiscard]] std::vector<ManualPage> manual_pages();

/// The pages that hold every word of the question, whatever its case; those with a word in their title come first. A
/// question without words has no pages.
[[nodiscard]] std::vector<ManualPage> pages_with(const std::vector<ManualPage>& pages, const QString& question);

/// A word that the table of contents keeps for the window around it: <meta name="NAME" content="...">, or `otherwise`.
[[nodiscard]] QString manual_word(const QString& name, const QString& otherwise);

}  // namespace ecr
