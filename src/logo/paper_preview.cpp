#include "logo/paper_preview.h"

#include <array>
#include <utility>

#include <QPainter>
#include <QPainterPath>

#include "logo/send_logo.h"

namespace ecr {
namespace {

// Paper is paper, in a light and in a dark look.
const QColor paper{0xFF, 0xFF, 0xFC};
const QColor edge{0xC4, 0xCA, 0xD0};
const QColor print{0xDD, 0xE0, 0xE3};
const QColor outline{0xA9, 0xB1, 0xB9};
const QColor writing{0x6B, 0x77, 0x85};

constexpr int side = 28;
constexpr int gap = 24;
constexpr int line_step = 18;
constexpr int bar = 7;
constexpr int tooth = 8;

/// What is printed below the logo, as grey bars: how long each is, in percent of the line. The first three stand in the
/// middle, as the lines of a shop's address.
constexpr std::array<int, 6> bars = {46, 64, 38, 100, 82, 91};
constexpr int bars_in_the_middle = 3;
constexpr int bars_size = static_cast<int>(bars.size());

constexpr QSize paper_size{logo_dots + 2 * side, gap + logo_lines + gap + bars_size* line_step + tooth};

/// The strip of paper, its lower end torn off.
QPainterPath strip(const QRectF& place) {
  QPainterPath path;
  path.moveTo(place.topLeft());
  path.lineTo(place.topRight());
  const int teeth = static_cast<int>(place.width()) / (2 * tooth);
  const double step = place.width() / teeth;
  for (int i = teeth; i > 0; --i) {
    path.lineTo(place.left() + i * step, place.bottom() - tooth);
    path.lineTo(place.left() + (i - 0.5) * step, place.bottom());
  }
  path.lineTo(place.left(), place.bottom() - tooth);
  path.closeSubpath();
  return path;
}

}  // namespace

QImage picture_of_bitmap(std::string_view bytes) {
  QImage picture = QImage::fromData(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())), "BMP");
  // A file may name fewer colours than its dots use. The toolkit looks such a dot up behind the end of the table.
  const int every_colour = picture.isNull() || picture.depth() > 8 ? 0 : 1 << picture.depth();
  if (picture.colorCount() < every_colour) picture.setColorCount(every_colour);
  return picture;
}

PaperPreview::PaperPreview(const QString& name, QString hint, QWidget* parent)
    : QLabel{parent}, hint_{std::move(hint)} {
  setObjectName(name);
  setFixedSize(paper_size + QSize{2, 2});
}

void PaperPreview::show_picture(const QImage& picture) {
  picture_ = picture;
  setPixmap(picture.isNull() ? QPixmap{} : QPixmap::fromImage(picture));
  update();
}

QSize PaperPreview::shown_size() const {
  const QSize size = picture_.size();
  const QSize room{logo_dots, logo_lines};
  return size.width() > room.width() || size.height() > room.height() ? size.scaled(room, Qt::KeepAspectRatio) : size;
}

void PaperPreview::paintEvent(QPaintEvent*) {
  QPainter painter{this};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen{edge, 1});
  painter.setBrush(paper);
  painter.drawPath(strip(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5)));
  painter.setRenderHint(QPainter::Antialiasing, false);

  const QRect place{1 + side, 1 + gap, logo_dots, logo_lines};
  if (picture_.isNull()) {
    painter.setPen(QPen{outline, 1, Qt::DashLine});
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    painter.setPen(writing);
    painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, hint_);
  } else {
    QRect shown{{}, shown_size()};
    shown.moveCenter(place.center());
    // Dots stay dots; only a picture that had to be made smaller is smoothed.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, shown.size() != picture_.size());
    // Ink on the paper: what is white in the picture stays as the paper is.
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.drawImage(shown, picture_);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  }
  int line = 0;
  for (const int percent : bars) {
    const int width = logo_dots * percent / 100;
    const int x = place.left() + (line < bars_in_the_middle ? (logo_dots - width) / 2 : 0);
    painter.fillRect(x, place.bottom() + 1 + gap + line * line_step, width, bar, print);
    ++line;
  }
}

}  // namespace ecr
