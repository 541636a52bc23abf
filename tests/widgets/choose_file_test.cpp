#include "widgets/choose_file.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QPushButton>
#include <QTimer>

#include "core/files.h"
#include "support_qt/screen_test.h"
#include "widgets/plain_screen.h"

namespace ecr::test {
namespace {

const Chooser text_files{QStringLiteral("Choose"), QStringLiteral("Text (*.txt)")};

class ChooseFile : public ScreenTest {
 protected:
  ChooseFile() { open(new PlainScreen); }

  /// Does this with the chooser that comes up next.
  void when_up(const std::function<void(QFileDialog&)>& person) {
    QTimer::singleShot(0, &stage, [person] {
      auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(chooser, nullptr) << "no file chooser is up";
      person(*chooser);
    });
  }
  void name(QFileDialog& chooser, const std::string& path) const {
    chooser.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QString::fromStdString(host(path)));
    const bool saves = chooser.acceptMode() == QFileDialog::AcceptSave;
    chooser.findChild<QDialogButtonBox*>()->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open)->click();
  }
};

TEST_F(ChooseFile, AnswersThePathWithBackslashes) {
  when_up([this](QFileDialog& chooser) {
    EXPECT_EQ(chooser.windowTitle(), QStringLiteral("Choose"));
    EXPECT_EQ(chooser.nameFilters(), QStringList{"Text (*.txt)"});
    name(chooser, "new.txt");
  });
  EXPECT_EQ(choose_file_to_save(stage.top(), text_files, {}), backslash_path(host("new.txt")));
}

TEST_F(ChooseFile, AFileToReadNeedNotBeThere) {
  when_up([this](QFileDialog& chooser) { name(chooser, "missing.txt"); });
  EXPECT_EQ(choose_file_to_open(stage.top(), text_files, {}), backslash_path(host("missing.txt")));
}

TEST_F(ChooseFile, AnOlderFileIsNamedWithoutAQuestion) {
  write("old.txt", "old");
  when_up([this](QFileDialog& chooser) { name(chooser, "old.txt"); });
  EXPECT_EQ(choose_file_to_save(stage.top(), text_files, {}), backslash_path(host("old.txt")));
  EXPECT_EQ(bytes("old.txt"), "old") << "the chooser itself touches no file";
}

TEST_F(ChooseFile, WhatIsOfferedIsNamedAndCancellingAnswersNothing) {
  write("old.txt", "old");
  QString named;
  when_up([&named](QFileDialog& chooser) {
    named = chooser.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    chooser.reject();
  });
  EXPECT_EQ(choose_file_to_open(stage.top(), text_files, backslash_path(host("old.txt"))), std::nullopt);
  EXPECT_EQ(named, QStringLiteral("old.txt"));
}

TEST_F(ChooseFile, HasTheNameAndTheFolderThatWereAskedFor) {
  when_up([this](QFileDialog& chooser) {
    EXPECT_EQ(chooser.objectName(), QStringLiteral("Comm_Percorso"));
    EXPECT_EQ(chooser.directory().absolutePath(), QString::fromStdString(host("Setup")));
    chooser.reject();
  });
  Chooser wish = text_files;
  wish.name = QStringLiteral("Comm_Percorso");
  wish.folder = QString::fromStdString(host("Setup"));
  EXPECT_EQ(choose_file_to_open(stage.top(), wish), std::nullopt);
}

TEST_F(ChooseFile, RefusesAFileThatIsNotThereWhereItMustBe) {
  when_up([this](QFileDialog& chooser) {
    name(chooser, "missing.txt");
    EXPECT_TRUE(chooser.isVisible()) << "the chooser stays up";
    chooser.reject();
  });
  Chooser wish = text_files;
  wish.must_be_there = true;
  EXPECT_EQ(choose_file_to_open(stage.top(), wish), std::nullopt);
}

}  // namespace
}  // namespace ecr::test
