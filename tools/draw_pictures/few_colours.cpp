#include "few_colours.h"

#include <algorithm>

#include <QHash>
#include <QList>

namespace ecr {
namespace {

constexpr qsizetype most_colours = 256;

/// The colours of the image, the most frequent first, those beyond the 256th left out. Between equally frequent ones
/// the value decides, so that a drawing always makes the same file.
QList<QRgb> colours_of(const QImage& image) {
  QHash<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  }
  QList<QRgb> colours = counts.keys();
  std::sort(colours.begin(), colours.end(),
            [&](QRgb a, QRgb b) { return counts[a] != counts[b] ? counts[a] > counts[b] : a < b; });
  colours.resize(std::min(colours.size(), most_colours));
  return colours;
}

}  // namespace

QImage few_colours(const QImage& image) {
  return image.convertToFormat(QImage::Format_Indexed8, colours_of(image), Qt::ThresholdDither | Qt::AvoidDither);
}

}  // namespace ecr
