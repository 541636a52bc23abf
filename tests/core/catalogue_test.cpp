#include "core/catalogue.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace ecr::test {
namespace {

class Catalogue : public ::testing::Test {
 protected:
  Catalogue() { reset_catalogue(); }
  ~Catalogue() override { reset_catalogue(); }
};

TEST_F(Catalogue, HoldsTheKnownKeysInTheirFixedOrder) {
  EXPECT_EQ(key_count, 579U);
  EXPECT_EQ(name_of(Key{0}), "FRM_ALL_TITLE");
  EXPECT_EQ(name_of(Key{1}), "MSG_RESET");
  EXPECT_EQ(name_of(static_cast<Key>(key_count - 1)), "FRM_FW_UPGRADE_TITLE");
  // A hash over all names, each but the first behind a line feed: it was taken from the published list of keys.
  std::uint64_t hash = 0xCBF29CE484222325U;
  const auto take = [&hash](char c) { hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U; };
  for (std::size_t i = 0; i < key_count; ++i) {
    if (i > 0) take('\n');
    for (const char c : name_of(static_cast<Key>(i))) take(c);
  }
  EXPECT_EQ(hash, 0x5BE230426252C510U);
}

TEST_F(Catalogue, EveryKeyIsFoundByItsNameAndByNoOther) {
  std::set<std::string> names;
  for (std::size_t i = 0; i < key_count; ++i) {
    const std::string name{name_of(static_cast<Key>(i))};
    EXPECT_TRUE(names.insert(name).second) << "twice: " << name;
    EXPECT_EQ(key_named(name), static_cast<Key>(i));
    EXPECT_EQ(key_named(name + " "), std::nullopt);
    EXPECT_EQ(key_named(" " + name), std::nullopt);
    EXPECT_EQ(key_named(name.substr(1)), std::nullopt) << name;
  }
  EXPECT_EQ(key_named(""), std::nullopt);
  EXPECT_EQ(key_named("frm_all_title"), std::nullopt) << "the case of a key counts";
}

TEST_F(Catalogue, IsEmptyAtFirst) {
  for (std::size_t i = 0; i < key_count; ++i) EXPECT_EQ(message(static_cast<Key>(i)), "");
}

TEST_F(Catalogue, EachKeyHasATextOfItsOwn) {
  for (std::size_t i = 0; i < key_count; ++i) set_message(static_cast<Key>(i), "text " + std::to_string(i));
  for (std::size_t i = 0; i < key_count; ++i) {
    EXPECT_EQ(message(static_cast<Key>(i)), "text " + std::to_string(i));
  }
}

TEST_F(Catalogue, AnEmptyTextGivesWayToTheCallersOwn) {
  EXPECT_EQ(message_or(Key::FRM_ALL_TITLE, "own"), "own");
  set_message(Key::FRM_ALL_TITLE, "from the file");
  EXPECT_EQ(message_or(Key::FRM_ALL_TITLE, "own"), "from the file");
  set_message(Key::FRM_ALL_TITLE, " ");
  EXPECT_EQ(message_or(Key::FRM_ALL_TITLE, "own"), " ") << "a blank is a text";
}

struct Slot {
  const std::string* text;
  Key key;
  const char* built_in;
};
const Slot slots[] = {
    {&MsgValueTooHigh, Key::FRM_ALL_MASSIMO_SUPERATO_MSG, "Value insert to high!"},
    {&MsgProgramKo, Key::FRM_ALL_PROGRAM_KO_MSG, "Programmation sending Failed"},
    {&MsgErrorCopyMode, Key::FRM_ALL_ERROR_COPY_PRG_MODE_MSG, "Error During copy PRG_MODE_FILE"},
    {&MsgErrorCopyPlu, Key::FRM_ALL_ERROR_COPY_PRG_PLU_MSG, "Error During copy PRG_MODE_PLUE"},
    {&MsgFileLangKo, Key::FRM_ALL_FILE_LANG_KO_MSG,
     "The file of the languagge specificated doesn't exist. The program work in english"},
    {&MsgOptionNoZ300, Key::FRM_ALL_OPTION_NO_Z300_MSG, "Option not supported on ECRZ300"},
};

TEST_F(Catalogue, SixMessagesHaveBuiltInTexts) {
  for (const Slot& slot : slots) EXPECT_EQ(*slot.text, slot.built_in);
}

TEST_F(Catalogue, ACatalogueTextReplacesABuiltInOneWhenTheSlotsAreFilled) {
  for (const Slot& slot : slots) {
    set_message(slot.key, "translated");
    EXPECT_EQ(*slot.text, slot.built_in) << "not before the slots are filled";
    carica_messaggi_default();
    for (const Slot& other : slots) {
      EXPECT_EQ(*other.text, other.key == slot.key ? "translated" : other.built_in);
    }
    set_message(slot.key, "");
    carica_messaggi_default();
    EXPECT_EQ(*slot.text, slot.built_in) << "an empty text is none";
  }
}

}  // namespace
}  // namespace ecr::test
