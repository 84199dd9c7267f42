// Sides: the columns and the rows of a model, for rooms that treat both alike, and the words in which they differ.
//
// Messages that read alike on both sides are put together, where they are made, from the names here; the others stand
// here whole. Clients know all of them by heart, so that what looks uneven has to stay so.
#pragma once

#include <cstdint>
#include <string_view>

#include "tarq/frame/status.h"

namespace tarq {

enum class ModelSide : std::uint8_t { Column, Row };

/// How a side is called and how its failures are told.
struct SideWords {
    std::string_view kind;  ///< at the beginning of a sentence
    std::string_view kindInside;
    std::string_view plural;
    std::string_view shortKind;  ///< as in names of members
    std::string_view shortKindInside;
    std::string_view itemClass;  ///< of an object that stands for one
    std::string_view familyClass;
    Status badName;

    std::string_view badAddress;       ///< for an address that is neither name nor number
    std::string_view keptByFamily;     ///< for the deletion of a family's member
    std::string_view nothingToAttach;  ///< for an object of another class
    std::string_view noNumber;         ///< for the number of a detached object
    Status noFamily;                   ///< for the first member of a family that has none in the model
    std::string_view noFamilyMessage;
};

inline constexpr SideWords columnWords{
    .kind = "Column",
    .kindInside = "column",
    .plural = "columns",
    .shortKind = "Col",
    .shortKindInside = "col",
    .itemClass = "TARQVar",
    .familyClass = "TARQVarSet",
    .badName = status::badColumnName,
    .badAddress = "Col index is not convertible to string or integer.",
    .keptByFamily = "Column is part of a TARQVarSet and cannot be deleted",
    .nothingToAttach = "Passed object is no TARQVar.",
    .noNumber = "TARQVar object is not attached to a model.",
    .noFamily = status::wrongState,
    .noFamilyMessage = "TARQVarSet is not part of the model",
};

inline constexpr SideWords rowWords{
    .kind = "Row",
    .kindInside = "row",
    .plural = "rows",
    .shortKind = "Row",
    .shortKindInside = "row",
    .itemClass = "TARQRes",
    .familyClass = "TARQResSet",
    .badName = status::badRowName,
    .badAddress = "Row index must be convertible to string or integer.",
    .keptByFamily = "Row is part of a TARQResSet and cannot be deleted.",
    .nothingToAttach = "Passed object is no TARQRes",
    .noNumber = "No model attached.",
    .noFamily = status::none,
    .noFamilyMessage = "",
};

constexpr const SideWords& wordsOf(ModelSide side) { return side == ModelSide::Column ? columnWords : rowWords; }

}  // namespace tarq
