#pragma once
// The keys for money received on account (RA) and paid out (PO), and the two plus-minus keys.

#include "editors/option_screen.h"

namespace ecr {

extern const OptionScreenTable poramp_key_menu;

class FrmPORAMPKeyMenu : public OptionScreen {
  Q_OBJECT

 public:
  FrmPORAMPKeyMenu() : OptionScreen{poramp_key_menu} {}
};

}  // namespace ecr
