#pragma once
// Every field of the programming image and of the item record, with its place: one table each, whose rows take
// offset, width, number and kind from the structs themselves. The check behind the tables proves that they reach every
// byte of the file, none of them twice.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "image/fields.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"

namespace ecr {

enum class FieldKind : std::uint8_t {
  text,    ///< register characters, padded with blanks
  bcd,     ///< packed decimal, least significant pair first
  byte,    ///< numbers and bit flags, each byte for itself
  opaque,  ///< carried along, interpreted by nobody
};

/// A field, or a row of equal fields at equal distances.
struct FieldPlace {
  std::string_view name;   ///< as in the struct; for a field of a record "Dept.Price", for one of an item "Plu.Price1"
  std::size_t offset = 0;  ///< bytes from the start of the image (of the item record)
  std::size_t count = 1;
  std::size_t stride = 0;  ///< bytes from one to the next
  std::size_t width = 0;   ///< bytes of each
  FieldKind kind = FieldKind::byte;
  std::size_t first = 1;  ///< the number of the first one: all count from 1, only positions of the keyboard from 0

  [[nodiscard]] constexpr std::size_t offset_of(std::size_t number) const { return offset + (number - first) * stride; }
  [[nodiscard]] constexpr bool has(std::size_t number) const { return number >= first && number - first < count; }
};

namespace layout_detail {

// What a field's type says of its bytes.
template <typename T>
struct Element;
template <std::size_t N>
struct Element<Bcd<N>> {
  static constexpr FieldKind kind = FieldKind::bcd;
};
template <std::size_t N>
struct Element<Text<N>> {
  static constexpr FieldKind kind = FieldKind::text;
};
template <std::size_t N>
struct Element<Opaque<N>> {
  static constexpr FieldKind kind = FieldKind::opaque;
};
template <>
struct Element<std::uint8_t> {
  static constexpr FieldKind kind = FieldKind::byte;
};
template <std::size_t N>
struct Element<std::array<std::uint8_t, N>> {
  static constexpr FieldKind kind = FieldKind::byte;
};

// A member of the image is one element, or an array of them.
template <typename T>
struct Member {
  static constexpr FieldPlace place(std::string_view name, std::size_t offset) {
    return {name, offset, 1, sizeof(T), sizeof(T), Element<T>::kind};
  }
};
template <typename T, std::size_t N>
struct Member<std::array<T, N>> {
  static constexpr FieldPlace place(std::string_view name, std::size_t offset) {
    return {name, offset, N, sizeof(T), sizeof(T), Element<T>::kind};
  }
};

/// The field `T` of a record, in each of the records of a section.
template <typename T, typename Section>
constexpr FieldPlace in_records(std::string_view name, std::size_t section, std::size_t offset) {
  return {name,      section + offset, std::tuple_size_v<Section>, sizeof(typename Section::value_type),
          sizeof(T), Element<T>::kind};
}

constexpr FieldPlace from_zero(FieldPlace place) {
  place.first = 0;
  return place;
}

/// Whether the places fill the first `size` bytes, each exactly once.
template <std::size_t Size>
consteval bool fill(std::span<const FieldPlace> places) {
  std::array<bool, Size> taken{};
  std::size_t bytes = 0;
  for (const FieldPlace& place : places) {
    for (std::size_t number = place.first; place.has(number); ++number) {
      for (std::size_t i = 0; i < place.width; ++i) {
        bool& byte = taken.at(place.offset_of(number) + i);
        if (byte) return false;
        byte = true;
        ++bytes;
      }
    }
  }
  return bytes == Size;
}

}  // namespace layout_detail

#define ECR_FIELD(member) \
  layout_detail::Member<decltype(PrgModeImage::member)>::place(#member, offsetof(PrgModeImage, member))
#define ECR_RECORD(section, record, member)                                             \
  layout_detail::in_records<decltype(record::member), decltype(PrgModeImage::section)>( \
      #section "." #member, offsetof(PrgModeImage, section), offsetof(record, member))
#define ECR_ITEM(member) \
  layout_detail::Member<decltype(PluRecord::member)>::place("Plu." #member, offsetof(PluRecord, member))

/// The programming image, in file order; the fields of a record follow each other.
// clang-format off
inline constexpr auto image_fields = std::to_array<FieldPlace>({
    ECR_FIELD(Set00_InitialMenu), ECR_FIELD(Set01_Working), ECR_FIELD(Set02_Working), ECR_FIELD(Set03_Working),
    ECR_FIELD(Set04_InitialMenu), ECR_FIELD(Set05_Print), ECR_FIELD(Set06_Print), ECR_FIELD(Set07_Print),
    ECR_FIELD(Set08_EJ), ECR_FIELD(Set09_ClerkMenu), ECR_FIELD(Set10_Report), ECR_FIELD(Set11_Shared),
    ECR_FIELD(Set12_Hospitality), ECR_FIELD(Set13_EJ), ECR_FIELD(Set14_Print), ECR_FIELD(Set15_Print),
    ECR_FIELD(Set16_Print), ECR_FIELD(Set17_Print), ECR_FIELD(Set18_Print), ECR_FIELD(Set19_Print),
    ECR_FIELD(Set20_Print), ECR_FIELD(Spare4), ECR_FIELD(InitialMenuBlock5),
    ECR_FIELD(Perm0), ECR_FIELD(Perm1), ECR_FIELD(Perm2), ECR_FIELD(Perm3),
    ECR_FIELD(VatRate), ECR_FIELD(PercentA), ECR_FIELD(PercentB),
    ECR_FIELD(KeyOpt0), ECR_FIELD(KeyOpt1), ECR_FIELD(KeyOpt2), ECR_FIELD(KeyOpt3), ECR_FIELD(KeyOpt4),
    ECR_FIELD(SysOpt0), ECR_FIELD(SysOpt1), ECR_FIELD(NoSaleOpt), ECR_FIELD(PluPage),
    ECR_RECORD(InstoreBarcode, InstoreBarcodeRecord, FlagCode),
    ECR_RECORD(InstoreBarcode, InstoreBarcodeRecord, DigitsOfFlag),
    ECR_RECORD(InstoreBarcode, InstoreBarcodeRecord, DigitsOfPrice),
    ECR_RECORD(InstoreBarcode, InstoreBarcodeRecord, NumberOfFc),
    ECR_RECORD(InstoreBarcode, InstoreBarcodeRecord, CodeLenght),
    ECR_RECORD(InstoreBarcode, InstoreBarcodeRecord, PriceCheckDigit),
    ECR_RECORD(InstoreBarcode, InstoreBarcodeRecord, NewsPaper),
    ECR_FIELD(CaptionOpt0), ECR_FIELD(CaptionOpt1),
    ECR_FIELD(AdvSet8), ECR_FIELD(AdvSet20), ECR_FIELD(AdvSet2), ECR_FIELD(SysOpt2),
    ECR_RECORD(Dept, DeptRecord, Name), ECR_RECORD(Dept, DeptRecord, Status1), ECR_RECORD(Dept, DeptRecord, Status2),
    ECR_RECORD(Dept, DeptRecord, Changed), ECR_RECORD(Dept, DeptRecord, Group), ECR_RECORD(Dept, DeptRecord, Tax),
    ECR_RECORD(Dept, DeptRecord, TakeOutTax), ECR_RECORD(Dept, DeptRecord, Price),
    ECR_RECORD(Clerk, ClerkRecord, Name), ECR_RECORD(Clerk, ClerkRecord, Rights),
    ECR_RECORD(Clerk, ClerkRecord, Unused), ECR_RECORD(Clerk, ClerkRecord, Password),
    ECR_RECORD(ForeignCurrency, ForeignCurrencyRecord, Name),
    ECR_RECORD(ForeignCurrency, ForeignCurrencyRecord, DecimalPositionForExchangedRate),
    ECR_RECORD(ForeignCurrency, ForeignCurrencyRecord, DecimalPositionForRate),
    ECR_RECORD(ForeignCurrency, ForeignCurrencyRecord, Rate),
    ECR_RECORD(Tender, TenderRecord, Name), ECR_RECORD(Tender, TenderRecord, Halo),
    ECR_RECORD(Tender, TenderRecord, Options),
    ECR_FIELD(SysOpt3), ECR_FIELD(SysOpt4), ECR_FIELD(SysOpt5), ECR_FIELD(SysOpt6), ECR_FIELD(SysOpt7),
    ECR_FIELD(DeptGroupName), ECR_FIELD(ReceiptHeader), ECR_FIELD(ReceiptFooter),
    ECR_FIELD(OffModeScrollMessage), ECR_FIELD(PrgXZ_ModeScrollMessage), ECR_FIELD(RegModeSalesScrollMessage),
    ECR_FIELD(IdleAMScrollMessage), ECR_FIELD(IdlePMScrollMessage),
    ECR_FIELD(Abr), ECR_FIELD(ExtraInvoice), ECR_FIELD(Caption), ECR_FIELD(Other),
    layout_detail::from_zero(ECR_FIELD(KeyLayout)),
});

/// One item of PRG_PLU.BIN; the offsets count from the record's start.
inline constexpr auto item_fields = std::to_array<FieldPlace>({
    ECR_ITEM(Code), ECR_ITEM(Name), ECR_ITEM(Flags1), ECR_ITEM(LinkDept), ECR_ITEM(Tax), ECR_ITEM(TakeOutTax),
    ECR_ITEM(Price1), ECR_ITEM(Price2), ECR_ITEM(PluListLink), ECR_ITEM(SendFlag), ECR_ITEM(Stock),
});
// clang-format on

#undef ECR_FIELD
#undef ECR_RECORD
#undef ECR_ITEM

static_assert(layout_detail::fill<prg_mode_size>(image_fields), "a byte of the image is missing or taken twice");
static_assert(layout_detail::fill<sizeof(PluRecord)>(item_fields), "a byte of the item is missing or taken twice");

/// What a byte belongs to; without a field for a byte behind the end.
struct BytePlace {
  const FieldPlace* field = nullptr;
  std::size_t number = 0;  ///< which one of the row
  std::size_t byte = 0;    ///< which byte of the field, from 0
};

[[nodiscard]] BytePlace place_of_byte(std::span<const FieldPlace> fields, std::size_t offset);

/// The field of that name; nullptr if there is none.
[[nodiscard]] const FieldPlace* field_named(std::span<const FieldPlace> fields, std::string_view name);

/// "Perm0" for a field that stands alone, "VatRate[2]" for one of a row, "Dept[7].Price" for one of a record.
[[nodiscard]] std::string name_of(const FieldPlace& field, std::size_t number);

/// What stands at a byte of the image, for people: "Dept[7].Price, byte 2"; empty behind the image's end.
[[nodiscard]] std::string describe_image_byte(std::size_t offset);

}  // namespace ecr
