#pragma once
// The reports that a chain key runs: five chains, and a bit for each report. One set of boxes shows one chain at a
// time.

#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr auto chain_fields =
    in_section(Section::chains,
               {{.id = "chain.all-plu",
                 .name = {Key::FRM_ADVANCED_SETTING_CHK_ALL_PLU_MSG, "All Plu"},
                 .place = image_bit("AdvSet2", 2),
                 .coding = Coding::flag,
                 .edited = {.control = "Chk_AllPlu", .reach = Reach::tab}},
                {.id = "chain.department-financial-gt",
                 .name = {Key::FRM_ADVANCED_SETTING_CHK_DEPARTMENT_AND_FINANCIAL_GT_MSG, "Department And Financia GT"},
                 .place = image_bit("AdvSet2", 7),
                 .coding = Coding::flag,
                 .edited = {.control = "Chk_DepartmentAndFinanciaGT", .reach = Reach::tab}},
                {.id = "chain.department-financial",
                 .name = {Key::FRM_ADVANCED_SETTING_CHK_DEPARTMENT_AND_FINANCIAL_MSG, "Department And Financial"},
                 .place = image_bit("AdvSet2", 0),
                 .coding = Coding::flag,
                 .edited = {.control = "ChK_DepartmentAndFinancial", .reach = Reach::tab}},
                {.id = "chain.department-group",
                 .name = {Key::FRM_ADVANCED_SETTING_CHK_DEPARTMENT_GROUP_MSG, "Department Group"},
                 .place = image_bit("AdvSet2", 1),
                 .coding = Coding::flag,
                 .edited = {.control = "Chk_DepartmentGroup", .reach = Reach::tab}},
                {.id = "chain.hourly",
                 .name = {Key::FRM_ADVANCED_SETTING_CHK_HOURLY_MSG, "Hourly"},
                 .place = image_bit("AdvSet2", 5),
                 .coding = Coding::flag,
                 .edited = {.control = "Chk_Hourly", .reach = Reach::tab}},
                {.id = "chain.clerk",
                 .name = {.built_in = "Sales Clerk"},
                 .place = image_bit("AdvSet2", 3),
                 .coding = Coding::flag,
                 .edited = {.control = "Chk_SalesClerk", .reach = Reach::tab}},
                {.id = "chain.training",
                 .name = {Key::FRM_ADVANCED_SETTING_CHK_TRAINING_MSG, "Training"},
                 .place = image_bit("AdvSet2", 6),
                 .coding = Coding::flag,
                 .edited = {.control = "Chk_Training", .reach = Reach::tab}},
                {.id = "chain.training-clerk",
                 .name = {Key::FRM_ADVANCED_SETTING_CHK_TRAINING_CLERK_MSG, "Training Clerk"},
                 .place = image_bit("AdvSet2", 4),
                 .coding = Coding::flag,
                 .edited = {.control = "Chk_TrainingClerk", .reach = Reach::tab}},
                {.id = "chain.full-ej",
                 .name = {Key::FRM_ADVANCED_SETTING_CHK_FULL_EJ_MSG, "Full EJ"},
                 .place = image_bit("AdvSet2", 0, 1),
                 .coding = Coding::flag,
                 .edited = {.control = "Chk_FullEJ", .reach = Reach::tab}},
                {.id = "chain.plu-stock",
                 .name = {Key::FRM_ADVANCED_SETTING_CHK_ALL_PLU_STOCK_MSG, "All PLU stock"},
                 .place = image_bit("AdvSet2", 1, 1),
                 .coding = Coding::flag,
                 .edited = {.control = "Chk_AllPluStock", .reach = Reach::tab}}});

/// The key at each position of the register's scan matrix. Positions count from 0; a model has no key at some of them,
/// and carries their codes along.
inline constexpr auto key_layout_fields =
    in_section(Section::key_layout, {{.id = "key.function",
                                      .name = {.own = OwnText::field_function},
                                      .place = image_place("KeyLayout"),
                                      .coding = Coding::key,
                                      .limits = {.highest = 255},
                                      .edited = {.control = "L_key", .reach = Reach::key_cap}}});

}  // namespace ecr::fields
