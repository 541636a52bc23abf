#pragma once
// The 99 departments and the names of their ten groups.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr Choice department_signs[] = {
    {.digit = 0, .token = "positive", .literal = "0. POSITIVE", .text = Key::FRM_ALL_POSITIVE},
    {.digit = 1, .token = "negative", .literal = "1. NEGATIVE", .text = Key::FRM_ALL_NEGATIVE}};
inline constexpr Choice sale_types[] = {
    {.digit = 0, .token = "normal", .literal = "0. NORMAL", .text = Key::FRM_ALL_NORMAL},
    {.digit = 1, .token = "single", .literal = "1. SINGLE", .text = Key::FRM_ALL_SINGLE}};
// Each of the first two asks whether the other one has a text.
inline constexpr Choice price_types[] = {
    {.digit = 0, .token = "open", .literal = "0. OPEN", .text = Key::FRM_ALL_OPEN, .decides = Key::FRM_ALL_NORMAL},
    {.digit = 1, .token = "normal", .literal = "1. NORMAL", .text = Key::FRM_ALL_NORMAL, .decides = Key::FRM_ALL_OPEN},
    {.digit = 2, .token = "preset", .literal = "2. PRESET", .text = Key::FRM_ALL_PRESET}};

inline constexpr std::int64_t highest_price = 9'999'999;

inline constexpr auto department_fields =
    in_section(Section::departments, {{.id = "dept.name",
                                       .name = {Key::FRM_DEPARTMENT_PROGRAM_L_DEPT_NAME, "Department Name:"},
                                       .place = image_place("Dept.Name"),
                                       .coding = Coding::text,
                                       .edited = {"E_DeptName", "L_DeptName", Reach::record_list}},
                                      {.id = "dept.price",
                                       .name = {Key::FRM_DEPARTMENT_PROGRAM_L_PRICE, "Price :"},
                                       .place = image_place("Dept.Price"),
                                       .coding = Coding::amount,
                                       .limits = {.highest = highest_price},
                                       .edited = {"E_Price", "L_Price", Reach::record_list}},
                                      {.id = "dept.price-type",
                                       .name = {Key::FRM_DEPT_PRICE_TYPE_MSG, "Price Type"},
                                       .place = image_bits("Dept.Status2", 0x03),
                                       .choices = price_types,
                                       .edited = {"Cmb_PriceType", "L_PriceType", Reach::record_list}},
                                      {.id = "dept.group",
                                       .name = {Key::FRM_DEPARTMENT_PROGRAM_L_DEPT_GROUP_NUMBER, "Dept Group Number"},
                                       .place = image_place("Dept.Group"),
                                       .coding = Coding::number,
                                       .limits = {.highest = 10},
                                       .edited = {"E_DeptGroupNumber", "L_DeptGroupNumber", Reach::record_list},
                                       .oddity = Oddity::ten_is_sixteen},
                                      {.id = "dept.tax",
                                       .name = {Key::FRM_DEPARTMENT_PROGRAM_L_TAX, "TAX"},
                                       .place = image_place("Dept.Tax"),
                                       .choices = taxes,
                                       .edited = {"Cmb_Tax", "L_Tax", Reach::record_list}},
                                      {.id = "dept.take-out-tax",
                                       .name = {Key::FRM_DEPARTMENT_PROGRAM_L_TAKE_OUT_TAX, "Take Out Tax"},
                                       .place = image_place("Dept.TakeOutTax"),
                                       .choices = taxes,
                                       .edited = {"Cmb_TakeOutTax", "L_TakeOutTax", Reach::record_list}},
                                      {.id = "dept.sign",
                                       .name = {Key::FRM_DEPARTMENT_PROGRAM_L_STATUS1, "Status 1"},
                                       .place = image_bit("Dept.Status1", 0),
                                       .choices = department_signs,
                                       .edited = {"Cmb_Status1", "L_Status1", Reach::record_list}},
                                      {.id = "dept.sale-type",
                                       .name = {Key::FRM_DEPARTMENT_PROGRAM_L_STATUS2, "Status 2"},
                                       .place = image_bit("Dept.Status1", 1),
                                       .choices = sale_types,
                                       .edited = {"Cmb_Status2", "L_Status2", Reach::record_list}},
                                      {.id = "dept.limit",
                                       .name = {Key::FRM_DEPARTMENT_PROGRAM_L_HALO, "HDLO"},
                                       .place = image_bits("Dept.Status1", 0xF0),
                                       .choices = digit_limits,
                                       .edited = {"Cmb_Halo", "L_Halo", Reach::record_list}},
                                      {.id = "dept.saved",
                                       .name = {.own = OwnText::field_saved_here},
                                       .place = image_bit("Dept.Status1", 3),
                                       .coding = Coding::flag,
                                       .owner = Owner::program},
                                      {.id = "dept.changed",
                                       .name = {.own = OwnText::field_changed},
                                       .place = image_place("Dept.Changed"),
                                       .coding = Coding::number,
                                       .limits = {.highest = 1},
                                       .owner = Owner::program}});

inline constexpr auto group_fields =
    in_section(Section::groups, {{.id = "group.name",
                                  .name = {Key::FRM_DEPT_GROUP_SETTING_L_NAME, "Name"},
                                  .place = image_place("DeptGroupName"),
                                  .coding = Coding::text,
                                  .edited = {"E_Name", "L_Name", Reach::record_list}}});

}  // namespace ecr::fields
