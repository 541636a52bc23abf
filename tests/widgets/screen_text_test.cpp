#include "widgets/screen_text.h"

#include <gtest/gtest.h>

#include <QLineEdit>

#include "core/system.h"
#include "platform/platform.h"

namespace ecr::test {
namespace {

std::string all_bytes() {
  std::string bytes(256, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i);
  return bytes;
}

TEST(FieldText, GivesEachOfThe256BytesBack) {
  for (const char byte : all_bytes()) {
    const std::string one(1, byte);
    const QString text = field_text(one);
    EXPECT_EQ(text.size(), 1);
    EXPECT_EQ(page_bytes(text), one) << static_cast<int>(static_cast<unsigned char>(byte));
  }
  EXPECT_EQ(page_bytes(field_text(all_bytes())), all_bytes());
}

TEST(FieldText, PassesThroughAFieldUnharmed) {
  QLineEdit field;
  field.setMaxLength(256);
  field.setText(field_text(all_bytes()));
  EXPECT_EQ(page_bytes(field.text()), all_bytes());
}

TEST(ScreenText, IsUnicode) {
  EXPECT_EQ(screen_text("Pr\xE9nom \x80 \x93x\x94"), QStringLiteral("Prénom € \u201Cx\u201D"));
  EXPECT_EQ(screen_text(""), QString{});
}

TEST(ScreenText, GivesEveryByteButTheCarriageReturnBack) {
  for (const char byte : all_bytes()) {
    const std::string one(1, byte);
    EXPECT_EQ(page_bytes(screen_text(one)), byte == '\r' ? "\n" : one);
  }
}

TEST(ScreenText, BreaksLinesAtCarriageReturns) {
  EXPECT_EQ(screen_text("a\rb"), QStringLiteral("a\nb"));
  EXPECT_EQ(screen_text("a\r\nb"), QStringLiteral("a\nb"));
  EXPECT_EQ(screen_text("a\nb"), QStringLiteral("a\nb"));
  EXPECT_EQ(screen_text("a\r\rb\r"), QStringLiteral("a\n\nb\n"));
}

TEST(PageBytes, HaveAQuestionMarkForWhatThePageLacks) {
  EXPECT_EQ(page_bytes(QStringLiteral("a\u0416b\u20AC")), "a?b\x80");
  EXPECT_EQ(page_bytes(QString::fromUtf8("\xF0\x9F\x98\x80")), "??")
      << "a character beyond the first plane has two halves";
}

TEST(CodesOfAText, AreOneForEachCharacter) {
  const CodeText codes = codes_of(QStringLiteral("A\u20AC\u0416\u00C3"));
  EXPECT_EQ(codes, (CodeText{u'A', 128, code_not_in_page, 195}));
}

TEST(PathsForTheToolkit, ComeBackAsTheyWere) {
  install_system(&host_system());
  const std::string path =
      host_system().paths_are_utf8() ? "/a/Pr\xC3\xA9nom \xE2\x82\xAC.bmp" : "C:\\Pr\xE9nom \x80.bmp";
  EXPECT_TRUE(path_for_toolkit(path).endsWith(QStringLiteral("Prénom €.bmp")));
  EXPECT_EQ(path_of_toolkit(path_for_toolkit(path)), path);
}

TEST(TrimmingAText, TakesBlanksAtTheEndAlone) {
  EXPECT_EQ(trim_end(QStringLiteral(" a b  ")), QStringLiteral(" a b"));
  EXPECT_EQ(trim_end(QStringLiteral("a\t ")), QStringLiteral("a\t"));
  EXPECT_EQ(trim_end(QStringLiteral("a\u00A0")), QStringLiteral("a\u00A0"));
  EXPECT_EQ(trim_end(QStringLiteral("   ")), QString{});
  EXPECT_EQ(trim_end({}), QString{});
}

}  // namespace
}  // namespace ecr::test
