#include "widgets/box_style.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

namespace ecr {
namespace {

/// The empty square or circle; filled with the accent where it is chosen.
void draw_ground(QPainter& painter, const QRectF& place, double radius, const QStyleOption& option) {
  const QPalette& colours = option.palette;
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const bool chosen = !option.state.testFlag(QStyle::State_Off);
  const bool marked = option.state.testFlag(QStyle::State_MouseOver) || option.state.testFlag(QStyle::State_HasFocus);
  const QColor accent = colours.color(QPalette::Highlight);
  const QColor muted = colours.color(QPalette::Disabled, QPalette::WindowText);
  painter.setPen(enabled && (chosen || marked) ? accent : muted);
  painter.setBrush(enabled ? colours.color(chosen ? QPalette::Highlight : QPalette::Base)
                           : colours.color(QPalette::Window));
  painter.drawRoundedRect(place, radius, radius);
}

QColor mark_colour(const QStyleOption& option) {
  return option.state.testFlag(QStyle::State_Enabled) ? option.palette.color(QPalette::HighlightedText)
                                                      : option.palette.color(QPalette::Disabled, QPalette::WindowText);
}

void draw_check_box(QPainter& painter, const QRectF& place, const QStyleOption& option) {
  draw_ground(painter, place, 3, option);
  if (option.state.testFlag(QStyle::State_Off)) return;
  const auto at = [&place](double x, double y) {
    return QPointF{place.left() + x * place.width(), place.top() + y * place.height()};
  };
  QPainterPath mark{at(0.22, 0.52)};
  mark.lineTo(at(0.43, 0.73));
  mark.lineTo(at(0.78, 0.29));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen{mark_colour(option), place.width() * 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
  painter.drawPath(mark);
}

void draw_option_button(QPainter& painter, const QRectF& place, const QStyleOption& option) {
  draw_ground(painter, place, place.width() / 2, option);
  if (option.state.testFlag(QStyle::State_Off)) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(mark_colour(option));
  painter.drawEllipse(place.center(), place.width() * 0.2, place.height() * 0.2);
}

}  // namespace

void BoxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  if (element != PE_IndicatorCheckBox && element != PE_IndicatorRadioButton) {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    return;
  }
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  const QRectF place = QRectF{option->rect}.adjusted(0.5, 0.5, -0.5, -0.5);
  if (element == PE_IndicatorCheckBox) {
    draw_check_box(*painter, place, *option);
  } else {
    draw_option_button(*painter, place, *option);
  }
  painter->restore();
}

}  // namespace ecr
