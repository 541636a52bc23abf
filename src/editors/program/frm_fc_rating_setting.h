#pragma once
// The register's four foreign currencies: name, exchange rate, and where its point stands.

#include <array>
#include <cstdint>

#include "image/prg_mode.h"
#include "widgets/choice_list.h"
#include "widgets/editor_frame.h"
#include "widgets/field.h"

namespace ecr {

class FrmFCRatingSetting : public Screen {
  Q_OBJECT

 public:
  FrmFCRatingSetting();

  void load() override;
  [[nodiscard]] QWidget* first_focus() override { return currencies_[0].E_Name; }

 private:
  /// Members of the control arrays have the indices 0 to 3.
  struct Currency {
    Field* E_Name;
    Field* E_ExchangeRate;
    ChoiceList* Cmb_DecimalPositionForRate;
    ChoiceList* Cmb_DecimalPositionForExchangedRate;
    std::int32_t Rate = 0;  ///< the exchange rate without its point

    [[nodiscard]] int decimals() const { return Cmb_DecimalPositionForExchangedRate->whole_number(); }
  };

  [[nodiscard]] QWidget* make_frame(std::size_t index);
  static void load_currency(Currency& currency, ForeignCurrencyRecord& record);
  static void rate_entered(const Currency& currency);
  static void rate_left(Currency& currency);
  void save();

  EditorFrame frame_;
  std::array<Currency, 4> currencies_{};
};

}  // namespace ecr
