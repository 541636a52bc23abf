#pragma once
// The tab of the lines: five groups of fields on the left, the paper on the right.

#include <array>
#include <functional>
#include <vector>

#include <QCheckBox>
#include <QLabel>
#include <QTabWidget>
#include <QWidget>

#include "captions/caption_line.h"
#include "captions/line_groups.h"
#include "captions/receipt_strip.h"
#include "widgets/captions.h"

namespace ecr {

class ReceiptPage : public QWidget {
  Q_OBJECT

 public:
  /// `changed` runs when a line has changed.
  ReceiptPage(Captions& captions, std::function<void()> changed, QWidget* parent);

  /// Sets the captions that are put together: of the tabs and of the lines' labels.
  void carica_messaggi();
  /// Prints all lines on the paper.
  void show_on_paper();

  [[nodiscard]] const std::vector<CaptionLine*>& lines(LineGroup group) const { return lines_[index_of(group)]; }
  [[nodiscard]] const std::vector<QLabel*>& labels(LineGroup group) const { return labels_[index_of(group)]; }
  [[nodiscard]] ReceiptStrip& paper() const { return *strip_; }

 private:
  QWidget* make_group(LineGroup group);
  void show_group(int tab);

  std::function<void()> changed_;
  QTabWidget* Tab_Invoice;
  QCheckBox* Chk_Double;
  ReceiptStrip* strip_;
  QLabel* L_NoZ300 = nullptr;  ///< tells on a Z300 that the invoice lines are not its own to change
  std::array<std::vector<CaptionLine*>, line_groups.size()> lines_;
  std::array<std::vector<QLabel*>, line_groups.size()> labels_;
};

}  // namespace ecr
