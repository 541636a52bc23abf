#pragma once
// What tests of the smaller editors share: a screen opened by its name, fields typed over, bytes of the image's file.

#include <string>
#include <vector>

#include "core/catalogue.h"
#include "core/codecs.h"
#include "core/global.h"
#include "support_qt/screen_test.h"

namespace ecr::test {

using Lines = std::vector<std::string>;

class EditorTest : public ScreenTest {
 protected:
  explicit EditorTest(const char* screen) : screen_{QString::fromLatin1(screen)} { start_session(Global::model_z320); }

  void open_editor() { open(screen_); }
  void open_again() {
    stage.top()->unload();
    let_screens_settle();
    open_editor();
  }
  void save() const { click("C_Salva"); }

  /// Types over all that the field holds.
  void enter(const QString& name, const QString& text) const {
    click(name);
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
  }
  void empty(const QString& name) const {
    click(name);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
  }
  [[nodiscard]] QString shown(const QString& name) const { return field(name).text(); }

  /// `size` bytes of PRG_MODE.BIN.
  [[nodiscard]] std::string stored(std::size_t offset, std::size_t size) const {
    return image_file().substr(offset, size);
  }
  /// Expects that PRG_MODE.BIN differs from `before` inside of these bytes at most.
  void expect_untouched_outside(const std::string& before, std::size_t offset, std::size_t size) const {
    const std::string after = image_file();
    EXPECT_EQ(after.size(), before.size());
    EXPECT_EQ(after.substr(0, offset), before.substr(0, offset));
    EXPECT_EQ(after.substr(offset + size), before.substr(offset + size));
  }

  void expect_refusals(int boxes) {
    for (int i = 0; i < boxes; ++i) expect_box(BoxKind::critical, "Value insert to high!");
  }

  /// Each key's text becomes its own name.
  static void name_every_key() {
    for (std::size_t i = 0; i < key_count; ++i)
      set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  }

  using Captions = std::vector<std::pair<const char*, const char*>>;
  void expect_captions(const Captions& captions) const {
    for (const auto& [name, text] : captions) EXPECT_EQ(caption(name), QString::fromLatin1(text)) << name;
  }

 private:
  QString screen_;
};

/// Bytes as a text.
inline std::string bytes_of(std::initializer_list<int> bytes) {
  std::string text;
  for (const int byte : bytes) text += static_cast<char>(byte);
  return text;
}

}  // namespace ecr::test
