#include "keyboard/keyboard_picture.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <QPainter>

#include "widgets/controls.h"

namespace ecr {
namespace {

constexpr int rim = 9;    // of the plate
constexpr int free = 8;   // above and below it
constexpr int gap = 8;    // between two groups of keys
constexpr int space = 4;  // between two keys
constexpr QSize smallest_key{50, 44};
constexpr QSize largest_key{104, 80};

/// How far a stroke leads: columns to the right and rows down.
struct Step {
  int columns = 0;
  int rows = 0;
};
Step step_of(int stroke) {
  switch (stroke) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {};
  }
}

}  // namespace

KeyboardPicture::KeyboardPicture(const KeyboardForm& form, const char* array, QWidget* parent)
    : QWidget{parent}, form_{form} {
  for (const KeyCapPlace& place : form_.caps) {
    if (place.key == 0) continue;
    auto* cap = new KeyCap{member_name(array, place.key), place.key, this};
    connect(cap, &KeyCap::clicked, this, [this, key = place.key] {
      if (press_) press_(key);
    });
    cap->on_drop([this, key = place.key](std::uint8_t code) {
      if (drop_) drop_(key, code);
    });
    cap->on_focus([this, cap] { make_tab_stop(*cap); });
    cap->on_key_stroke([this, cap](int stroke) { return go_on(*cap, stroke); });
    caps_.push_back(cap);
  }
  make_tab_stop(*caps_.front());
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void KeyboardPicture::mark(std::uint8_t code) {
  for (KeyCap* cap : caps_) cap->mark(code);
}

QSize KeyboardPicture::size_for(QSize cap) const {
  const int gaps = static_cast<int>(form_.gaps.size()) * gap;
  return QSize{form_.columns * cap.width() + gaps, form_.rows * cap.height()} + QSize{2 * rim, 2 * rim};
}

QSize KeyboardPicture::sizeHint() const {
  return size_for(smallest_key + QSize{8, 4}) + QSize{0, 2 * free};
}

QSize KeyboardPicture::minimumSizeHint() const {
  return size_for(smallest_key) + QSize{0, 2 * free};
}

QRect KeyboardPicture::plate() const {
  QRect plate{{}, size_for(cap_)};
  plate.moveCenter(rect().center());
  return plate;
}

int KeyboardPicture::left_of(int column, int width) const {
  const auto gaps = std::count_if(form_.gaps.begin(), form_.gaps.end(), [column](int at) { return at <= column; });
  return column * width + static_cast<int>(gaps) * gap;
}

QRect KeyboardPicture::place_of(const KeyCapPlace& cap) const {
  const QPoint corner = plate().topLeft() + QPoint{rim, rim};
  const int left = left_of(cap.column, cap_.width());
  const int right = left_of(cap.column + cap.columns - 1, cap_.width()) + cap_.width();
  const QRect whole{corner.x() + left, corner.y() + cap.row * cap_.height(), right - left, cap.rows * cap_.height()};
  return whole.adjusted(space / 2, space / 2, -space / 2, -space / 2);
}

void KeyboardPicture::resizeEvent(QResizeEvent*) {
  const QSize inside = size() - size_for({0, 0}) - QSize{0, 2 * free};
  cap_ = QSize{inside.width() / form_.columns, inside.height() / form_.rows}.boundedTo(largest_key);
  for (const KeyCapPlace& place : form_.caps) {
    if (place.key != 0) cap(place.key).setGeometry(place_of(place));
  }
}

void KeyboardPicture::paintEvent(QPaintEvent*) {
  QPainter painter{this};
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ground = palette().color(QPalette::Window);
  const QColor ink = palette().color(QPalette::WindowText);
  painter.setPen(between(ground, ink, 0.16));
  painter.setBrush(between(ground, ink, 0.07));
  painter.drawRoundedRect(QRectF{plate()}.adjusted(0.5, 0.5, -0.5, -0.5), 9, 9);
  for (const KeyCapPlace& place : form_.caps) {
    if (place.key != 0) continue;
    const QRect where = place_of(place);
    draw_key(painter, where, palette(), KeyFace{.fixed = true});
    const QString print = QString::fromLatin1(place.print.data(), static_cast<qsizetype>(place.print.size()));
    draw_key_text(painter, where, fit_text(print, text_place(where).size()), fixed_print(palette()), false);
  }
}

void KeyboardPicture::make_tab_stop(KeyCap& cap) {
  if (tab_stop_ != nullptr) tab_stop_->setFocusPolicy(Qt::ClickFocus);
  tab_stop_ = &cap;
  cap.setFocusPolicy(Qt::StrongFocus);
}

bool KeyboardPicture::go_on(const KeyCap& from, int stroke) {
  const KeyCapPlace& here = form_.caps[from.key() - 1U];
  const Step step = step_of(stroke);
  const bool to_end = stroke == Qt::Key_Home || stroke == Qt::Key_End;
  if (step.columns == 0 && step.rows == 0 && !to_end) return false;
  const KeyCapPlace* best = nullptr;
  int best_way = 0;
  for (const KeyCapPlace& place : form_.caps) {
    if (place.key == 0 || place.key == here.key) continue;
    const int columns = place.column - here.column;
    const int rows = place.row - here.row;
    int way = 0;
    if (to_end) {
      // The end of the row, which is the largest way to it.
      if (rows != 0) continue;
      way = stroke == Qt::Key_End ? -columns : columns;
      if (way >= 0) continue;
    } else {
      // Straight on where there is a key, else the one least aside.
      const int ahead = columns * step.columns + rows * step.rows;
      const int aside = std::abs(columns * step.rows) + std::abs(rows * step.columns);
      if (ahead <= 0 || (step.columns != 0 && aside != 0)) continue;
      way = ahead + 100 * aside;
    }
    if (best == nullptr || way < best_way) {
      best = &place;
      best_way = way;
    }
  }
  if (best != nullptr) cap(best->key).setFocus(Qt::TabFocusReason);
  return true;
}

}  // namespace ecr
