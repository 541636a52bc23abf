// Makes smaller pictures of screens.
//
//   picture_sheet page FOLDER FOLDER   each picture of the first folder, as wide as a page of the manual, in few
//   colours picture_sheet sheet FOLDER FILE    all pictures of a folder on one sheet, each with its name

#include <cstdio>

#include <QDir>
#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "../draw_pictures/few_colours.h"

namespace {

constexpr int page_width = 660;
constexpr int sheet_columns = 6;
constexpr int thumbnail_width = 340;
constexpr int margin = 12;
constexpr int caption_height = 22;

QStringList pictures_of(const QDir& folder) {
  return folder.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
}

int fail(const QString& what) {
  std::fprintf(stderr, "%s\n", qPrintable(what));
  return 1;
}

int make_pages(const QDir& from, const QDir& to) {
  if (!QDir{}.mkpath(to.path())) return fail(QStringLiteral("cannot make ") + to.path());
  for (const QString& name : pictures_of(from)) {
    const QImage picture{from.filePath(name)};
    if (picture.isNull()) return fail(QStringLiteral("not a picture: ") + name);
    const bool is_wider = picture.width() > page_width;
    const QImage page = is_wider ? picture.scaledToWidth(page_width, Qt::SmoothTransformation) : picture;
    if (!ecr::few_colours(page).save(to.filePath(name), "PNG", 0)) return fail(QStringLiteral("cannot write ") + name);
  }
  return 0;
}

int make_sheet(const QDir& from, const QString& file) {
  const QStringList names = pictures_of(from);
  if (names.isEmpty()) return fail(QStringLiteral("no pictures in ") + from.path());
  std::vector<QImage> thumbnails;
  int height = 0;
  for (const QString& name : names) {
    const QImage picture{from.filePath(name)};
    if (picture.isNull()) return fail(QStringLiteral("not a picture: ") + name);
    thumbnails.push_back(picture.scaledToWidth(thumbnail_width, Qt::SmoothTransformation));
    height = std::max(height, thumbnails.back().height());
  }
  const int rows = (static_cast<int>(names.size()) + sheet_columns - 1) / sheet_columns;
  const int cell_width = thumbnail_width + margin;
  const int cell_height = height + caption_height + margin;
  QImage sheet{sheet_columns * cell_width + margin, rows * cell_height + margin, QImage::Format_RGB32};
  sheet.fill(Qt::white);
  QPainter painter{&sheet};
  painter.setPen(Qt::black);
  for (int i = 0; i < names.size(); ++i) {
    const int x = margin + i % sheet_columns * cell_width;
    const int y = margin + i / sheet_columns * cell_height;
    painter.drawText(QRect{x, y, thumbnail_width, caption_height}, Qt::AlignLeft | Qt::AlignVCenter,
                     names[i].chopped(4));
    painter.drawImage(x, y + caption_height, thumbnails[static_cast<std::size_t>(i)]);
  }
  painter.end();
  return sheet.save(file, "PNG") ? 0 : fail(QStringLiteral("cannot write ") + file);
}

}  // namespace

int main(int count, char** words) {
  const QGuiApplication application{count, words};
  const QStringList given = QGuiApplication::arguments().mid(1);
  if (given.size() == 3 && given[0] == QStringLiteral("page")) return make_pages(QDir{given[1]}, QDir{given[2]});
  if (given.size() == 3 && given[0] == QStringLiteral("sheet")) return make_sheet(QDir{given[1]}, given[2]);
  return fail(QStringLiteral("usage: picture_sheet page FOLDER FOLDER | picture_sheet sheet FOLDER FILE"));
}
