#include "widgets/pictures.h"

#include <future>
#include <map>
#include <utility>
#include <vector>

#include <QImage>

#include "core/files.h"
#include "core/global.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

/// By host path.
using Images = std::map<QString, QImage>;

/// `path` as the screens draw it, so that nothing is left to be turned when it is shown.
QImage drawn_image(const QString& path, bool fine) {
  QImage image;
  if (fine) image.load(QString{path}.insert(path.lastIndexOf(u'.'), QStringLiteral("@2x")));
  if (image.isNull()) image.load(path);
  if (image.isNull()) return image;
  image.setDevicePixelRatio(1);
  return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                  : QImage::Format_RGB32);
}

/// What was read ahead and not yet taken; waits for what is on its way.
class ReadAhead {
 public:
  void begin(std::vector<QString> paths, bool fine) {
    on_its_way_ = std::async(std::launch::async, [paths = std::move(paths), fine] {
      Images images;
      for (const QString& path : paths) images[path] = drawn_image(path, fine);
      return images;
    });
  }

  QImage take(const QString& path, bool fine) {
    if (on_its_way_.valid()) images_ = on_its_way_.get();
    auto read = images_.extract(path);
    return read ? std::move(read.mapped()) : drawn_image(path, fine);
  }

 private:
  std::future<Images> on_its_way_;
  Images images_;
};

ReadAhead& read_ahead() {
  static ReadAhead pictures;
  return pictures;
}

}  // namespace

QPixmap setup_pixmap(const QString& file, QSize size, qreal ratio) {
  QPixmap pixmap = QPixmap::fromImage(read_ahead().take(setup_file(file), ratio > 1));
  if (pixmap.isNull()) return pixmap;
  if (const QSize pixels = size * ratio; pixmap.size() != pixels) {
    pixmap = pixmap.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  }
  pixmap.setDevicePixelRatio(ratio);
  return pixmap;
}

void read_pictures_ahead(std::initializer_list<const char*> files, qreal ratio) {
  std::vector<QString> paths;
  for (const char* file : files) paths.push_back(setup_file(QString::fromLatin1(file)));
  read_ahead().begin(std::move(paths), ratio > 1);
}

QString setup_file(const QString& name) {
  return path_for_toolkit(host_path(Global::PathSetup)) + name;
}

}  // namespace ecr
