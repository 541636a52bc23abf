#pragma once
// What is asked of every screen of choice lists. A test writes its lists down once more, byte by byte and word by word,
// and none of that comes from the program's own tables.

#include <functional>
#include <vector>

#include <QString>
#include <QStringList>

#include "support_qt/screen_test.h"

namespace ecr::test {

inline constexpr int whole_byte = -1;
inline constexpr int decimal_byte = -2;  ///< two packed decimal digits

struct ListInImage {
  const char* control;
  std::size_t byte;                  ///< counted from the start of PRG_MODE.BIN
  int bit;                           ///< or one of the two above
  std::vector<const char*> entries;  ///< without a catalogue
  /// The list whose number is saved here, where that is another one.
  const char* saved_from = nullptr;
  bool loads_turned = false;   ///< a set bit shows the first entry
  bool mends_unknown = false;  ///< a byte that no entry has becomes 0 at load
  bool hidden_on_z300 = false;
};

class OptionScreenTest : public ScreenTest {
 protected:
  using Lists = std::vector<ListInImage>;
  enum class Save { writes_the_file, changes_the_working_image_only };

  /// For screens with other fields too: gives a random image what these need to be saved.
  std::function<void(PrgModeImage&)> prepare = [](PrgModeImage&) {};
  /// For tables of records, whose saves go on to the next one: brings the one with the lists back.
  std::function<void()> behind_a_save = [] {};

  /// Without a catalogue each list has exactly its entries, and is seen on the models that have it.
  void check_entries(const QString& screen, const Lists& lists);

  /// Each value that an entry stands for shows that entry, on both models; of values that no entry has, nothing is
  /// shown.
  void check_loading(const QString& screen, const Lists& lists);

  /// Each entry of each list, on both models, without and with the English catalogue: choosing it and saving gives its
  /// place that value and leaves every other byte of the image, and of the file, as the save before had it.
  void check_every_choice(const QString& screen, const Lists& lists, Save save = Save::writes_the_file);

  /// Over random images: opening the screen and saving changes no byte but by what the lists showed.
  void check_saving_untouched(const QString& screen, const Lists& lists, Save save = Save::writes_the_file);

  /// The number in front of the point, 0 for a text without one.
  [[nodiscard]] static int digit_of(const QString& entry);

  /// What the image becomes when the lists are saved as they stand on the screen.
  [[nodiscard]] std::string saved_image(std::string image, const Lists& lists) const;

 private:
  void check_image(const std::string& expected, const std::string& file_before, Save save) const;
};

}  // namespace ecr::test
