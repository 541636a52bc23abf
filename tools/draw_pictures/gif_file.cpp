#include "gif_file.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <gif_lib.h>
#include <memory>
#include <vector>

#include <QFile>
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

using ColourMap = std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)>;

ColourMap map_of(const QList<QRgb>& colours) {
  std::vector<GifColorType> entries;
  for (const QRgb rgb : colours) {
    entries.push_back({static_cast<GifByteType>(qRed(rgb)), static_cast<GifByteType>(qGreen(rgb)),
                       static_cast<GifByteType>(qBlue(rgb))});
  }
  // The format takes a power of two of entries, from two.
  entries.resize(std::bit_ceil(std::max<std::size_t>(entries.size(), 2)));
  return {GifMakeMapObject(static_cast<int>(entries.size()), entries.data()), &GifFreeMapObject};
}

int write_bytes(GifFileType* file, const GifByteType* bytes, int count) {
  auto* const device = static_cast<QFile*>(file->UserData);
  return static_cast<int>(device->write(reinterpret_cast<const char*>(bytes), count));
}

bool put_image(GifFileType* file, const QImage& image) {
  const QList<QRgb> colours = colours_of(image);
  QImage indexed = image.convertToFormat(QImage::Format_Indexed8, colours, Qt::ThresholdDither | Qt::AvoidDither);
  const ColourMap map = map_of(colours);
  if (!map) return false;
  if (EGifPutScreenDesc(file, image.width(), image.height(), 8, 0, map.get()) == GIF_ERROR) return false;
  if (EGifPutImageDesc(file, 0, 0, image.width(), image.height(), false, nullptr) == GIF_ERROR) return false;
  for (int y = 0; y < image.height(); ++y) {
    if (EGifPutLine(file, indexed.scanLine(y), image.width()) == GIF_ERROR) return false;
  }
  return true;
}

}  // namespace

bool write_gif(const QImage& image, const QString& path) {
  QFile device(path);
  if (!device.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  GifFileType* const file = EGifOpen(&device, &write_bytes, nullptr);
  if (file == nullptr) return false;
  const bool put = put_image(file, image.convertToFormat(QImage::Format_RGB32));
  return EGifCloseFile(file, nullptr) != GIF_ERROR && put && device.flush();
}

}  // namespace ecr
