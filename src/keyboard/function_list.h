#pragma once
// The list of the functions that a key can hold, and the one that is chosen in it. Both can be dragged onto a key.

#include <cstdint>

#include <QLabel>

#include "widgets/choice_list.h"

namespace ecr {

class FunctionList : public ChoiceList {
  Q_OBJECT

 public:
  FunctionList(const QString& name, QWidget* parent);

  /// One line for each code that has a name: "20. DEPT SHIFT, CODE". Nothing is chosen.
  void fill_functions();

  void showPopup() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int pressed_ = -1;  ///< the line of the open list on which the pointer went down
};

/// The chosen function as a key that can be dragged away.
class FunctionTag : public QLabel {
  Q_OBJECT

 public:
  FunctionTag(const QString& name, QWidget* parent);

  /// Shows a line of the list: what stands behind its point and the character after that.
  void show_line(const QString& line);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  std::uint8_t code_ = 0;
};

}  // namespace ecr
