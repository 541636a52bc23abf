#pragma once
// A screen for tests of what lies on screens: a column of whatever the test puts there.

#include <functional>

#include <QVBoxLayout>

#include "widgets/screen.h"

namespace ecr::test {

class PlainScreen : public Screen {
 public:
  explicit PlainScreen(const QString& name = QStringLiteral("FrmPlain")) : Screen{name} { new QVBoxLayout{this}; }

  template <typename Control>
  Control& put(Control* control) {
    layout()->addWidget(control);
    return *control;
  }

  void load() override {
    ++times_loaded;
    if (on_load) on_load();
  }
  void seen_again() override { ++times_seen_again; }
  [[nodiscard]] QWidget* first_focus() override { return first; }

  std::function<void()> on_load;
  QWidget* first = nullptr;
  int times_loaded = 0;
  int times_seen_again = 0;
};

}  // namespace ecr::test
