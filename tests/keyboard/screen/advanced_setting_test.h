#pragma once
// What the tests of the advanced settings share: the screen, opened as the menu opens it, and its parts of the file.

#include <cstdint>
#include <string>

#include <QTabBar>
#include <QTabWidget>

#include "keyboard/keyboard_picture.h"
#include "support_qt/screen_test.h"

namespace ecr::test {

class AdvancedSettingTest : public ScreenTest {
 protected:
  static constexpr std::size_t pop_at = 176;
  static constexpr std::size_t chain_at = 316;
  static constexpr std::size_t keys_at = 5567;

  void open_editor() { open("FrmAdvancedSetting"); }
  void open_again() {
    stage.top()->unload();
    let_screens_settle();
    open_editor();
  }
  void save() const { click("C_Salva"); }

  /// Clicks on a tab of a tab control or bar.
  void go_to_tab(const char* name, int tab) const {
    QWidget& tabs = control(name);
    auto* bar = qobject_cast<QTabBar*>(&tabs);
    if (bar == nullptr) bar = control<QTabWidget>(name).tabBar();
    click_at(*bar, bar->tabRect(tab).center());
  }
  void go_to_keys() const { go_to_tab("Tab_AdvancedOption", 1); }
  void go_to_pop_list(int list) const {
    go_to_tab("Tab_AdvancedOption", 2);
    go_to_tab("SSTab1", list);
  }

  [[nodiscard]] QAbstractButton& box(const QString& name) const { return control<QAbstractButton>(name); }
  /// A click on the square of a box.
  static void click_box(QAbstractButton& box) { click_at(box, {8, box.height() / 2}); }
  [[nodiscard]] QAbstractButton& box(std::string_view array, int list) const {
    return box(member_name(std::string{array}.c_str(), list));
  }
};

}  // namespace ecr::test
