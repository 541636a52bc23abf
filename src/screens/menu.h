#pragma once
// The menus: a table of rows, each a button that opens a screen.

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <QGridLayout>

#include "core/model.h"
#include "widgets/controls.h"
#include "widgets/screen.h"
#include "widgets/screen_frame.h"

namespace ecr {

struct MenuRow {
  enum class Shown { always, debug_only };

  const char* control;
  std::optional<Key> key = std::nullopt;
  std::string_view built_in;
  const char* opens = "";  ///< name of the screen; empty for a button with a routine of its own
  Shown shown = Shown::always;
  Models models = Models::both;
};

/// A screen whose body is a grid of such buttons, with a way back below. A button whose screen, or whose routine, is
/// not there is disabled and says so.
class MenuScreen : public Screen {
  Q_OBJECT

 public:
  MenuScreen(const QString& name, std::span<const MenuRow> rows, int columns, Key back_key, std::string_view back);

  void load() override;
  [[nodiscard]] QWidget* first_focus() override;

  [[nodiscard]] CommandButton* button(const char* control) const;

 protected:
  /// Gives a button a routine of its own.
  void set_routine(const char* control, std::function<void()> routine);

  ScreenFrame frame_;
  Captions captions_;

 private:
  struct Entry {
    const MenuRow* row;
    CommandButton* button;
  };
  std::vector<Entry> entries_;
  QGridLayout* tiles_;
  int columns_;
  CommandButton* back_;
};

}  // namespace ecr
