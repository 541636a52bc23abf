#pragma once
// The nine means of payment and the four foreign currencies.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

// The first three are captions of frames on their screen, the others of tabs.
inline constexpr Caption tender_captions[] = {
    {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT0, "TOTAL"},  {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT1, "CHECK"},
    {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT2, "CHARGE"}, {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT3, "CARD 1"},
    {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT4, "CARD 2"}, {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT5, "CARD 3"},
    {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT6, "CARD 4"}, {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT7, "CARD 5"},
    {Key::FRM_TENDER_MENU_SETTING_F_PAYMENT8, "CARD 6"}};

inline constexpr Choice tender_amounts[] = {{.digit = 0,
                                             .token = "optional",
                                             .literal = "0. NOT COMPULSORY",
                                             .text = Key::FRM_TENDER_MENU_SETTING_CMB_TENDERING_AMOUNT_0_MSG},
                                            {.digit = 1,
                                             .token = "compulsory",
                                             .literal = "1. COMPULSORY",
                                             .text = Key::FRM_TENDER_MENU_SETTING_CMB_TENDERING_AMOUNT_1_MSG}};
inline constexpr Choice change_allowed[] = {
    {.digit = 0, .token = "yes", .literal = "0. YES", .text = Key::FRM_TENDER_MENU_SETTING_CMB_CHANGE_ALLOWED_0_MSG},
    {.digit = 1, .token = "no", .literal = "1. NO", .text = Key::FRM_TENDER_MENU_SETTING_CMB_CHANGE_ALLOWED_1_MSG}};

inline constexpr auto tender_fields =
    in_section(Section::tenders, {{.id = "tender.name",
                                   .name = {Key::FRM_TENDER_MENU_SETTING_L_NOME, "Name"},
                                   .place = image_place("Tender.Name"),
                                   .coding = Coding::text,
                                   .edited = {"E_Name", "L_Nome", Reach::array_from_0},
                                   .oddity = Oddity::cut_while_typing},
                                  {.id = "tender.limit",
                                   .name = {Key::FRM_TENDER_MENU_SETTING_L_HDLO, "HDLO"},
                                   .place = image_place("Tender.Halo"),
                                   .choices = digit_limits,
                                   .edited = {"Cmb_Halo", "L_Hdlo", Reach::array_from_0}},
                                  {.id = "tender.amount",
                                   .name = {Key::FRM_TENDER_MENU_SETTING_L_TENDERING_AMOUNT, "Amount"},
                                   .place = image_bit("Tender.Options", 0),
                                   .choices = tender_amounts,
                                   .edited = {"Cmb_TenderingAmount", "L_TenderingAmount", Reach::array_from_0}},
                                  {.id = "tender.change",
                                   .name = {Key::FRM_TENDER_MENU_SETTING_L_CHANGE_ALLOWED, "Change Allowed"},
                                   .place = image_bit("Tender.Options", 1),
                                   .choices = change_allowed,
                                   .edited = {"Cmb_ChangeAllowed", "L_ChangeAllowed", Reach::array_from_0}},
                                  {.id = "tender.drawer",
                                   .name = {Key::FRM_TENDER_MENU_SETTING_L_DRAWER, "Drawer"},
                                   .place = image_bit("Tender.Options", 2),
                                   .choices = open_closed,
                                   .edited = {"Cmb_Drawer", "L_Drawer", Reach::array_from_0}}});

inline constexpr Caption currency_captions[] = {{Key::FRM_FC_RATING_SETTING_F_FC1_TITLE, "Foreign Currency 1 Setting"},
                                                {Key::FRM_FC_RATING_SETTING_F_FC2_TITLE, "Foreign Currency 2 Setting"},
                                                {Key::FRM_FC_RATING_SETTING_F_FC3_TITLE, "Foreign Currency 3 Setting"},
                                                {Key::FRM_FC_RATING_SETTING_F_FC4_TITLE, "Foreign Currency 4 Setting"}};

inline constexpr auto currency_fields = in_section(
    Section::currencies,
    {{.id = "currency.name",
      .name = {Key::FRM_FC_RATING_SETTING_L_NOME, "Name"},
      .place = image_place("ForeignCurrency.Name"),
      .coding = Coding::text,
      .edited = {"E_Name", "L_Nome", Reach::array_from_0},
      .oddity = Oddity::trimmed_by_loading},
     {.id = "currency.rate",
      .name = {Key::FRM_FC_RATING_SETTING_L_EXCHANGE_RATE, "Exchange Rate"},
      .place = image_place("ForeignCurrency.Rate"),
      .coding = Coding::rate,
      .limits = {.highest = 999'999},
      .edited = {"E_ExchangeRate", "L_ExchangeRate", Reach::array_from_0}},
     {.id = "currency.decimals-of-price",
      .name = {Key::FRM_FC_RATING_SETTING_L_DECIMAL_POSITION_FOR_RATE, "Decimal Position for Rate"},
      .place = image_place("ForeignCurrency.DecimalPositionForRate"),
      .coding = Coding::number,
      .limits = {.highest = 8},
      .edited = {"Cmb_DecimalPositionForRate", "L_DecimalPositionForRate", Reach::array_from_0}},
     {.id = "currency.decimals-of-rate",
      .name = {Key::FRM_FC_RATING_SETTING_L_DECIMAL_POSITION_FOR_EXCHANGED_RATE, "Decimal Position for Exchanged Rate"},
      .place = image_place("ForeignCurrency.DecimalPositionForExchangedRate"),
      .coding = Coding::number,
      .limits = {.highest = 3},
      .edited = {"Cmb_DecimalPositionForExchangedRate", "L_DecimalPositionForExchangedRate", Reach::array_from_0}}});

}  // namespace ecr::fields
