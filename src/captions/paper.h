#pragma once
// Paper as the register's printer fills it: rows of cells in a fixed-width face, on slips.

#include <vector>

#include <QFont>
#include <QString>
#include <QWidget>

#include "captions/double_width.h"

class QVBoxLayout;

namespace ecr {

/// One row of cells. A character of double width is bold, stretched over two cells, on a ground of its own.
class PreviewRow : public QWidget {
  Q_OBJECT
  /// What prints: one character for each cell; one of double width stands in both of its cells.
  Q_PROPERTY(QString text READ text)

 public:
  PreviewRow(const QString& name, int cells, QWidget* parent);

  /// Prints a line, given as a field holds it, with its marks.
  void show_line(const QString& line);

  [[nodiscard]] QString text() const;
  [[nodiscard]] const std::vector<PrintCell>& cells() const { return cells_; }

  /// Sets the row off as the one that is being written.
  void point_out(bool on);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString line_;
  std::vector<PrintCell> cells_;
  QFont face_;
  QFont bold_face_;
  int cell_width_;
  int row_height_;
  int base_;
  bool pointed_out_ = false;
};

/// A piece of paper, torn off above and below, with rows on it.
class PaperSlip : public QWidget {
  Q_OBJECT

 public:
  explicit PaperSlip(QWidget* parent);

  PreviewRow* add_row(const QString& name, int cells = static_cast<int>(paper_cells));
  /// An empty stretch of paper, half a row high.
  void add_gap();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QVBoxLayout* rows_;
};

/// The face in which register text stands in fields and on paper: every character as wide as every other.
[[nodiscard]] QFont register_face();

}  // namespace ecr
