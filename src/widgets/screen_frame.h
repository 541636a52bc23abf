#pragma once
// What all screens share at their top: the heading, the corner picture, the way to the manual.

#include <QVBoxLayout>

#include "widgets/captions.h"
#include "widgets/controls.h"
#include "widgets/screen.h"
#include "widgets/session_mark.h"

namespace ecr {

class ScreenFrame {
 public:
  enum class Corner { picture, none };

  /// Lays the top band on `screen`; the rest of the screen is `body`.
  ScreenFrame(Screen& screen, Corner corner);

  /// Shows the pictures of the band, and the link, the model and the file that the screen changes: its name without the
  /// folder, empty for none.
  void load_band(const QString& file = {});

  QVBoxLayout* body;
  QLabel* L_Titolo;
  Picture* I_Help;
  SessionMark* L_Session;

 private:
  Picture* corner_ = nullptr;
};

}  // namespace ecr
