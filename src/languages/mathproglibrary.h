// MathProgLibrary: the operations of a library that reads GNU MathProg, as bound from it by name.
#pragma once

#include "platform/slottable.h"
#include "tarq/mathprog.h"

namespace tarq {

/// An operation that throws answers as if the model had failed or had nothing to tell.
using MathProgLibrary = SlotTable<                                       //
    Slot<"mp_create_prob", decltype(::mp_create_prob), 0>,               //
    Slot<"mp_get_col_lb", decltype(::mp_get_col_lb), 0>,                 //
    Slot<"mp_get_col_name", decltype(::mp_get_col_name), nullptr>,       //
    Slot<"mp_get_col_type", decltype(::mp_get_col_type), MP_TYPE_FREE>,  //
    Slot<"mp_get_col_ub", decltype(::mp_get_col_ub), 0>,                 //
    Slot<"mp_get_class", decltype(::mp_get_class), MP_CLASS_LP>,         //
    Slot<"mp_get_num_cols", decltype(::mp_get_num_cols), 0>,             //
    Slot<"mp_get_num_rows", decltype(::mp_get_num_rows), 0>,             //
    Slot<"mp_get_obj_coef", decltype(::mp_get_obj_coef), 0>,             //
    Slot<"mp_get_col_kind", decltype(::mp_get_col_kind), MP_KIND_CONTINUOUS>,
    Slot<"mp_print_prob", decltype(::mp_print_prob), 0>,                 //
    Slot<"mp_read_model2", decltype(::mp_read_model2), 1>,               //
    Slot<"mp_get_row_lb", decltype(::mp_get_row_lb), 0>,                 //
    Slot<"mp_get_row_ub", decltype(::mp_get_row_ub), 0>,                 //
    Slot<"mp_get_row_type", decltype(::mp_get_row_type), MP_TYPE_FREE>,  //
    Slot<"mp_get_row_name", decltype(::mp_get_row_name), nullptr>,       //
    Slot<"mp_get_mat_row", decltype(::mp_get_mat_row), 0>,               //
    Slot<"mp_get_obj_dir", decltype(::mp_get_obj_dir), MP_DIR_MIN>>;
static_assert(MathProgLibrary::count == 18);

}  // namespace tarq
