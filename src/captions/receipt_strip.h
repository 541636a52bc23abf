#pragma once
// What the lines of text look like on paper: a receipt with its header above and its footer below, and the slips with
// the invoice's own lines, the other lines and the abbreviations.

#include <array>
#include <vector>

#include <QScrollArea>
#include <QString>

#include "captions/line_groups.h"
#include "captions/paper.h"

namespace ecr {

class ReceiptStrip : public QScrollArea {
  Q_OBJECT

 public:
  explicit ReceiptStrip(QWidget* parent);

  /// The row of a line; lines are counted from 0.
  [[nodiscard]] PreviewRow& row(LineGroup group, int line) const;

  /// The short captions that the receipt in the middle shows, with their marks.
  struct Sale {
    QString total;
    QString cash;
    QString change;
  };
  void show_sale(const Sale& sale);

  /// Brings the group's first line to sight.
  void bring_to_sight(LineGroup group);
  /// Sets the row of a line off, and no other, and brings it to sight.
  void point_out(LineGroup group, int line);

 private:
  void add_rows(PaperSlip& slip, LineGroup group);

  std::array<std::vector<PreviewRow*>, line_groups.size()> rows_;
  std::vector<PreviewRow*> sale_;
  PreviewRow* pointed_out_ = nullptr;
};

}  // namespace ecr
