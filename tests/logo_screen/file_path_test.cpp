#include "logo/file_path.h"

#include <gtest/gtest.h>

#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

using FilePathTest = ScreenTest;

TEST_F(FilePathTest, ALongPathIsItsTextAndDoesNotWidenTheLabel) {
  FilePath label{QStringLiteral("L_percorso"), QStringLiteral("none"), nullptr};
  const QSize before = label.minimumSizeHint();
  const QString path = QStringLiteral("/a/rather/long/path").repeated(40);
  label.show_path(path);
  EXPECT_EQ(label.text(), path);
  EXPECT_EQ(label.toolTip(), path);
  EXPECT_EQ(label.minimumSizeHint(), before);
  EXPECT_EQ(label.sizeHint(), before);
  label.show_path({});
  EXPECT_EQ(label.text(), QString{});
  EXPECT_EQ(label.toolTip(), QString{});
}

TEST_F(FilePathTest, TheMiddleOfALongPathIsLeftOut) {
  FilePath label{QStringLiteral("L_percorso"), QStringLiteral("none"), nullptr};
  label.resize(120, 24);
  label.show_path(QStringLiteral("/begin/") + QString{400, u'x'} + QStringLiteral("/end.bmp"));
  const QImage one = label.grab().toImage();
  label.show_path(QStringLiteral("/begin/") + QString{300, u'x'} + QStringLiteral("/end.bmp"));
  EXPECT_EQ(label.grab().toImage(), one) << "what differs is what is left out";
  label.show_path(QStringLiteral("/begin/") + QString{400, u'x'} + QStringLiteral("/foe.bmp"));
  EXPECT_NE(label.grab().toImage(), one) << "the name at its end is seen";
}

TEST_F(FilePathTest, AnEmptyPathShowsAHintThatIsNotItsText) {
  FilePath hinted{QStringLiteral("L_percorso"), QStringLiteral("No file"), nullptr};
  FilePath silent{QStringLiteral("L_percorso"), {}, nullptr};
  hinted.resize(120, 24);
  silent.resize(120, 24);
  EXPECT_NE(hinted.grab().toImage(), silent.grab().toImage());
  EXPECT_EQ(hinted.text(), QString{});
}

}  // namespace
}  // namespace ecr::test
