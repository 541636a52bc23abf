#include "editors/option_screen_test.h"

#include <cctype>
#include <cstring>
#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/global.h"
#include "support/random.h"

namespace ecr::test {
namespace {

constexpr std::uint8_t both_models[] = {Global::model_z300, Global::model_z320};

std::string image_now() {
  return std::string{bytes_of_image(PrgMode)};
}

/// The byte as a list's value is stored in it.
std::uint8_t with_value(std::uint8_t byte, int bit, int value) {
  if (bit == whole_byte) return static_cast<std::uint8_t>(value);
  if (bit == decimal_byte) return static_cast<std::uint8_t>(value / 10 * 16 + value % 10);
  const auto mask = static_cast<std::uint8_t>(1U << bit);
  return static_cast<std::uint8_t>(value > 0 ? byte | mask : byte & ~mask);
}

/// The position of the entry that a byte shows; -1 for none.
int shown_position(const ListInImage& list, std::uint8_t byte) {
  if (list.bit >= 0) {
    const bool set = ((byte >> list.bit) & 1) != 0;
    return set != list.loads_turned ? 1 : 0;
  }
  const int value = list.bit == decimal_byte ? (byte >> 4) * 10 + (byte & 15) : byte;
  for (std::size_t i = 0; i < list.entries.size(); ++i) {
    const char* entry = list.entries[i];
    const int digit = *entry == '\0' ? static_cast<int>(i) : *entry - '0';
    if (digit == value) return static_cast<int>(i);
  }
  return list.mends_unknown ? 0 : -1;
}

void use_image(const std::string& bytes) {
  std::memcpy(&PrgMode, bytes.data(), bytes.size());
}

}  // namespace

int OptionScreenTest::digit_of(const QString& entry) {
  const qsizetype point = entry.indexOf(u'.');
  if (point < 1 || !entry[point - 1].isDigit()) return 0;
  return entry[point - 1].digitValue();
}

std::string OptionScreenTest::saved_image(std::string image, const Lists& lists) const {
  for (const ListInImage& each : lists) {
    const char* source = each.saved_from == nullptr ? each.control : each.saved_from;
    const int number = digit_of(list(QString::fromLatin1(source)).text());
    char& byte = image[each.byte];
    byte = static_cast<char>(with_value(static_cast<std::uint8_t>(byte), each.bit, number));
  }
  return image;
}

void OptionScreenTest::check_image(const std::string& expected, const std::string& file_before, Save save) const {
  const auto expect_same = [](const std::string& found, const std::string& wanted, const char* what) {
    ASSERT_EQ(found.size(), wanted.size()) << what;
    for (std::size_t i = 0; i < found.size(); ++i) {
      EXPECT_EQ(int{static_cast<std::uint8_t>(found[i])}, int{static_cast<std::uint8_t>(wanted[i])})
          << what << ", byte " << i;
    }
  };
  expect_same(image_now(), expected, "the working image");
  expect_same(image_file(), save == Save::writes_the_file ? expected : file_before, "PRG_MODE.BIN");
}

void OptionScreenTest::check_entries(const QString& screen, const Lists& lists) {
  for (const std::uint8_t model : both_models) {
    SCOPED_TRACE("model " + std::to_string(model));
    start_session(model);
    reset_catalogue();
    open(screen);
    for (const ListInImage& each : lists) {
      SCOPED_TRACE(each.control);
      const ChoiceList& shown = list(QString::fromLatin1(each.control));
      QStringList entries;
      for (const char* entry : each.entries) entries.append(QString::fromLatin1(entry));
      EXPECT_EQ(entries_of(shown), entries);
      EXPECT_EQ(shown.isHidden(), each.hidden_on_z300 && model == Global::model_z300);
    }
    stage.close_top();
  }
}

void OptionScreenTest::check_loading(const QString& screen, const Lists& lists) {
  std::size_t most = 2;
  for (const ListInImage& each : lists) most = std::max(most, each.entries.size());
  for (const std::uint8_t model : both_models) {
    SCOPED_TRACE("model " + std::to_string(model));
    start_session(model);
    reset_catalogue();
    // One round for each entry, and one for a byte that no entry has.
    for (std::size_t round = 0; round <= most; ++round) {
      SCOPED_TRACE("round " + std::to_string(round));
      PrgModeImage image = good_image(model);
      auto* bytes = reinterpret_cast<std::uint8_t*>(&image);
      for (const ListInImage& each : lists) {
        const bool is_bit = each.bit >= 0;
        if (round == most) {
          bytes[each.byte] = is_bit ? bytes[each.byte] : with_value(0, each.bit, 77);
        } else {
          bytes[each.byte] = with_value(bytes[each.byte], each.bit, static_cast<int>(round % (is_bit ? 2 : most)));
        }
      }
      lay_down(image);
      open(screen);
      for (const ListInImage& each : lists) {
        const int position = shown_position(each, bytes[each.byte]);
        const QString entry =
            position < 0 ? QString{} : QString::fromLatin1(each.entries[static_cast<std::size_t>(position)]);
        EXPECT_EQ(list(QString::fromLatin1(each.control)).text(), entry) << each.control;
      }
      stage.close_top();
    }
  }
}

void OptionScreenTest::check_every_choice(const QString& screen, const Lists& lists, Save save) {
  Random random{2201};
  for (const std::uint8_t model : both_models) {
    for (const bool filled : {false, true}) {
      SCOPED_TRACE("model " + std::to_string(model) + (filled ? ", English" : ", no catalogue"));
      start_session(model);
      reset_catalogue();
      if (filled) fill_catalogue();
      PrgModeImage image = random_image(model, random);
      prepare(image);
      lay_down(image);
      const std::string file_before = image_file();
      open(screen);
      click("C_Salva");
      behind_a_save();
      const std::string before = image_now();
      for (const ListInImage& each : lists) {
        ChoiceList& chosen = list(QString::fromLatin1(each.control));
        const int first_shown = chosen.currentIndex();
        for (int position = 0; position < chosen.count(); ++position) {
          SCOPED_TRACE(each.control + std::string{", entry "} + chosen.itemText(position).toStdString());
          use_image(before);
          chosen.show_entry(position);
          click("C_Salva");
          std::string expected = before;
          for (const ListInImage& row : lists) {
            const char* source = row.saved_from == nullptr ? row.control : row.saved_from;
            if (std::strcmp(source, each.control) != 0) continue;
            char& byte = expected[row.byte];
            byte = static_cast<char>(
                with_value(static_cast<std::uint8_t>(byte), row.bit, digit_of(chosen.itemText(position))));
          }
          check_image(expected, file_before, save);
          behind_a_save();
        }
        use_image(before);
        if (first_shown < 0) {
          chosen.show_nothing();
        } else {
          chosen.show_entry(first_shown);
        }
      }
      stage.close_top();
    }
  }
}

void OptionScreenTest::check_saving_untouched(const QString& screen, const Lists& lists, Save save) {
  Random random{2202};
  for (int round = 0; round < 24; ++round) {
    const std::uint8_t model = both_models[round % 2];
    SCOPED_TRACE("round " + std::to_string(round) + ", model " + std::to_string(model));
    start_session(model);
    reset_catalogue();
    if (round % 4 > 1) fill_catalogue();
    PrgModeImage image = random_image(model, random);
    prepare(image);
    auto* bytes = reinterpret_cast<std::uint8_t*>(&image);
    for (const ListInImage& each : lists) {
      // Often a value that the list has, and digits where digits are stored.
      if (each.bit < 0 && (each.bit == decimal_byte || random.coin())) {
        bytes[each.byte] = static_cast<std::uint8_t>(random.below(each.entries.size() + 1));
      }
    }
    lay_down(image);
    std::string expected{bytes_of_image(image)};
    const std::string file_before = image_file();
    open(screen);
    for (const ListInImage& each : lists) {
      const ChoiceList& shown = list(QString::fromLatin1(each.control));
      EXPECT_EQ(shown.currentIndex(), shown_position(each, bytes[each.byte])) << each.control;
    }
    expected = saved_image(std::move(expected), lists);
    click("C_Salva");
    check_image(expected, file_before, save);
    stage.close_top();
  }
}

}  // namespace ecr::test
