#pragma once
// What the Z reports reset, and how they behave.

#include "editors/option_screen.h"

namespace ecr {

extern const OptionScreenTable report_setup;

class FrmReportSetup : public OptionScreen {
  Q_OBJECT

 public:
  FrmReportSetup() : OptionScreen{report_setup} {}
};

}  // namespace ecr
