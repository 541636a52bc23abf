#include "captions/double_width.h"

#include <array>
#include <gtest/gtest.h>

#include "core/fault.h"

namespace ecr::test {
namespace {

using Part = PrintCell::Part;

/// The row as two texts: its characters, and below each of them '.' for single, '<' and '>' for the halves of a double.
template <std::size_t Count = paper_cells>
std::pair<std::u16string, std::string> printed(std::u16string_view text) {
  std::array<PrintCell, Count> row;
  row.fill({u'?', Part::double_left});
  print_cells(text, row);
  std::pair<std::u16string, std::string> result;
  for (const PrintCell& cell : row) {
    result.first += cell.character;
    result.second += cell.part == Part::single ? '.' : cell.part == Part::double_left ? '<' : '>';
  }
  return result;
}

using Row = std::pair<std::u16string, std::string>;

TEST(PrintCells, APlainCharacterTakesOneCellAndTheRestStaysBlank) {
  EXPECT_EQ(printed<6>(u"AB"), Row(u"AB    ", "......"));
  EXPECT_EQ(printed<6>(u""), Row(u"      ", "......"));
}

TEST(PrintCells, AMarkedCharacterTakesTwoCellsAndItsMarkNone) {
  EXPECT_EQ(printed<6>(u"A·BC"), Row(u"ABBC  ", ".<>..."));
  EXPECT_EQ(printed<6>(u"·A·B·C"), Row(u"AABBCC", "<><><>"));
}

TEST(PrintCells, AMarkedBlankIsTwoBlankCellsOfItsOwn) {
  EXPECT_EQ(printed<4>(u"· A"), Row(u"  A ", "<>.."));
}

TEST(PrintCells, TwentyFourCharactersFillTheRowAndTheNextOnesAreCut) {
  EXPECT_EQ(printed(u"123456789012345678901234XYZ").first, u"123456789012345678901234");
}

TEST(PrintCells, HalfACharacterDoesNotPrintAndNothingBehindItDoes) {
  EXPECT_EQ(printed<3>(u"AB·CD"), Row(u"AB ", "..."));
  EXPECT_EQ(printed<3>(u"A·CD"), Row(u"ACC", ".<>"));
}

TEST(PrintCells, TwelveMarkedCharactersFillTheLine) {
  EXPECT_EQ(printed(u"·A·B·C·D·E·F·G·H·I·J·K·L·M").first, u"AABBCCDDEEFFGGHHIIJJKKLL");
}

TEST(PrintCells, MarksBehindEachOtherCountAsOneAndOneAtTheEndAsNone) {
  EXPECT_EQ(printed<5>(u"··AB·"), Row(u"AAB  ", "<>..."));
  EXPECT_EQ(printed<5>(u"·"), Row(u"     ", "....."));
}

TEST(PrintCells, ARowWithoutCellsTakesNothing) {
  EXPECT_EQ(printed<0>(u"ABC"), Row(u"", ""));
}

TEST(CellCount, CountsWhatTheWholeTextTakes) {
  EXPECT_EQ(cell_count(u""), 0U);
  EXPECT_EQ(cell_count(u"AB C"), 4U);
  EXPECT_EQ(cell_count(u"·A·B C·"), 6U);
  EXPECT_EQ(cell_count(u"1234567890123456789012345678"), 28U);
}

TEST(BothEnds, FillTheLineOfPaper) {
  const std::u16string line = at_both_ends(u"·T·O·T", u"7.30");
  EXPECT_EQ(line, u"·T·O·T              7.30");
  EXPECT_EQ(cell_count(line), paper_cells);
  EXPECT_EQ(at_both_ends(u"123456789012345678901234", u"1"), u"123456789012345678901234 1");
}

TEST(WithMark, TakesTheMarkInFrontAlong) {
  EXPECT_EQ(with_mark(u"A·B", {2, 3}), (Places{1, 3}));
  EXPECT_EQ(with_mark(u"·BCD", {1, 4}), (Places{0, 4}));
}

TEST(WithMark, LeavesAPlainCharacterAloneWithWhatStandsBeforeIt) {
  EXPECT_EQ(with_mark(u"A·BC", {3, 4}), (Places{3, 4}));
  EXPECT_EQ(with_mark(u"AB", {0, 1}), (Places{0, 1}));
  EXPECT_EQ(with_mark(u"·A", {0, 1}), (Places{0, 1})) << "the mark alone goes alone";
}

TEST(WithMark, OfTwoMarksTakesOne) {
  EXPECT_EQ(with_mark(u"··B", {2, 3}), (Places{1, 3}));
}

TEST(WithMark, TakesNothingWhereNothingIsDeleted) {
  EXPECT_EQ(with_mark(u"·B", {1, 1}), (Places{1, 1}));
}

TEST(WithMark, RefusesPlacesThatTheTextDoesNotHave) {
  EXPECT_THROW(static_cast<void>(with_mark(u"AB", {1, 3})), FaultError);
  EXPECT_THROW(static_cast<void>(with_mark(u"AB", {2, 1})), FaultError);
}

}  // namespace
}  // namespace ecr::test
