#include "captions/receipt_strip.h"

#include <QVBoxLayout>

#include "core/amount_text.h"
#include "core/global.h"
#include "core/register_text.h"
#include "image/prg_mode.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

QString both_ends(const QString& left, const QString& right) {
  const std::u16string line = at_both_ends(left.toStdU16String(), right.toStdU16String());
  return QString::fromStdU16String(line);
}

QString amount(const char* smallest_units) {
  return screen_text(Amount_Text(smallest_units, Global::DecimalPoint));
}

QString department(std::size_t index) {
  return trim_end(field_text(sostituzione_from_ecr(PrgMode.Dept[index].Name.view())));
}

}  // namespace

ReceiptStrip::ReceiptStrip(QWidget* parent) : QScrollArea{parent} {
  setFocusPolicy(Qt::NoFocus);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* desk = new QWidget{viewport()};
  auto* slips = new QVBoxLayout{desk};
  slips->setContentsMargins(0, 0, 0, 0);
  slips->setSpacing(6);
  const auto add_slip = [&] {
    auto* slip = new PaperSlip{desk};
    slips->addWidget(slip);
    return slip;
  };

  PaperSlip* receipt = add_slip();
  add_rows(*receipt, LineGroup::header);
  receipt->add_gap();
  constexpr int sale_rows = 6;
  for (int i = 0; i < sale_rows; ++i) sale_.push_back(receipt->add_row(QStringLiteral("T_Sale%1").arg(i + 1)));
  receipt->add_gap();
  add_rows(*receipt, LineGroup::footer);
  for (const LineGroup group : {LineGroup::extra_invoice, LineGroup::other, LineGroup::abbreviations}) {
    add_rows(*add_slip(), group);
  }
  slips->addStretch(1);
  setWidget(desk);
  setWidgetResizable(true);
  constexpr int beside_the_paper = 18;  // the scroll bar and a little air
  setFixedWidth(receipt->sizeHint().width() + beside_the_paper);
}

void ReceiptStrip::add_rows(PaperSlip& slip, LineGroup group) {
  const LineGroupRow& about = row_of(group);
  for (int line = 1; line <= about.lines; ++line) {
    rows_[index_of(group)].push_back(slip.add_row(QString::fromLatin1(about.preview) + QString::number(line)));
  }
}

PreviewRow& ReceiptStrip::row(LineGroup group, int line) const {
  return *rows_[index_of(group)][static_cast<std::size_t>(line)];
}

void ReceiptStrip::show_sale(const Sale& sale) {
  const QString rule{static_cast<int>(paper_cells), u'-'};
  sale_[0]->show_line(both_ends(department(0), amount("250")));
  sale_[1]->show_line(both_ends(department(1), amount("480")));
  sale_[2]->show_line(rule);
  sale_[3]->show_line(both_ends(sale.total, amount("730")));
  sale_[4]->show_line(both_ends(sale.cash, amount("1000")));
  sale_[5]->show_line(both_ends(sale.change, amount("270")));
}

void ReceiptStrip::bring_to_sight(LineGroup group) {
  ensureWidgetVisible(&row(group, row_of(group).lines - 1), 0, 20);
  ensureWidgetVisible(&row(group, 0), 0, 20);
}

void ReceiptStrip::point_out(LineGroup group, int line) {
  if (pointed_out_ != nullptr) pointed_out_->point_out(false);
  pointed_out_ = &row(group, line);
  pointed_out_->point_out(true);
  ensureWidgetVisible(pointed_out_, 0, 40);
}

}  // namespace ecr
