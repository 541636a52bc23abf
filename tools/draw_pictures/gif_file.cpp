#include "gif_file.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <gif_lib.h>
#include <memory>
#include <vector>

#include <QFile>
#include <QList>

#include "few_colours.h"

namespace ecr {
namespace {

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
  QImage indexed = few_colours(image);
  const ColourMap map = map_of(indexed.colorTable());
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
