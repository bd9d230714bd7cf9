#include <vertra/foundation/tree.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

static int live = 0;        // allocations that are not freed
static int remaining = -1;  // allocations before the next that fails; none does when negative

void* operator new(std::size_t size) {
    if (remaining-- == 0) throw std::bad_alloc();
    ++live;
    return std::malloc(size);
}
void operator delete(void* memory) noexcept {
    live -= memory != nullptr;
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

namespace {

using namespace keel;

/// Whether the statement, with an allocation that fails, throws; it must then have kept none of the others.
bool Fails(int number, auto const& statement) {
    int const before = live;
    remaining = number;
    try {
        statement();
    } catch (std::bad_alloc const&) {
        EXPECT_EQ(live, before) << number;
        return true;
    }
    remaining = -1;
    return false;
}

template <class Node>
class FailingAllocation : public testing::Test {};
using Forms = testing::Types<TreeVector, TreeList, TreeDeque, SmartTreeVector, SmartTreeList>;
TYPED_TEST_SUITE(FailingAllocation, Forms);

TYPED_TEST(FailingAllocation, LeavesParentAndMemoryAsTheyWere) {
    constexpr bool smart = !std::is_pointer_v<typename TypeParam::value_type>;
    int const atFirst = live;
    auto* const root = new TypeParam(nullptr);
    for (std::size_t size = 0; size < 5; ++size) {
        int number = 0;
        TypeParam* made = nullptr;
        for (; Fails(number, [&] { made = new TypeParam(root); }); ++number) EXPECT_EQ(root->size(), size);
        EXPECT_TRUE(number >= 1 + smart && root->size() == size + 1) << number;
        if (!smart) delete made;
    }
    if constexpr (smart) {
        TypeParam parent(nullptr);
        auto* const child = new TypeParam(nullptr);
        EXPECT_TRUE(Fails(0, [&] { SmartPtr<TypeParam> const none(child); }));
        SmartPtr<TypeParam> const share(child);
        EXPECT_TRUE(Fails(0, [&] { parent.push_back(share); }));
        EXPECT_TRUE(parent.empty() && share.counter->count == 1);
    }
    delete root;
    EXPECT_EQ(live, atFirst);
}

}  // namespace
