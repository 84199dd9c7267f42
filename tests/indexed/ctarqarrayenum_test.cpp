// Walking the cells of arrays.
#include "tests/indexed/arrayfixture.h"

namespace tarq {
namespace {

class ArrayEnumTest : public testing::Test {
protected:
    ArrayEnumTest() { EXPECT_THAT(array->SetValues(listOf(1, 2, 3, 4, 5, 6)), succeeds()); }

    template <class... Indices>
    Ref<ITARQArrayEnum> selected(const Indices&... given) {
        const std::array<Variant, 5> i = indices(given...);
        Ref<IUnknown> made;
        EXPECT_THAT(array->get_Enum(i[0], i[1], i[2], i[3], i[4], &made), succeeds());
        return made.query<ITARQArrayEnum>();
    }
    static std::string stateOf(const Ref<ITARQArrayEnum>& enumerator) {
        std::string name = "-";
        std::int32_t isLast = 9;
        std::int32_t isBeyond = 9;
        if (enumerator->get_CurrentIndexName(&name).failed()) name = "-";
        EXPECT_THAT(enumerator->get_IsLast(&isLast), succeeds());
        EXPECT_THAT(enumerator->get_IsBeyondLast(&isBeyond), succeeds());
        return name.append(isLast == -1 ? " last" : "").append(isBeyond == -1 ? " beyond" : "");
    }

    Ref<ITARQArray> array = newArray(listOf(2, 3));
};

TEST_F(ArrayEnumTest, NamedStepsGoToTheEndAndStayThere) {
    const Ref<ITARQArrayEnum> enumerator = selected(1, Variant(namesOf({"3", "1"})));
    Variant value;
    EXPECT_EQ(stateOf(enumerator), ".1.3");
    EXPECT_THAT(enumerator->get_CurrentItem(&value), succeeds());
    EXPECT_EQ(shown(value), "3");
    EXPECT_THAT(enumerator->MoveNext(), succeeds());
    EXPECT_EQ(stateOf(enumerator), ".1.1 last");
    EXPECT_THAT(enumerator->MoveNext(), succeeds());
    for (int again = 0; again < 2; ++again) {
        EXPECT_EQ(stateOf(enumerator), "- beyond");
        EXPECT_THAT(enumerator->get_CurrentItem(&value), raisesAs(classid::TARQArrayEnum, status::componentFailure,
                                                                  "No acces beyond last element of enumerator."));
        EXPECT_EQ(enumerator->MoveNext(), IEnumVARIANT::fewerLeft);
    }
    EXPECT_THAT(enumerator->MoveFirst(), succeeds());
    EXPECT_EQ(stateOf(enumerator), ".1.3");
}

TEST_F(ArrayEnumTest, ItemsComeInBlocksAndCanBePassedOver) {
    const Ref<IEnumVARIANT> enumerator = enumeratorOf(array);
    std::array<Variant, 4> values;
    std::uint32_t fetched = 9;
    ASSERT_THAT(enumerator->Next(4, values.data(), &fetched), succeeds());
    EXPECT_EQ(shown({values.begin(), values.end()}), "1 2 3 4");
    EXPECT_EQ(enumerator->Skip(2), IEnumVARIANT::fewerLeft);  // to the very end
    EXPECT_EQ(enumerator->Next(4, values.data(), &fetched), IEnumVARIANT::fewerLeft);
    EXPECT_EQ(fetched, 2);
    EXPECT_THAT(enumerator->Reset(), succeeds());
    EXPECT_THAT(enumerator->Skip(5), succeeds());
    EXPECT_EQ(shown(enumerator), "6");
    EXPECT_EQ(enumerator->Skip(1), IEnumVARIANT::fewerLeft);
    EXPECT_EQ(enumerator->Skip(0xFFFFFFFF), IEnumVARIANT::fewerLeft);
    IEnumVARIANT* copy = nullptr;
    EXPECT_EQ(enumerator->Clone(&copy), status::notImplemented);
    EXPECT_EQ(enumerator->Next(1, nullptr, nullptr), status::nullPointer);
}

TEST_F(ArrayEnumTest, TheSelectionIsFixedWhenItIsMade) {
    const Ref<ITARQArrayEnum> enumerator = selected(2);
    const Ref<IEnumVARIANT> values = enumerator.query<IEnumVARIANT>();
    ASSERT_THAT(array->put_IndexsetElement(2, 2, "n"), succeeds());
    Variant value;
    EXPECT_THAT(values->Next(1, &value, nullptr), succeeds());
    EXPECT_THAT(values->Next(1, &value, nullptr),
                raisesAs(classid::TARQArray, status::invalidArgument, "Index name not found."));
    EXPECT_THAT(array->Clear(), succeeds());
    EXPECT_EQ(values->Next(1, &value, nullptr), status::notInitialized);
    // Asked for its for-each form it starts anew.
    EXPECT_EQ(enumeratorOf(enumerator).get(), values.get());
    EXPECT_EQ(stateOf(enumerator), ".2.1");
}

TEST_F(ArrayEnumTest, WithoutInitEachMemberSaysSo) {
    const Ref<ITARQArrayEnum> enumerator = make<CTARQArrayEnum, ITARQArrayEnum>();
    const Ref<IEnumVARIANT> values = enumerator.query<IEnumVARIANT>();
    const auto ofClass = raisesAs(classid::TARQArrayEnum, status::wrongState, "TARQArrayEnum is not initialized.");
    const auto ofBase =
        raisesAs(classid::TARQArrayEnum, status::notInitialized, "Enumerator has not been initialized.");
    Variant value;
    Ref<IUnknown> made;
    EXPECT_EQ(stateOf(enumerator), "- beyond");
    EXPECT_THAT(values->Next(1, &value, nullptr), ofClass);
    EXPECT_THAT(enumerator->get__NewEnum(&made), ofClass);
    EXPECT_THAT(values->Skip(1), ofBase);
    EXPECT_THAT(values->Reset(), ofBase);
    const Variant missing = Variant::missing();
    const Ref<IUnknown> set = newSet().query<IUnknown>();
    EXPECT_THAT(enumerator->Init(set.get(), missing, missing, missing, missing, missing),
                raisesAs(classid::TARQArrayEnum, status::invalidArgument, "First paramter is no TARQArray."));
    const Ref<IUnknown> parent = array.query<IUnknown>();
    EXPECT_THAT(enumerator->Init(parent.get(), Variant("x"), missing, missing, missing, missing),
                raisesAs(classid::TARQArrayEnum, status::invalidArgument,
                         "Index element 'x' is no index element of the base object."));
    EXPECT_THAT(enumerator->Init(parent.get(), Variant(1), Variant(2), missing, missing, missing), succeeds());
    EXPECT_EQ(shown(values), "2");
}

/// A client's object that shows one array and leaves what it doesn't know to another one.
class Shell final : public IUnknown {
public:
    Shell() {
        for (Ref<IUnknown>* const part : {&shown_, &hidden}) {
            void* made = nullptr;
            EXPECT_THAT(createInstance<CTARQArray>(this, IUnknown::id, &made), succeeds());
            *part = Ref<IUnknown>::adopt(static_cast<IUnknown*>(made));
        }
    }
    Status QueryInterface(const Guid& interfaceId, void** out) override {
        if (interfaceId == ITARQArray::id) return shown_->QueryInterface(interfaceId, out);
        if (interfaceId == ITARQSet::id && set) return set->QueryInterface(interfaceId, out);
        if (interfaceId != IUnknown::id) return hidden->QueryInterface(interfaceId, out);
        *out = this;
        return status::ok;
    }
    // The test outlives every reference.
    std::uint32_t AddRef() override { return 1; }
    std::uint32_t Release() override { return 1; }

    Ref<IUnknown> hidden;
    Ref<ITARQSet> set;

private:
    Ref<IUnknown> shown_;
};

TEST_F(ArrayEnumTest, AnArrayOfAClientIsReadThroughItsPublishedMembers) {
    Shell shell;
    const Ref<ITARQArray> parent = Ref<IUnknown>(&shell).query<ITARQArray>();
    ASSERT_THAT(parent->Init(listOf(2, 2)), succeeds());
    ASSERT_THAT(parent->SetValues(listOf(1, 2, 3, 4)), succeeds());
    ASSERT_THAT(shell.hidden.query<ITARQArray>()->Init(listOf(9)), succeeds());
    const Variant missing = Variant::missing();
    const Ref<ITARQArrayEnum> enumerator = make<CTARQArrayEnum, ITARQArrayEnum>();
    ASSERT_THAT(enumerator->Init(&shell, missing, Variant(2), missing, missing, missing), succeeds());
    EXPECT_EQ(stateOf(enumerator), ".1.2");
    EXPECT_EQ(shown(enumerator.query<IEnumVARIANT>()), "2 4");
    const Variant both(Ref<IUnknown>{&shell});
    EXPECT_THAT(putAt(array, both, Variant(namesOf({"1", "2"})), Variant(namesOf({"1", "2"}))), succeeds());
    EXPECT_EQ(cells(array), "2x3: 1 2 3 3 4 6");
    shell.set = newSet(listOf(7));
    EXPECT_EQ(shown(newSet(ValueList({both}))), "7");
}

TEST_F(ArrayEnumTest, AClientMayStartItOverWhileItNamesElements) {
    const Ref<ITARQArrayEnum> enumerator = selected(1);
    const Ref<ITARQArray> other = newArray(listOf(1));
    const Ref<IUnknown> walked[] = {array.query<IUnknown>(), other.query<IUnknown>()};
    const Variant missing = Variant::missing();
    const Ref<ITARQSeriesEnum> elements = ClientValues::create([&, called = false](Variant& value) mutable {
        EXPECT_THAT(enumerator->Init(walked[1].get(), missing, missing, missing, missing, missing), succeeds());
        value = Variant(2);
        return !std::exchange(called, true);
    });
    ASSERT_THAT(enumerator->Init(walked[0].get(), valueOf(elements), missing, missing, missing, missing), succeeds());
    EXPECT_EQ(shown(enumerator.query<IEnumVARIANT>()), "4 5 6");
}

}  // namespace
}  // namespace tarq
