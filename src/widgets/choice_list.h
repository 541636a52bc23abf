#pragma once
// Choice lists: entries of the form digit, point, blank, label ("1. NORMAL"), where the digit is the stored value; and
// number lists, which name a record of a table and can be typed into.

#include <cstdint>
#include <functional>

#include <QComboBox>
#include <QString>
#include <QStringList>

namespace ecr {

/// A list that changes by the pointer and the arrow keys alone; typed or composed characters do nothing. It can show a
/// text that is none of its entries.
class ChoiceList : public QComboBox {
  Q_OBJECT

 public:
  enum class Typing { dropped, finds_entries };

  ChoiceList(const QString& name, QWidget* parent, Typing typing = Typing::dropped);

  /// Empties the list and fills it. Nothing is selected.
  void fill(const QStringList& entries);

  /// Shows a text: the entry that reads so, or the bare text where there is none.
  void show_text(const QString& text);
  /// Shows the entry whose digit is `number`, the first if there are several. Answers whether there is one; without it
  /// the list stays as it stands.
  bool show_number(int number);
  /// Shows the entry at this position.
  void show_entry(int position);
  /// Nothing selected, no text.
  void show_nothing();

  /// The text that the list shows.
  [[nodiscard]] QString text() const;
  /// The digit of the entry that is shown, 0 where it has none.
  [[nodiscard]] std::uint8_t number() const;
  /// For lists of bare numbers: the number that the whole text says, 0 where it says none.
  [[nodiscard]] int whole_number() const;

  /// Runs when the person picks an entry, also the one that is shown already; not when the program shows one.
  void on_click(std::function<void()> handler) { click_ = std::move(handler); }

  void showPopup() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Typing typing_;
  std::function<void()> click_;
};

/// The number of the record on screen, "1" to "99". Digits can be typed; each loads its record.
class NumberList : public QComboBox {
  Q_OBJECT

 public:
  /// `last` is the largest number; a larger one that is typed becomes it.
  NumberList(const QString& name, int last, QWidget* parent);

  /// Fills the list with "1" to the last number and shows the first.
  void fill();
  /// Shows a number as the program does: nothing is loaded by it.
  void show_number(int number);
  /// The number shown, 0 for an empty text.
  [[nodiscard]] int number() const;
  [[nodiscard]] int last() const { return last_; }

  /// Loads a record: runs when the person picks a number, or releases a key and has typed a digit or the number is
  /// another one than that of the record on screen.
  void on_click(std::function<void(int number)> handler) { click_ = std::move(handler); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void typed();
  void load();

  int last_;
  int on_screen_ = 0;  ///< the number that was shown or loaded last
  std::function<void(int)> click_;
};

/// "0", "1" and so on: the entries of a list of bare numbers.
[[nodiscard]] QStringList bare_numbers(int first, int last);

/// The label of an entry: all behind its first blank.
[[nodiscard]] QString label_of(const QString& entry);

}  // namespace ecr
