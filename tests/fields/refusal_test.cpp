#include "fields/refusal.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

#include "lang/language.h"

namespace ecr::test {
namespace {

using namespace fields;

class RefusalTest : public ::testing::Test {
 protected:
  ~RefusalTest() override { reset_language(); }
};

TEST_F(RefusalTest, HasWordsWithWhatItIsAbout) {
  EXPECT_EQ(words({.why = Why::too_high, .what = "100000", .first = "0.00", .second = "99999.99"}),
            "100000 is too high. Numbers from 0.00 to 99999.99 can be entered.");
  EXPECT_EQ(words({.why = Why::too_long, .what = "13", .first = "12"}),
            "The text has 13 characters; there is room for 12.");
  EXPECT_EQ(words({.why = Why::no_such_choice, .what = "%2", .first = "yes, no"}),
            "\"%2\" is none of the choices: yes, no.")
      << "what goes in is not looked at";
  LanguageNumber = 3;
  EXPECT_EQ(words({.why = Why::no_such_item, .what = "12"}), "Es gibt keinen Artikel mit dem Code 12.");
}

TEST_F(RefusalTest, HasNoneForWhatWasTaken) {
  EXPECT_EQ(words({}), "");
  EXPECT_FALSE(Refusal{}.refused());
}

TEST_F(RefusalTest, HasWordsOfItsOwnForEachReasonInEachLanguage) {
  for (LanguageNumber = 0; LanguageNumber < languages.size(); ++LanguageNumber) {
    std::set<std::string> sentences;
    for (int why = 1; why <= static_cast<int>(Why::several_items); ++why) {
      const std::string sentence =
          words({.why = static_cast<Why>(why), .what = "WHAT", .first = "FIRST", .second = "SECOND"});
      EXPECT_FALSE(sentence.empty()) << why;
      EXPECT_EQ(sentence.find('%'), std::string::npos) << sentence;
      sentences.insert(sentence);
    }
    EXPECT_EQ(sentences.size(), static_cast<std::size_t>(Why::several_items)) << int{LanguageNumber};
  }
}

}  // namespace
}  // namespace ecr::test
