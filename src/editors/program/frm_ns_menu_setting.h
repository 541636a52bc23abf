#pragma once
// The number and no-sale key: what it opens, prints and counts.

#include "editors/option_screen.h"

namespace ecr {

extern const OptionScreenTable ns_menu_setting;

class FrmNSMenuSetting : public OptionScreen {
  Q_OBJECT

 public:
  FrmNSMenuSetting() : OptionScreen{ns_menu_setting} {}
};

}  // namespace ecr
