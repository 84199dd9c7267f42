// CTARQArray: a table of values indexed by names.
#pragma once

#include <span>
#include <string_view>

#include "indexed/arrays/arraystore.h"
#include "indexed/dimensions/idimensions.h"
#include "indexed/dimensions/indexarguments.h"
#include "indexed/values/arraycells.h"
#include "tarq/frame/countedobject.h"
#include "tarq/interfaces/classids.h"
#include "tarq/interfaces/itarqarray.h"

namespace tarq {

class CTARQArray final : public CountedObject<CTARQArray, ITARQArray, IArrayCells, IDimensions> {
public:
    Status AddMatrix(const Variant& Matrix) override;
    Status AddScalar(double Value) override;
    Status Clear() override;
    Status CloneFrom(const Variant& Array) override;
    Status Init(const ValueList& ListOfIndexsets) override;
    Status MultiplyScalar(double Value) override;
    Status MultiplyMatrices(const Variant& Matrix1, const Variant& Matrix2) override;
    Status SetValues(const ValueList& ListOfValues) override;
    Status TransposeMatrix() override;

    Status get__NewEnum(Ref<IUnknown>* value) override;  // NOLINT(bugprone-reserved-identifier)
    Status get_Value(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                     const Variant& Index5, Variant* value) override;
    Status put_Value(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                     const Variant& Index5, const Variant& value) override;
    Status get_ValueByNumIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                               const Variant& Index4, const Variant& Index5, Variant* value) override;
    Status put_ValueByNumIndex(const Variant& Index1, const Variant& Index2, const Variant& Index3,
                               const Variant& Index4, const Variant& Index5, const Variant& value) override;
    Status get_NumberOfIndexsets(std::int32_t* value) override;
    Status get_SizeOfIndexset(std::int32_t Indexset, std::int32_t* value) override;
    Status get_IndexsetElement(std::int32_t Indexset, std::int32_t Element, std::string* value) override;
    Status put_IndexsetElement(std::int32_t Indexset, std::int32_t Element, const std::string& value) override;
    Status get_ValueByFullIndexName(const std::string& Indexname, Variant* value) override;
    Status get_Enum(const Variant& Index1, const Variant& Index2, const Variant& Index3, const Variant& Index4,
                    const Variant& Index5, Ref<IUnknown>* value) override;
    Status get_Count(std::int32_t* value) override;

    const IUnknown* published() const override { return static_cast<const ITARQArray*>(this); }
    std::span<const Variant> rowMajorCells() override { return store_.block(); }
    Dimensions sharedDimensions() const override { return store_.dimensions(); }

private:
    [[nodiscard]] Outcome requireInitialized() const;
    /// Dimensions and elements as clients number them, from 1.
    [[nodiscard]] Outcome requireDimension(std::int32_t dimension, std::string_view otherwise) const;
    [[nodiscard]] Outcome requireElement(std::int32_t dimension, std::int32_t element) const;
    [[nodiscard]] const Indexset& namesOf(std::int32_t dimension) const {
        return (*store_.dimensions())[static_cast<std::size_t>(dimension) - 1];
    }
    /// Fails also where reading the arguments called a client that gave the array other dimensions.
    Outcome select(const IndexArguments& arguments, Selection& selection) const;
    Outcome selectByNumber(const IndexArguments& arguments, Selection& selection) const;
    Outcome put(const Selection& selection, const Variant& value);
    Outcome addValues(std::span<const Variant> values);
    /// A client that was called for values may have given the array other dimensions.
    [[nodiscard]] static Outcome changedMeanwhile();

    ArrayStore store_;
};

}  // namespace tarq
