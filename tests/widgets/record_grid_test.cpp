#include "widgets/record_grid.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QSignalSpy>

#include "support_qt/screen_test.h"
#include "widgets/choice_list.h"
#include "widgets/plain_screen.h"
#include "widgets/table_frame.h"

namespace ecr::test {
namespace {

TEST(RecordModelTest, CellsKeepTheirTextsUntilTheyAreSetAgain) {
  RecordModel model;
  model.resize(3, 2);
  model.set_cell(1, 0, QStringLiteral("a"));
  model.set_cell(3, 1, QStringLiteral("z"));
  EXPECT_EQ(model.cell(1, 0), QStringLiteral("a"));
  EXPECT_EQ(model.cell(2, 0), QString{});
  model.resize(3, 2);
  EXPECT_EQ(model.cell(3, 1), QStringLiteral("z"));
}

TEST(RecordModelTest, CellsThatStayInsideSurviveAResize) {
  RecordModel model;
  model.resize(3, 2);
  model.set_cell(1, 0, QStringLiteral("a"));
  model.set_cell(3, 1, QStringLiteral("z"));
  model.resize(4, 3);
  EXPECT_EQ(model.cell(1, 0), QStringLiteral("a"));
  EXPECT_EQ(model.cell(3, 1), QStringLiteral("z"));
  EXPECT_EQ(model.cell(4, 2), QString{});
  model.resize(2, 1);
  EXPECT_EQ(model.cell(1, 0), QStringLiteral("a"));
  model.resize(3, 2);
  EXPECT_EQ(model.cell(3, 1), QString{}) << "what lay outside is gone";
}

TEST(RecordModelTest, ViewsSeeWhatTheCellsHold) {
  RecordModel model;
  model.resize(2, 2);
  model.set_headings({"No.", "Name"});
  model.align_right({0});
  model.set_cell(2, 1, QStringLiteral("bread"));
  EXPECT_EQ(model.rowCount(), 2);
  EXPECT_EQ(model.columnCount(), 2);
  EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
  EXPECT_EQ(model.columnCount(model.index(0, 0)), 0);
  EXPECT_EQ(model.data(model.index(1, 1), Qt::DisplayRole).toString(), QStringLiteral("bread"));
  EXPECT_FALSE(model.data({}, Qt::DisplayRole).isValid());
  EXPECT_FALSE(model.data(model.index(1, 1), Qt::DecorationRole).isValid());
  const auto alignment = [&](int column) {
    return model.data(model.index(0, column), Qt::TextAlignmentRole).value<Qt::Alignment>();
  };
  EXPECT_TRUE(alignment(0).testFlag(Qt::AlignRight));
  EXPECT_TRUE(alignment(1).testFlag(Qt::AlignLeft));
  EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Name"));
  EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>(), alignment(0));
  EXPECT_FALSE(model.headerData(2, Qt::Horizontal, Qt::DisplayRole).isValid());
  EXPECT_FALSE(model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
}

TEST(RecordModelTest, ViewsAreToldOnceForAllCells) {
  RecordModel model;
  model.resize(5, 3);
  const QSignalSpy changed{&model, &QAbstractItemModel::dataChanged};
  for (int row = 1; row <= 5; ++row) model.set_cell(row, 1, QStringLiteral("x"));
  EXPECT_EQ(changed.count(), 0);
  model.refreshed();
  ASSERT_EQ(changed.count(), 1);
  EXPECT_EQ(changed[0][0].toModelIndex(), model.index(0, 0));
  EXPECT_EQ(changed[0][1].toModelIndex(), model.index(4, 2));
  RecordModel empty;
  empty.refreshed();
}

class RecordGridTest : public ScreenTest {
 protected:
  RecordGridTest()
      : screen{new PlainScreen},
        other{screen->put(new CommandButton{QStringLiteral("C_Other"), screen})},
        grid{screen->put(new RecordGrid{QStringLiteral("Fg_Grid"), screen})} {
    screen->first = &other;
    grid.cells().resize(99, 3);
    grid.cells().set_headings({"No.", "Name", "Price"});
    for (int row = 1; row <= 99; ++row) {
      for (int column = 0; column < 3; ++column) grid.cells().set_cell(row, column, QString::number(row * 10 + column));
    }
    grid.on_select([this](int row) { selected.push_back(row); });
    open(screen);
  }

  [[nodiscard]] int marked_row() const {
    const QModelIndexList rows = grid.selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.front().row() + 1 : -static_cast<int>(rows.size());
  }
  /// The colour behind the text of a cell that can be seen.
  [[nodiscard]] QColor background(int row, int column) const {
    const QRect place = grid.visualRect(grid.model()->index(row - 1, column));
    return grid.viewport()->grab(place).toImage().pixelColor(place.width() - 3, 3);
  }

  using Rows = std::vector<int>;

  PlainScreen* screen;
  CommandButton& other;
  RecordGrid& grid;
  Rows selected;
};

TEST_F(RecordGridTest, MarkingIsNoSelectionOfThePerson) {
  grid.mark(5);
  EXPECT_EQ(marked_row(), 5);
  grid.mark(1);
  EXPECT_EQ(marked_row(), 1) << "the row marked before is marked no more";
  grid.mark(99);
  EXPECT_EQ(marked_row(), 99);
  EXPECT_EQ(selected, Rows{});
}

TEST_F(RecordGridTest, TheMarkReachesFromTheSecondColumnToTheLast) {
  grid.mark(3);
  EXPECT_NE(background(3, 1), background(5, 1));
  EXPECT_EQ(background(3, 1), background(3, 2));
  EXPECT_EQ(background(3, 0), background(5, 0));
}

TEST_F(RecordGridTest, ARowThatIsMarkedComesIntoSight) {
  grid.mark(80);
  EXPECT_TRUE(grid.viewport()->rect().intersects(grid.visualRect(grid.model()->index(79, 0))));
}

TEST_F(RecordGridTest, AClickSelectsARow) {
  grid.mark(1);
  click_row(grid, 4);
  EXPECT_EQ(selected, Rows{4}) << "once";
  EXPECT_EQ(marked_row(), 4);
  click_row(grid, 2, 0);
  EXPECT_EQ(selected, (Rows{4, 2})) << "a click into the first column selects as well";
}

TEST_F(RecordGridTest, AClickOnTheMarkedRowSelectsItOnceMore) {
  grid.mark(4);
  click_row(grid, 4);
  EXPECT_EQ(selected, Rows{4});
}

TEST_F(RecordGridTest, TheKeyboardSelectsRows) {
  grid.mark(1);
  tab_to(grid);
  press(Qt::Key_Down, Qt::NoModifier, 2);
  press(Qt::Key_Up);
  EXPECT_EQ(selected, (Rows{2, 3, 2}));
  press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(selected.back(), 99);
  EXPECT_EQ(marked_row(), 99);
  press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(selected.back(), 1);
  press(Qt::Key_PageDown);
  EXPECT_GT(selected.back(), 5);
}

TEST_F(RecordGridTest, MovingAlongARowSelectsNoOtherOne) {
  grid.mark(3);
  tab_to(grid);
  press(Qt::Key_Right);
  EXPECT_EQ(selected, Rows{});
  EXPECT_EQ(marked_row(), 3);
}

TEST_F(RecordGridTest, TabPassesOn) {
  tab_to(grid);
  press(Qt::Key_Tab);
  EXPECT_FALSE(grid.hasFocus());
}

TEST_F(RecordGridTest, ARowCanBeBroughtToTheTop) {
  for (const int row : {50, 7, 1}) {
    grid.bring_to_top(row);
    EXPECT_EQ(grid.rowAt(0) + 1, row);
  }
  grid.bring_to_top(99);
  EXPECT_TRUE(grid.viewport()->rect().contains(grid.visualRect(grid.model()->index(98, 0)).center()));
}

TEST_F(RecordGridTest, NothingCanBeTypedIntoIt) {
  grid.mark(2);
  tab_to(grid);
  type(QStringLiteral("x"));
  press(Qt::Key_F2);
  EXPECT_EQ(grid.findChild<QLineEdit*>(), nullptr);
  EXPECT_EQ(grid.cells().cell(2, 0), QStringLiteral("20"));
}

TEST_F(RecordGridTest, ColumnsTakeTheWidthOfTheirTexts) {
  grid.cells().set_cell(1, 2, QString{30, u'W'});
  grid.cells().refreshed();
  grid.fit_columns(1);
  let_screens_settle();
  const auto* header = grid.horizontalHeader();
  EXPECT_GE(header->sectionSize(2), grid.fontMetrics().horizontalAdvance(QString{30, u'W'}));
  int all = 0;
  for (int column = 0; column < 3; ++column) all += header->sectionSize(column);
  EXPECT_EQ(all, grid.viewport()->width()) << "the stretched column takes what is left";
}

TEST_F(RecordGridTest, TheStretchedColumnKeepsItsOwnWidthInANarrowWindow) {
  const auto* header = grid.horizontalHeader();
  grid.cells().set_cell(1, 1, QString{30, u'W'});
  grid.cells().set_cell(1, 2, QString{30, u'W'});
  grid.cells().refreshed();
  grid.fit_columns(1);
  let_screens_settle();
  const int needs = grid.fontMetrics().horizontalAdvance(QString{30, u'W'});
  ASSERT_GT(header->sectionSize(1), needs + 100) << "there is much room at first";
  grid.setFixedWidth(needs + 200);
  let_screens_settle();
  EXPECT_GE(header->sectionSize(1), needs);
  EXPECT_LT(header->sectionSize(1), needs + 60);
  grid.setFixedWidth(3 * needs);
  let_screens_settle();
  EXPECT_EQ(header->sectionSize(0) + header->sectionSize(1) + header->sectionSize(2), grid.viewport()->width());
}

TEST_F(RecordGridTest, RoomIsMadeForATextThatIsNotThereYet) {
  grid.fit_columns(1);
  const QString longest{16, u'8'};
  grid.make_room(0, longest);
  grid.make_room(0, QStringLiteral("8"));
  let_screens_settle();
  EXPECT_EQ(grid.horizontalHeader()->length(), grid.viewport()->width()) << "the stretched column gave it";
  const int made = grid.columnWidth(0);
  grid.cells().set_cell(1, 0, longest);
  grid.resizeColumnToContents(0);
  EXPECT_EQ(made, grid.columnWidth(0)) << "as much as the text would have got";
}

TEST_F(RecordGridTest, WhereTheStretchedColumnWouldBeTooNarrowTheGridIsScrolledSideways) {
  const QString longest{100, u'8'};
  grid.fit_columns(1);
  grid.make_room(1, longest);
  let_screens_settle();
  EXPECT_GE(grid.columnWidth(1), grid.fontMetrics().horizontalAdvance(longest));
  stage.resize(700, 600);
  let_screens_settle();
  EXPECT_GE(grid.columnWidth(1), grid.fontMetrics().horizontalAdvance(longest));
  EXPECT_GT(grid.horizontalHeader()->length(), grid.viewport()->width());
  stage.resize(1600, 600);
  let_screens_settle();
  EXPECT_EQ(grid.horizontalHeader()->length(), grid.viewport()->width()) << "it takes what is left again";
}

class TableFrameTest : public RecordGridTest {
 protected:
  TableFrameTest()
      : numbers{screen->put(new NumberList{QStringLiteral("Cmb_Number"), 99, screen})},
        table{numbers, grid, [this](int number) {
                shown_while_loading.push_back(numbers.number());
                loaded.push_back(number);
              }} {
    numbers.fill();
    let_screens_settle();
  }

  NumberList& numbers;
  Rows loaded;
  Rows shown_while_loading;
  TableFrame table;
};

TEST_F(TableFrameTest, LoadingARecordMarksItsRow) {
  table.load_record(7);
  EXPECT_EQ(loaded, Rows{7});
  EXPECT_EQ(marked_row(), 7);
  EXPECT_EQ(numbers.number(), 1) << "the number list is the caller's";
}

TEST_F(TableFrameTest, GoingToARecordNamesItInTheListBeforeItIsLoaded) {
  table.go_to(7);
  EXPECT_EQ(loaded, Rows{7});
  EXPECT_EQ(shown_while_loading, Rows{7});
  EXPECT_EQ(marked_row(), 7);
}

TEST_F(TableFrameTest, SelectingARowGoesToItsRecord) {
  table.go_to(1);
  click_row(grid, 5);
  EXPECT_EQ(numbers.number(), 5);
  EXPECT_EQ(loaded.back(), 5);
  EXPECT_EQ(shown_while_loading.back(), 5);
}

TEST_F(TableFrameTest, ATypedNumberLoadsItsRecordAndBringsItsRowToTheTop) {
  table.go_to(1);
  tab_to(numbers);
  let_screens_settle();
  type(QStringLiteral("42"));
  EXPECT_EQ(loaded, (Rows{1, 4, 42}));
  EXPECT_EQ(marked_row(), 42);
  EXPECT_EQ(grid.rowAt(0) + 1, 42);
}

TEST_F(RecordGridTest, AListThatCannotBeTypedIntoNamesRecordsToo) {
  auto& numbers = screen->put(new ChoiceList{QStringLiteral("Cmb_Rule"), screen});
  Rows loaded;
  TableFrame table{numbers, 10, grid, [&loaded](int number) { loaded.push_back(number); }};
  numbers.fill(bare_numbers(1, 10));
  let_screens_settle();
  table.go_to(3);
  EXPECT_EQ(numbers.text(), QStringLiteral("3"));
  pick(numbers, 6);
  EXPECT_EQ(loaded, (Rows{3, 7}));
  EXPECT_EQ(marked_row(), 7);
  EXPECT_EQ(grid.rowAt(0) + 1, 7) << "its row comes to the top";
  EXPECT_EQ(table.following_number(7), 9);
  EXPECT_EQ(table.following_number(8), 9);
  EXPECT_EQ(table.following_number(9), 10);
}

class FollowingNumber : public ScreenTest, public ::testing::WithParamInterface<int> {};

TEST_P(FollowingNumber, NeverArrivesAtTheLastRecordByItself) {
  const int last = GetParam();
  NumberList numbers{QStringLiteral("Cmb_Number"), last, nullptr};
  RecordGrid grid{QStringLiteral("Fg_Grid"), nullptr};
  const TableFrame table{numbers, grid, [](int) {}};
  // Each index counts from 0, each number from 1.
  for (int index = 0; index < last - 2; ++index) EXPECT_EQ(table.following_number(index), index + 2);
  EXPECT_EQ(table.following_number(last - 2), last - 1) << "the one before the last stays";
  EXPECT_EQ(table.following_number(last - 1), last) << "and so does the last";
}

INSTANTIATE_TEST_SUITE_P(OfTheProgramsTables, FollowingNumber, ::testing::Values(99, 15, 10, 3000));

}  // namespace
}  // namespace ecr::test
