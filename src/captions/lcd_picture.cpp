#include "captions/lcd_picture.h"

#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "captions/paper.h"
#include "captions/scroll_message.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr QRgb frame_colour = 0xFF2E3330;
constexpr QRgb glass_colour = 0xFFBFD1A4;
constexpr QRgb cell_colour = 0xFFB5C899;
constexpr QRgb dot_colour = 0xFF1D2A1B;
constexpr int frame = 10;
constexpr int glass_margin = 8;
constexpr int gap = 2;

}  // namespace

LcdPicture::LcdPicture(const QString& name, QWidget* parent) : QWidget{parent}, face_{register_face()} {
  setObjectName(name);
  setAccessibleName(own_words(OwnText::display));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  face_.setPointSizeF(14);
  face_.setBold(true);
  const QFontMetricsF metrics{face_};
  cell_width_ = static_cast<int>(std::ceil(metrics.horizontalAdvance(u'M'))) + 3;
  cell_height_ = static_cast<int>(std::ceil(metrics.height())) + 2;
  connect(&timer_, &QTimer::timeout, this, &LcdPicture::step);
}

void LcdPicture::show_message(const QString& message) {
  message_ = message.toStdU16String();
  update();
}

void LcdPicture::play(int interval_ms) {
  if (timer_.isActive()) {
    timer_.setInterval(interval_ms);
    return;
  }
  step_ = 0;
  timer_.start(interval_ms);
  update();
}

void LcdPicture::stop() {
  timer_.stop();
  step_ = 0;
  update();
}

void LcdPicture::step() {
  step_ = (step_ + 1) % display_period(message_);
  update();
}

QString LcdPicture::text() const {
  return QString::fromStdU16String(display_window(message_, step_));
}

QSize LcdPicture::sizeHint() const {
  const int columns = static_cast<int>(display_columns);
  return {columns * (cell_width_ + gap) - gap + 2 * (frame + glass_margin), cell_height_ + 2 * (frame + glass_margin)};
}

void LcdPicture::paintEvent(QPaintEvent*) {
  QPainter painter{this};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgb(frame_colour));
  painter.drawRoundedRect(rect(), 8, 8);
  painter.setBrush(QColor::fromRgb(glass_colour));
  painter.drawRoundedRect(rect().adjusted(frame, frame, -frame, -frame), 3, 3);
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setFont(face_);
  painter.setPen(QColor::fromRgb(dot_colour));
  const QString shown = text();
  for (int column = 0; column < shown.size(); ++column) {
    const QRect cell{frame + glass_margin + column * (cell_width_ + gap), frame + glass_margin, cell_width_,
                     cell_height_};
    painter.fillRect(cell, QColor::fromRgb(cell_colour));
    painter.drawText(cell, Qt::AlignCenter, QString{shown[column]});
  }
}

}  // namespace ecr
