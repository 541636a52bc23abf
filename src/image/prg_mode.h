#pragma once
// The programming image of the register: all that can be programmed except the items and the logo. One record, in
// memory and in the file PRG_MODE.BIN alike; the file goes to the register and comes back byte for byte.
//
// The struct is the layout. The static_asserts behind it are its proof: every section at its offset, so that a swap of
// two equal neighbours cannot pass.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "image/fields.h"

namespace ecr {

struct DeptRecord {
  Text<12> Name;
  Flags Status1;            ///< bit 0 negative, bit 1 single item, bit 3 set by a save, bits 4-7 digit limit 0 to 4
  Flags Status2;            ///< bits 0-1 price type: 0 open, 1 normal, 2 preset
  std::uint8_t Changed;     ///< 1: changed on screen before the last save
  std::uint8_t Group;       ///< 0 none, 1 to 9, 16 for group 10
  std::uint8_t Tax;         ///< 0 none, 1 to 4 the VAT rate
  std::uint8_t TakeOutTax;  ///< the same scale
  Bcd<4> Price;             ///< smallest units
};

struct ClerkRecord {
  Text<24> Name;
  Flags Rights;
  std::uint8_t Unused;
  Bcd<2> Password;
};

struct ForeignCurrencyRecord {
  Text<10> Name;
  std::uint8_t DecimalPositionForExchangedRate;
  std::uint8_t DecimalPositionForRate;
  Bcd<4> Rate;
};

struct TenderRecord {
  Text<12> Name;
  std::uint8_t Halo;  ///< digit limit, 0 to 4
  Flags Options;
};

struct InstoreBarcodeRecord {
  Bcd<2> FlagCode;
  std::uint8_t DigitsOfFlag;
  std::uint8_t DigitsOfPrice;
  std::uint8_t NumberOfFc;
  std::uint8_t CodeLenght;
  std::uint8_t PriceCheckDigit;
  std::uint8_t NewsPaper;
};

struct PrgModeImage {
  Flags Set00_InitialMenu;
  Flags Set01_Working;
  Flags Set02_Working;
  Flags Set03_Working;
  Flags Set04_InitialMenu;
  Flags Set05_Print;
  Flags Set06_Print;
  Flags Set07_Print;
  Flags Set08_EJ;
  Flags Set09_ClerkMenu;
  Flags Set10_Report;  ///< shared by several screens, each owning its bits; so is the next
  Flags Set11_Shared;
  Flags Set12_Hospitality;
  Flags Set13_EJ;
  Flags Set14_Print;
  Flags Set15_Print;
  Flags Set16_Print;
  Flags Set17_Print;
  Flags Set18_Print;
  Flags Set19_Print;
  Flags Set20_Print;
  Opaque<4> Spare4;
  Bcd<5> InitialMenuBlock5;
  Bcd<2> Perm0;
  Bcd<2> Perm1;
  Bcd<2> Perm2;
  Bcd<2> Perm3;
  std::array<Bcd<4>, 4> VatRate;  ///< thousandths of a percent
  std::array<Bcd<2>, 2> PercentA;
  std::array<Bcd<2>, 2> PercentB;
  std::uint8_t KeyOpt0;
  std::uint8_t KeyOpt1;
  std::uint8_t KeyOpt2;
  std::uint8_t KeyOpt3;
  Flags KeyOpt4;
  std::uint8_t SysOpt0;  ///< decimals of amounts
  std::uint8_t SysOpt1;
  Flags NoSaleOpt;
  std::array<Bcd<8>, 3> PluPage;
  std::array<InstoreBarcodeRecord, 10> InstoreBarcode;
  std::uint8_t CaptionOpt0;
  std::uint8_t CaptionOpt1;
  std::array<std::array<Flags, 8>, 5> AdvSet8;
  std::array<Opaque<20>, 5> AdvSet20;
  std::array<std::array<Flags, 2>, 5> AdvSet2;
  std::array<std::uint8_t, 3> SysOpt2;
  std::array<DeptRecord, 99> Dept;
  std::array<ClerkRecord, 15> Clerk;
  std::array<ForeignCurrencyRecord, 4> ForeignCurrency;
  std::array<TenderRecord, 9> Tender;
  Bcd<4> SysOpt3;  ///< consecutive receipt number; the register's own, like SysOpt5 to SysOpt7
  Bcd<4> SysOpt4;  ///< invoice number
  Bcd<2> SysOpt5;  ///< Z1 counter
  Bcd<2> SysOpt6;  ///< Z2 counter
  Bcd<8> SysOpt7;  ///< grand total
  std::array<Text<12>, 10> DeptGroupName;
  std::array<Text<24>, 10> ReceiptHeader;
  std::array<Text<24>, 10> ReceiptFooter;
  Text<42> OffModeScrollMessage;
  Text<42> PrgXZ_ModeScrollMessage;
  Text<42> RegModeSalesScrollMessage;
  Text<42> IdleAMScrollMessage;
  Text<42> IdlePMScrollMessage;
  std::array<Text<24>, 7> Abr;
  std::array<Text<24>, 5> ExtraInvoice;
  std::array<Text<10>, 78> Caption;
  std::array<Text<24>, 23> Other;
  std::array<std::uint8_t, 89> KeyLayout;  ///< key code at each position of the register's scan matrix
};

inline constexpr std::size_t prg_mode_size = 5656;

static_assert(sizeof(PrgModeImage) == prg_mode_size);
static_assert(alignof(PrgModeImage) == 1);
static_assert(std::is_trivially_copyable_v<PrgModeImage>);
static_assert(sizeof(DeptRecord) == 22 && sizeof(ClerkRecord) == 28 && sizeof(ForeignCurrencyRecord) == 16);
static_assert(sizeof(TenderRecord) == 14 && sizeof(InstoreBarcodeRecord) == 8);

// clang-format off
static_assert(offsetof(DeptRecord, Name) == 0);
static_assert(offsetof(DeptRecord, Status1) == 12);
static_assert(offsetof(DeptRecord, Status2) == 13);
static_assert(offsetof(DeptRecord, Changed) == 14);
static_assert(offsetof(DeptRecord, Group) == 15);
static_assert(offsetof(DeptRecord, Tax) == 16);
static_assert(offsetof(DeptRecord, TakeOutTax) == 17);
static_assert(offsetof(DeptRecord, Price) == 18);
static_assert(offsetof(ClerkRecord, Name) == 0);
static_assert(offsetof(ClerkRecord, Rights) == 24);
static_assert(offsetof(ClerkRecord, Unused) == 25);
static_assert(offsetof(ClerkRecord, Password) == 26);
static_assert(offsetof(ForeignCurrencyRecord, Name) == 0);
static_assert(offsetof(ForeignCurrencyRecord, DecimalPositionForExchangedRate) == 10);
static_assert(offsetof(ForeignCurrencyRecord, DecimalPositionForRate) == 11);
static_assert(offsetof(ForeignCurrencyRecord, Rate) == 12);
static_assert(offsetof(TenderRecord, Name) == 0);
static_assert(offsetof(TenderRecord, Halo) == 12);
static_assert(offsetof(TenderRecord, Options) == 13);
static_assert(offsetof(InstoreBarcodeRecord, FlagCode) == 0);
static_assert(offsetof(InstoreBarcodeRecord, DigitsOfFlag) == 2);
static_assert(offsetof(InstoreBarcodeRecord, DigitsOfPrice) == 3);
static_assert(offsetof(InstoreBarcodeRecord, NumberOfFc) == 4);
static_assert(offsetof(InstoreBarcodeRecord, CodeLenght) == 5);
static_assert(offsetof(InstoreBarcodeRecord, PriceCheckDigit) == 6);
static_assert(offsetof(InstoreBarcodeRecord, NewsPaper) == 7);

static_assert(offsetof(PrgModeImage, Set00_InitialMenu) == 0);
static_assert(offsetof(PrgModeImage, Set01_Working) == 1);
static_assert(offsetof(PrgModeImage, Set02_Working) == 2);
static_assert(offsetof(PrgModeImage, Set03_Working) == 3);
static_assert(offsetof(PrgModeImage, Set04_InitialMenu) == 4);
static_assert(offsetof(PrgModeImage, Set05_Print) == 5);
static_assert(offsetof(PrgModeImage, Set06_Print) == 6);
static_assert(offsetof(PrgModeImage, Set07_Print) == 7);
static_assert(offsetof(PrgModeImage, Set08_EJ) == 8);
static_assert(offsetof(PrgModeImage, Set09_ClerkMenu) == 9);
static_assert(offsetof(PrgModeImage, Set10_Report) == 10);
static_assert(offsetof(PrgModeImage, Set11_Shared) == 11);
static_assert(offsetof(PrgModeImage, Set12_Hospitality) == 12);
static_assert(offsetof(PrgModeImage, Set13_EJ) == 13);
static_assert(offsetof(PrgModeImage, Set14_Print) == 14);
static_assert(offsetof(PrgModeImage, Set15_Print) == 15);
static_assert(offsetof(PrgModeImage, Set16_Print) == 16);
static_assert(offsetof(PrgModeImage, Set17_Print) == 17);
static_assert(offsetof(PrgModeImage, Set18_Print) == 18);
static_assert(offsetof(PrgModeImage, Set19_Print) == 19);
static_assert(offsetof(PrgModeImage, Set20_Print) == 20);
static_assert(offsetof(PrgModeImage, Spare4) == 21);
static_assert(offsetof(PrgModeImage, InitialMenuBlock5) == 25);
static_assert(offsetof(PrgModeImage, Perm0) == 30);
static_assert(offsetof(PrgModeImage, Perm1) == 32);
static_assert(offsetof(PrgModeImage, Perm2) == 34);
static_assert(offsetof(PrgModeImage, Perm3) == 36);
static_assert(offsetof(PrgModeImage, VatRate) == 38);
static_assert(offsetof(PrgModeImage, PercentA) == 54);
static_assert(offsetof(PrgModeImage, PercentB) == 58);
static_assert(offsetof(PrgModeImage, KeyOpt0) == 62);
static_assert(offsetof(PrgModeImage, KeyOpt1) == 63);
static_assert(offsetof(PrgModeImage, KeyOpt2) == 64);
static_assert(offsetof(PrgModeImage, KeyOpt3) == 65);
static_assert(offsetof(PrgModeImage, KeyOpt4) == 66);
static_assert(offsetof(PrgModeImage, SysOpt0) == 67);
static_assert(offsetof(PrgModeImage, SysOpt1) == 68);
static_assert(offsetof(PrgModeImage, NoSaleOpt) == 69);
static_assert(offsetof(PrgModeImage, PluPage) == 70);
static_assert(offsetof(PrgModeImage, InstoreBarcode) == 94);
static_assert(offsetof(PrgModeImage, CaptionOpt0) == 174);
static_assert(offsetof(PrgModeImage, CaptionOpt1) == 175);
static_assert(offsetof(PrgModeImage, AdvSet8) == 176);
static_assert(offsetof(PrgModeImage, AdvSet20) == 216);
static_assert(offsetof(PrgModeImage, AdvSet2) == 316);
static_assert(offsetof(PrgModeImage, SysOpt2) == 326);
static_assert(offsetof(PrgModeImage, Dept) == 329);
static_assert(offsetof(PrgModeImage, Clerk) == 2507);
static_assert(offsetof(PrgModeImage, ForeignCurrency) == 2927);
static_assert(offsetof(PrgModeImage, Tender) == 2991);
static_assert(offsetof(PrgModeImage, SysOpt3) == 3117);
static_assert(offsetof(PrgModeImage, SysOpt4) == 3121);
static_assert(offsetof(PrgModeImage, SysOpt5) == 3125);
static_assert(offsetof(PrgModeImage, SysOpt6) == 3127);
static_assert(offsetof(PrgModeImage, SysOpt7) == 3129);
static_assert(offsetof(PrgModeImage, DeptGroupName) == 3137);
static_assert(offsetof(PrgModeImage, ReceiptHeader) == 3257);
static_assert(offsetof(PrgModeImage, ReceiptFooter) == 3497);
static_assert(offsetof(PrgModeImage, OffModeScrollMessage) == 3737);
static_assert(offsetof(PrgModeImage, PrgXZ_ModeScrollMessage) == 3779);
static_assert(offsetof(PrgModeImage, RegModeSalesScrollMessage) == 3821);
static_assert(offsetof(PrgModeImage, IdleAMScrollMessage) == 3863);
static_assert(offsetof(PrgModeImage, IdlePMScrollMessage) == 3905);
static_assert(offsetof(PrgModeImage, Abr) == 3947);
static_assert(offsetof(PrgModeImage, ExtraInvoice) == 4115);
static_assert(offsetof(PrgModeImage, Caption) == 4235);
static_assert(offsetof(PrgModeImage, Other) == 5015);
static_assert(offsetof(PrgModeImage, KeyLayout) == 5567);
// clang-format on

/// The working image: the one that every editor changes. All zero before the first read.
extern PrgModeImage PrgMode;

/// The comparison image: filled only when a send merges what the register owns; no editor touches it.
extern PrgModeImage PrgModeComparison;

/// Reads PRG_MODE.BIN from PathDati into the working image, or into the comparison image. A missing file is created
/// empty. A short file fills what it reaches and leaves the rest as it was. Answers whether the keypad test passed,
/// which always looks at the working image; if it did not, a box has said so. A file that delivers nothing, because it
/// is missing, empty or cannot be read, fails it, whatever stands in memory.
bool Read_PrgMode(bool toComparison = false);

/// Writes the working image over the head of PRG_MODE.BIN; what stands behind byte 5656 of the file stays. A failure
/// is silent.
void Write_PrgMode();

/// Takes over the decimals of amounts from the working image, its SysOpt0. The one writer of Global::DecimalPoint.
void take_decimal_point();

/// Whether the digit keys 1 to 9 lie in `KeyLayout` where the keyboard of the model has them. `model` is a value of
/// Global::EcrModel.
[[nodiscard]] bool keypad_matches(const PrgModeImage& image, std::uint8_t model);

/// The image's bytes, in file order.
[[nodiscard]] std::string_view bytes_of_image(const PrgModeImage& image) noexcept;

/// One byte of the working image, by its place in the file, 0 to 5655. FaultError(out_of_range) for any other.
[[nodiscard]] std::uint8_t& image_byte(std::size_t offset);

/// Both images as before any read.
void reset_prg_mode() noexcept;

}  // namespace ecr
