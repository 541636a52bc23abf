#include "editors/form_grid.h"

#include "widgets/look.h"

namespace ecr {
namespace {

// Columns that a row takes: label, control, note.
constexpr int columns_of_side = 3;

}  // namespace

FormGrid::FormGrid(QWidget& parent, Captions& captions)
    : parent_{parent}, captions_{captions}, layout_{new QGridLayout} {
  layout_->setHorizontalSpacing(12);
  layout_->setVerticalSpacing(8);
}

QLabel* FormGrid::place(int row, int side, const QString& label_name, Key key, const char* built_in, QWidget* control) {
  QLabel* label = make_label(label_name, &parent_, control);
  captions_.add(*label, key, built_in);
  layout_->addWidget(label, row, side * columns_of_side);
  layout_->addWidget(control, row, side * columns_of_side + 1);
  return label;
}

QLabel* FormGrid::note(int row, int side, const QString& name, Key key, const char* built_in) {
  QLabel* label = quiet_label(row, side, name);
  captions_.add(*label, key, built_in);
  return label;
}

QLabel* FormGrid::fixed_note(int row, int side, const QString& name, const char* built_in) {
  QLabel* label = quiet_label(row, side, name);
  Captions::fix(*label, built_in);
  return label;
}

QLabel* FormGrid::quiet_label(int row, int side, const QString& name) {
  QLabel* label = make_label(name, &parent_);
  make_hint(*label);
  layout_->addWidget(label, row, side * columns_of_side + 2);
  return label;
}

}  // namespace ecr
