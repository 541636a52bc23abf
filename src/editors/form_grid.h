#pragma once
// Where an editor lays its fields: rows of label, control and note, side by side in two or more columns of such rows.

#include <initializer_list>

#include <QGridLayout>

#include "widgets/captions.h"
#include "widgets/controls.h"

namespace ecr {

class FormGrid {
 public:
  /// The labels lie on `parent`; their captions go to `captions`.
  FormGrid(QWidget& parent, Captions& captions);

  /// For the screen's layout, which owns it from then on.
  [[nodiscard]] QGridLayout* layout() const { return layout_; }

  /// A label with its control behind it. `side` is 0 for the left column of rows.
  QLabel* place(int row, int side, const QString& label_name, Key key, const char* built_in, QWidget* control);
  /// A note behind the control of that row, in quiet colour.
  QLabel* note(int row, int side, const QString& name, Key key, const char* built_in);
  /// A note that no key changes.
  QLabel* fixed_note(int row, int side, const QString& name, const char* built_in);

 private:
  QLabel* quiet_label(int row, int side, const QString& name);

  QWidget& parent_;
  Captions& captions_;
  QGridLayout* layout_;
};

}  // namespace ecr
