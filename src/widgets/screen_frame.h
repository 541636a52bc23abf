#pragma once
// What all screens share at their top: the heading, the corner picture, the way to the manual.

#include <QVBoxLayout>

#include "widgets/captions.h"
#include "widgets/controls.h"
#include "widgets/screen.h"

namespace ecr {

class ScreenFrame {
 public:
  enum class Corner { picture, none };

  /// Lays the top band on `screen`; the rest of the screen is `body`.
  ScreenFrame(Screen& screen, Corner corner);

  /// Shows the corner picture, where the screen has one.
  void load_corner();

  QVBoxLayout* body;
  QLabel* L_Titolo;
  Picture* I_Help;

 private:
  Picture* corner_ = nullptr;
};

}  // namespace ecr
