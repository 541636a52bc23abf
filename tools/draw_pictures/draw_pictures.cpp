// draw_pictures FOLDER: draws every picture of the program into the folder.

#include <vector>

#include <QCoreApplication>
#include <QDir>
#include <QImageWriter>
#include <QTextStream>

#include "few_colours.h"
#include "gif_file.h"
#include "pictures.h"

namespace {

struct Picture {
  const char* name;
  QImage image;
};

std::vector<Picture> draw_all() {
  using namespace ecr;
  return {
      {"Logo_Angolo.gif", draw_corner(160, 1)},
      {"Logo_Angolo.jpg", draw_corner(112, 1)},
      {"Logo_Angolo@2x.jpg", draw_corner(112, 2)},
      {"vermanto.bmp", draw_word_mark(1)},
      {"vermanto@2x.bmp", draw_word_mark(2)},
      {"vermanto.png", draw_icon(256)},
      {"vermanto-48.png", draw_icon(48)},
      {"vermanto-32.png", draw_icon(32)},
      {"vermanto-16.png", draw_icon(16)},
      {"help.png", draw_help(1)},
      {"help@2x.png", draw_help(2)},
      {"ECRZ300.png", draw_register_z300(1)},
      {"ECRZ300@2x.png", draw_register_z300(2)},
      {"ECRZ320.png", draw_register_z320(1)},
      {"ECRZ320@2x.png", draw_register_z320(2)},
      {"sample_logo.bmp", draw_sample_logo()},
      {"UK.gif", draw_flag_uk()},
      {"Spain.gif", draw_flag_spain()},
      {"France.gif", draw_flag_france()},
      {"Germany.gif", draw_flag_germany()},
      {"Netherlands.gif", draw_flag_netherlands()},
      {"Portugal.gif", draw_flag_portugal()},
      {"Denmark.gif", draw_flag_denmark()},
      {"Norway.gif", draw_flag_norway()},
  };
}

/// The form of the file follows its name.
bool write(const QImage& image, const QString& path) {
  if (path.endsWith(".gif")) return ecr::write_gif(image, path);
  QImageWriter writer(path);
  if (path.endsWith(".png")) {
    // A quarter of the bytes is read in half the time, which counts for the pictures of the first screen.
    writer.setCompression(100);
    return writer.write(ecr::few_colours(image.convertToFormat(QImage::Format_ARGB32)));
  }
  if (path.endsWith(".jpg")) {
    writer.setQuality(95);
    writer.setOptimizedWrite(true);
  }
  const bool is_black_and_white = image.format() == QImage::Format_Mono;
  return writer.write(is_black_and_white ? image : image.convertToFormat(QImage::Format_RGB888));
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);  // knows where the image formats are
  QTextStream errors(stderr);
  if (argc != 2) {
    errors << "draw_pictures FOLDER\n";
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  for (const Picture& picture : draw_all()) {
    const QString path = folder.filePath(picture.name);
    if (!write(picture.image, path)) {
      errors << path << " cannot be written\n";
      return 1;
    }
  }
  return 0;
}
