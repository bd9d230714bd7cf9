#include <vertra/foundation/tree.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

using namespace keel;
using Order = std::vector<int>;

/// Notes its number when it is destroyed, before its children are.
template <class Node>
struct Noted : Node {
    Noted(Node* above, Order& order, int number) : Node(above), order_(order), number_(number) {}
    ~Noted() override { order_.push_back(number_); }
    Order& order_;
    int number_;
    SmartPtr<Node> share;
};

template <class Node>
class RawTree : public testing::Test {};
using RawForms = testing::Types<TreeVector, TreeList, TreeDeque>;
TYPED_TEST_SUITE(RawTree, RawForms);
template <class Node>
class SmartTree : public testing::Test {};
using SmartForms = testing::Types<SmartTreeVector, SmartTreeList>;
TYPED_TEST_SUITE(SmartTree, SmartForms);

TYPED_TEST(RawTree, LinksBothWaysAndOwnsNothing) {
    using Nodes = std::vector<TypeParam*>;
    auto* const root = new TypeParam(nullptr);
    EXPECT_TRUE(root->empty() && !root->GetParent() && root->cursor == typename TypeParam::iterator());
    TypeParam a(root), b(root), stranger(nullptr);
    for (auto* child : {&a, &stranger, &stranger}) root->push_back(child);
    EXPECT_EQ(Nodes(root->begin(), root->end()), (Nodes{&a, &b, &a, &stranger, &stranger}));
    auto const& constant = *root;
    EXPECT_TRUE(std::equal(root->begin(), root->end(), constant.begin(), constant.end()));
    { TypeParam const shortLived(root); }
    EXPECT_EQ(root->size(), 6U) << "a node that is gone keeps its entry";
    delete root;
    EXPECT_TRUE(a.GetParent() == root && a.empty() && stranger.parent == nullptr);
}

TYPED_TEST(SmartTree, ReleasesDepthFirstInTheOrderOfItsFormWhatNobodyElseHolds) {
    Order order;
    auto* const root = new TypeParam(nullptr);
    for (int i = 1; i <= 3; ++i) {
        auto* const child = new Noted<TypeParam>(root, order, i);
        auto const& last = root->children.back();
        EXPECT_TRUE(last == child && last.counter->count == 1 && child->GetParent() == root) << i;
        for (int j = 1; j <= 2; ++j) new Noted<TypeParam>(child, order, 10 * i + j);
    }
    SmartPtr<TypeParam> held = *++root->begin();
    TypeParam other(nullptr);
    for (auto* node : {root, &other}) node->push_back(held);
    EXPECT_TRUE(held.counter->count == 4 && root->size() == 4U && held->parent == root);
    delete root;
    bool const vector = std::is_same_v<TypeParam, SmartTreeVector>;
    EXPECT_EQ(order, (vector ? Order{3, 32, 31, 1, 12, 11} : Order{1, 11, 12, 3, 31, 32}));
    EXPECT_TRUE(held.counter->count == 2 && held->GetParent() == root && held->size() == 2U);
    other.children.clear();
    order.clear();
    EXPECT_TRUE(held.Release() == 1 && order == (vector ? Order{2, 22, 21} : Order{2, 21, 22}));
}

TYPED_TEST(SmartTree, DeepChainsAreReleased) {
    auto* const root = new TypeParam(nullptr);
    TypeParam* node = root;
    Order order;
    for (int i = 0; i < 5000; ++i) node = new Noted<TypeParam>(node, order, i);  // documented as safe
    delete root;
    EXPECT_TRUE(order.size() == 5000U && order.back() == 4999);
}

TYPED_TEST(SmartTree, PointersCountTheirShares) {
    Order order;
    using Pointer = SmartPtr<TypeParam>;
    Pointer a(new Noted<TypeParam>(nullptr, order, 1)), b = a;
    EXPECT_TRUE(a == b && a.counter == b.counter && a.counter->count == 2 && a.Release() == 0);
    EXPECT_TRUE(!a && a == nullptr && a.counter == nullptr && b.counter->count == 1 && order.empty());
    EXPECT_TRUE(b.Release() == 1 && b.Release() == 0 && b == a && order == Order{1});
    Pointer const none = b, null(static_cast<TypeParam*>(nullptr));
    EXPECT_TRUE(none == nullptr && none.counter == nullptr && null.counter == nullptr);
    auto* const owner = new Noted<TypeParam>(nullptr, order, 2);
    owner->share = Pointer(owner);
    EXPECT_EQ(owner->share.Release(), 1) << "by a share that the object itself holds";

    a = Pointer(new Noted<TypeParam>(nullptr, order, 3));
    new Noted<TypeParam>(a.Get(), order, 4);
    auto& self = a;
    a = self;
    a = std::move(self);
    EXPECT_TRUE(a && &*a == a.Get() && a->size() == 1U && a.counter->count == 1 && a != b);
    a = a->children.front();  // the object that is let go owns the new share
    EXPECT_TRUE((order == Order{1, 2, 3}) && a.counter->count == 1);
    b = a;
    Pointer const c = std::move(b);
    EXPECT_TRUE(!b && b.counter == nullptr);  // NOLINT(bugprone-use-after-move): a move empties
    EXPECT_TRUE(c == a && a.counter->count == 2);
}

}  // namespace
