#pragma once
// What the tests of the free key layout share: a layout whose codes are all different, and ways to its keys.

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <numeric>
#include <string>
#include <string_view>

#include "core/global.h"
#include "keyboard/key_positions.h"
#include "keyboard/screen/advanced_setting_test.h"

namespace ecr::test {

class AdvancedSettingKeys : public AdvancedSettingTest {
 protected:
  AdvancedSettingKeys() { begin(Global::model_z320); }

  /// A session in which each position but those of the digits holds a code of its own, from 102 on.
  void begin(std::uint8_t model) {
    start_session(model);
    std::iota(PrgMode.KeyLayout.begin(), PrgMode.KeyLayout.end(), std::uint8_t{102});
    lay_digit_keys(PrgMode, model);
    lay_down(PrgMode);
  }
  void open_keys() {
    open_editor();
    go_to_keys();
  }

  static QString cap_name(int key) {
    return member_name(Global::EcrModel == Global::model_z320 ? "L_key2" : "L_key", key);
  }
  [[nodiscard]] KeyCap& cap(int key) const { return control<KeyCap>(cap_name(key)); }
  static int keys() { return Global::EcrModel == Global::model_z320 ? z320_keys : z300_keys; }
  static std::size_t position(int key) {
    const PositionMap& map = Global::EcrModel == Global::model_z320 ? z320_position_map : z300_position_map;
    return static_cast<std::size_t>(std::find(map.begin(), map.end(), key) - map.begin());
  }
  static QColor ink(const KeyCap& key) { return key.palette().color(QPalette::ButtonText); }
  [[nodiscard]] std::string stored_keys() const { return image_file().substr(keys_at, key_positions); }
  [[nodiscard]] int stored(int key) const { return static_cast<unsigned char>(stored_keys()[position(key)]); }

  /// Picks a function from the list with the pointer.
  void choose(std::string_view name) const {
    auto& functions = list("Cmb_KeyList");
    const QString wanted = QStringLiteral(". ") + QString::fromLatin1(name.data(), qsizetype(name.size()));
    const QStringList lines = entries_of(functions);
    const auto found =
        std::find_if(lines.begin(), lines.end(), [&](const QString& line) { return line.endsWith(wanted); });
    ASSERT_NE(found, lines.end()) << name;
    pick(functions, static_cast<int>(found - lines.begin()));
  }
};

}  // namespace ecr::test
