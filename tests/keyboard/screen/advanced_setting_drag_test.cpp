#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTest>
#include <QWindow>

#include "fields/key_codes.h"
#include "keyboard/key_drag.h"
#include "keyboard/screen/advanced_setting_keys.h"
#include "widgets/look.h"

namespace ecr::test {
namespace {

class AdvancedSettingDrag : public AdvancedSettingKeys {
 protected:
  ~AdvancedSettingDrag() override { carry_drag = nullptr; }

  /// Lets go of what is dragged over a control.
  static void drop(const QMimeData* data, QWidget& over) {
    const QPoint place = over.rect().center();
    QDragEnterEvent enter{place, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier};
    enter.ignore();
    QApplication::sendEvent(&over, &enter);
    if (!enter.isAccepted()) return;
    QDropEvent event{place, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier};
    QApplication::sendEvent(&over, &event);
  }
  /// The display that tests have carries nothing, so what is dragged falls right onto this control.
  void let_drags_fall_on(QWidget& control) {
    carry_drag = [this, &control](QDrag& drag) {
      ++drags;
      EXPECT_FALSE(drag.pixmap().isNull());
      drop(drag.mimeData(), control);
    };
  }
  /// Presses on a control, pulls the pointer out of it and lets go over another one. Answers whether anything came
  /// along.
  bool drag(QWidget& from, QWidget& to) {
    drags = 0;
    let_drags_fall_on(to);
    QWindow* window = stage.windowHandle();
    const QPoint start = from.mapTo(&stage, from.rect().center());
    const QPoint end = to.mapTo(&stage, to.rect().center());
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(window, end);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, end);
    let_screens_settle();
    return drags == 1;
  }
  int drags = 0;
};

TEST_F(AdvancedSettingDrag, AFunctionDraggedFromTheListsSideGoesOntoTheKey) {
  open_keys();
  choose("DEPT 1");
  EXPECT_TRUE(drag(control("L_Preview"), cap(30)));
  EXPECT_EQ(cap(30).text(), QStringLiteral("DEPT 1"));
  EXPECT_EQ(ink(cap(30)), text_red());
  EXPECT_TRUE(drag(control("L_Preview"), cap(31)));
  EXPECT_EQ(cap(30).text(), QStringLiteral("NO OPERATION"));
  EXPECT_EQ(cap(31).text(), QStringLiteral("DEPT 1"));
}

TEST_F(AdvancedSettingDrag, AKeyDraggedOntoAnotherTakesItsFunctionAlong) {
  open_keys();
  const QString function = cap(11).text();
  EXPECT_TRUE(drag(cap(11), cap(12)));
  EXPECT_EQ(cap(12).text(), function);
  EXPECT_EQ(cap(11).text(), QStringLiteral("NO OPERATION"));
  EXPECT_EQ(ink(cap(11)), text_red());
  EXPECT_EQ(list("Cmb_KeyList").text(), QString{});
  save();
  EXPECT_EQ(stored(11), no_operation);
  EXPECT_TRUE(drag(cap(12), control("L_KeyAssignHelp")));
  EXPECT_EQ(cap(12).text(), function) << "dropped beside the keys it goes nowhere";
}

TEST_F(AdvancedSettingDrag, WhatHasNoNameCannotBeDragged) {
  PrgMode.KeyLayout.at(position(11)) = 39;
  PrgMode.KeyLayout.at(position(13)) = no_operation;
  open_keys();
  const QString function = cap(12).text();
  EXPECT_FALSE(drag(cap(11), cap(12)));
  EXPECT_FALSE(drag(cap(13), cap(12)));
  EXPECT_FALSE(drag(control("L_Preview"), cap(12))) << "nothing is chosen";
  EXPECT_EQ(cap(12).text(), function);
  EXPECT_EQ(cap(11).text(), QString{});
  EXPECT_EQ(ink(cap(12)), text_plain());
}

TEST_F(AdvancedSettingDrag, ALinePulledOutOfTheOpenListIsChosenAndGoesAlong) {
  open_keys();
  auto& functions = list("Cmb_KeyList");
  const int line = functions.findText(QStringLiteral("82. DEPT 1"));
  let_drags_fall_on(cap(44));
  functions.showPopup();
  QAbstractItemView& view = *functions.view();
  work_until([&view] { return view.isVisible(); });
  view.scrollTo(functions.model()->index(line, 0));
  QWidget& port = *view.viewport();
  const QPoint place = view.visualRect(functions.model()->index(line, 0)).center();
  QTest::mousePress(&port, Qt::LeftButton, Qt::NoModifier, place);
  QTest::mouseMove(&port, place + QPoint{5, 0});
  EXPECT_EQ(drags, 0) << "inside of the list the pointer looks for a line";
  QMouseEvent out{QEvent::MouseMove, QPoint{-50, 0}, port.mapToGlobal(QPoint{-50, 0}),
                  Qt::NoButton,      Qt::LeftButton, Qt::NoModifier};
  QApplication::sendEvent(&port, &out);
  EXPECT_EQ(drags, 1);
  EXPECT_FALSE(view.isVisible());
  EXPECT_EQ(functions.text(), QStringLiteral("82. DEPT 1"));
  EXPECT_EQ(caption("L_Preview"), QStringLiteral("DEPT 1"));
  EXPECT_EQ(cap(44).text(), QStringLiteral("DEPT 1"));
  EXPECT_TRUE(cap(44).is_marked());
}

TEST_F(AdvancedSettingDrag, OtherThingsThatAreDraggedAreNotTaken) {
  open_keys();
  const QString before = cap(2).text();
  QMimeData text;
  text.setText(QStringLiteral("DEPT 1"));
  QMimeData unnamed;
  unnamed.setData(QStringLiteral("application/x-vermanto-key-function"), QByteArray(1, 39));
  for (const QMimeData* data : {&text, &unnamed}) {
    drop(data, cap(2));
    QDropEvent forced{{5, 5}, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier};
    QApplication::sendEvent(&cap(2), &forced);
    EXPECT_EQ(cap(2).text(), before);
  }
}

}  // namespace
}  // namespace ecr::test
