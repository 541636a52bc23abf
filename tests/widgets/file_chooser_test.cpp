#include "widgets/file_chooser.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QPushButton>
#include <QTimer>

#include "core/files.h"
#include "support_qt/screen_test.h"
#include "widgets/screen_text.h"

namespace ecr::test {
namespace {

class FileChooserTest : public ScreenTest {
 protected:
  /// Opens the chooser and lets `person` answer it.
  QString chosen(const std::function<void(QFileDialog&)>& person) {
    QTimer::singleShot(0, &stage, [person] {
      auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(chooser, nullptr);
      person(*chooser);
    });
    return choose_file_to_open(stage, {QStringLiteral("Comm_Percorso"), QStringLiteral("File Import Selection"),
                                       QStringLiteral("File (*.txt)")});
  }
  static void answer(QFileDialog& chooser, const QString& path) {
    chooser.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
    chooser.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
  }
};

TEST_F(FileChooserTest, AnswersThePathOfTheFileThatWasChosen) {
  write("bakery.txt", "x");
  const QString path = path_for_toolkit(host("bakery.txt"));
  EXPECT_EQ(chosen([&](QFileDialog& chooser) { answer(chooser, path); }), path);
}

TEST_F(FileChooserTest, AnswersNothingWhereItIsCancelled) {
  EXPECT_EQ(chosen([](QFileDialog& chooser) { chooser.reject(); }), QString{});
}

TEST_F(FileChooserTest, HasTheNameTitleAndFilterThatWereAskedForAndBeginsInTheApplicationFolder) {
  static_cast<void>(chosen([&](QFileDialog& chooser) {
    EXPECT_EQ(chooser.objectName(), QStringLiteral("Comm_Percorso"));
    EXPECT_EQ(chooser.windowTitle(), QStringLiteral("File Import Selection"));
    EXPECT_EQ(chooser.nameFilters(), QStringList{QStringLiteral("File (*.txt)")});
    EXPECT_EQ(chooser.directory().absolutePath(), path_for_toolkit(host("Setup")).chopped(6));
    chooser.reject();
  }));
}

TEST_F(FileChooserTest, TakesNoFileThatIsNotThere) {
  const QString path = path_for_toolkit(host("none.txt"));
  EXPECT_EQ(chosen([&](QFileDialog& chooser) {
              answer(chooser, path);
              EXPECT_TRUE(chooser.isVisible()) << "the chooser stays up";
              chooser.reject();
            }),
            QString{});
}

}  // namespace
}  // namespace ecr::test
