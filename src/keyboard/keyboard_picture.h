#pragma once
// The keyboard of a model as a picture: a plate with the keys where they lie on the register.
//
// The whole keyboard is one stop of Tab; the arrow keys, Home and End lead from key to key, Enter and Space press one.

#include <cstdint>
#include <functional>
#include <vector>

#include <QWidget>

#include "keyboard/free_layout.h"
#include "keyboard/key_cap.h"
#include "keyboard/keyboard_form.h"

namespace ecr {

class KeyboardPicture : public QWidget {
  Q_OBJECT

 public:
  /// `array` is the name of the control array that the keys make.
  KeyboardPicture(const KeyboardForm& form, const char* array, QWidget* parent);

  /// Runs when a key is clicked.
  void on_press(std::function<void(std::uint8_t key)> handler) { press_ = std::move(handler); }
  /// Runs when a function is dropped on a key.
  void on_drop(std::function<void(std::uint8_t key, std::uint8_t code)> handler) { drop_ = std::move(handler); }

  /// The cap of a key, counted from 1.
  [[nodiscard]] KeyCap& cap(std::uint8_t key) const { return *caps_.at(key - 1U); }
  /// Marks the keys that hold this function, 0 for none.
  void mark(std::uint8_t code);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] QRect plate() const;
  [[nodiscard]] QRect place_of(const KeyCapPlace& cap) const;
  [[nodiscard]] QSize size_for(QSize cap) const;
  [[nodiscard]] int left_of(int column, int width) const;
  void make_tab_stop(KeyCap& cap);
  /// Leads on from a cap by a key stroke; answers whether it is one that leads on.
  bool go_on(const KeyCap& from, int stroke);

  const KeyboardForm& form_;
  std::vector<KeyCap*> caps_;  ///< by the numbers of their keys
  KeyCap* tab_stop_ = nullptr;
  QSize cap_;  ///< of one key, with the space around it
  std::function<void(std::uint8_t)> press_;
  std::function<void(std::uint8_t, std::uint8_t)> drop_;
};

}  // namespace ecr
