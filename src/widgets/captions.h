#pragma once
// The captions of a screen: each control's built-in text, and the catalogue key whose text goes over it.

#include <string_view>
#include <vector>

#include <QString>
#include <QWidget>

#include "core/catalogue.h"

namespace ecr {

/// Sets the text that names a control: a button's, label's, check box's or frame's caption. "&&" reads as one "&"; a
/// single "&" marks the letter behind it where the control can take a mark, and vanishes where it cannot.
void set_caption(QWidget& control, const QString& text);

/// The caption rows of one screen.
class Captions {
 public:
  /// A control whose caption stays as built where the key has no text. Its built-in caption is set at once.
  void add(QWidget& control, Key key, std::string_view built_in);
  /// A control whose caption no key changes.
  static void fix(QWidget& control, std::string_view built_in);

  /// Lays the catalogue's non-empty texts over the controls' captions.
  void lay() const;

 private:
  struct Row {
    QWidget* control;
    Key key;
  };
  std::vector<Row> rows_;
};

/// A catalogue text for a list or a box: the key's, or the built-in one.
[[nodiscard]] QString caption_text(Key key, std::string_view built_in);

/// A choice: digit, point, blank and the key's text, or the whole built-in literal where the key has none.
[[nodiscard]] QString choice(int digit, Key key, std::string_view literal);
/// The same where one key decides whether there is a text and another one supplies it.
[[nodiscard]] QString crossed_choice(int digit, Key text, Key decides, std::string_view literal);

}  // namespace ecr
