#include "captions/paper.h"

#include <cmath>

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace ecr {
namespace {

// Paper stays paper in a dark room too.
constexpr QRgb paper_colour = 0xFFFCFAF3;
constexpr QRgb edge_colour = 0xFFD9D3C3;
constexpr QRgb ink_colour = 0xFF2A2722;
constexpr QRgb double_ground = 0xFFF3DDA6;
constexpr QRgb pointed_ground = 0xFFE4EFEA;

constexpr int row_margin = 4;
constexpr int slip_margin = 10;
constexpr double tooth = 6;

}  // namespace

QFont register_face() {
  QFont face = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  face.setPointSizeF(9.5);
  return face;
}

PreviewRow::PreviewRow(const QString& name, int cells, QWidget* parent)
    : QWidget{parent}, cells_(static_cast<std::size_t>(cells)), face_{register_face()}, bold_face_{face_} {
  setObjectName(name);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  bold_face_.setBold(true);
  const QFontMetricsF metrics{face_};
  cell_width_ = static_cast<int>(std::ceil(metrics.horizontalAdvance(u'M')));
  row_height_ = static_cast<int>(std::ceil(metrics.height())) + 1;
  base_ = static_cast<int>(std::ceil(metrics.ascent()));
}

void PreviewRow::show_line(const QString& line) {
  if (line == line_) return;
  line_ = line;
  print_cells(line.toStdU16String(), cells_);
  update();
}

QString PreviewRow::text() const {
  QString characters;
  for (const PrintCell& cell : cells_) characters += QChar{cell.character};
  return characters;
}

void PreviewRow::point_out(bool on) {
  if (on == pointed_out_) return;
  pointed_out_ = on;
  update();
}

QSize PreviewRow::sizeHint() const {
  return {cell_width_ * static_cast<int>(cells_.size()) + 2 * row_margin, row_height_};
}

void PreviewRow::paintEvent(QPaintEvent*) {
  QPainter painter{this};
  if (pointed_out_) painter.fillRect(rect(), QColor::fromRgb(pointed_ground));
  painter.setPen(QColor::fromRgb(ink_colour));
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    const PrintCell& cell = cells_[i];
    const int left = row_margin + static_cast<int>(i) * cell_width_;
    if (cell.part == PrintCell::Part::double_right ||
        (cell.part == PrintCell::Part::single && cell.character == u' ')) {
      continue;
    }
    const QString character{QChar{cell.character}};
    if (cell.part == PrintCell::Part::single) {
      painter.setFont(face_);
      painter.drawText(left, base_, character);
      continue;
    }
    painter.fillRect(QRect{left, 0, 2 * cell_width_, row_height_}.adjusted(1, 1, -1, -1),
                     QColor::fromRgb(double_ground));
    painter.save();
    painter.setFont(bold_face_);
    painter.translate(left, base_);
    painter.scale(2, 1);
    painter.drawText(0, 0, character);
    painter.restore();
  }
}

PaperSlip::PaperSlip(QWidget* parent) : QWidget{parent}, rows_{new QVBoxLayout{this}} {
  const int torn = static_cast<int>(tooth);
  rows_->setContentsMargins(slip_margin, torn + 6, slip_margin, torn + 6);
  rows_->setSpacing(0);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

PreviewRow* PaperSlip::add_row(const QString& name, int cells) {
  auto* row = new PreviewRow{name, cells, this};
  rows_->addWidget(row);
  return row;
}

void PaperSlip::add_gap() {
  rows_->addSpacing(8);
}

void PaperSlip::paintEvent(QPaintEvent*) {
  const double right = width() - 0.5;
  const double bottom = height() - 0.5;
  QPainterPath outline{{0.5, tooth}};
  const auto tear = [&](double from, double to, double base, double tip) {
    const int teeth = std::max(1, static_cast<int>(std::abs(to - from) / (2 * tooth)));
    const double step = (to - from) / teeth;
    for (int i = 0; i < teeth; ++i) {
      outline.lineTo(from + step * (i + 0.5), tip);
      outline.lineTo(from + step * (i + 1), base);
    }
  };
  tear(0.5, right, tooth, 0.5);
  outline.lineTo(right, bottom - tooth);
  tear(right, 0.5, bottom - tooth, bottom);
  outline.closeSubpath();
  QPainter painter{this};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QColor::fromRgb(edge_colour));
  painter.setBrush(QColor::fromRgb(paper_colour));
  painter.drawPath(outline);
}

}  // namespace ecr
