#pragma once

#include <vertra/export.h>
#include <vertra/foundation/base.h>
#include <vertra/foundation/smart_ptr.h>

#include <cstddef>
#include <deque>
#include <list>
#include <memory>
#include <type_traits>
#include <vector>

namespace keel {

/// What a node class is derived from: its place among parent and children, and no payload. Container holds
/// pointers to the node class, raw ones, which own nothing, or `SmartPtr`, which share the children. A parent
/// is never owned. Nodes are not locked.
///
/// Destruction does not take a node out of its parent's children, and leaves the parent of children that live
/// on as it was, stale.
template <class Container>
class VERTRA_API Tree : public Base {
public:
    /// @{ Those of the container, and the node class it points to.
    using value_type = typename Container::value_type;
    using iterator = typename Container::iterator;
    using const_iterator = typename Container::const_iterator;
    using Node = typename std::pointer_traits<value_type>::element_type;
    /// @}

    Container children;  ///< in the order of appending
    iterator cursor;     ///< at the disposal of derived classes; nothing here reads or moves it
    Tree* parent;        ///< as given at construction; null for a root

    /// Appends the node, which must be a Node, to the parent's children; null makes a root. A smart node with
    /// a parent must have been made by `new`, and the parent then holds the one share in it. If the node
    /// cannot be appended, `std::bad_alloc` leaves and the parent is as before.
    explicit Tree(Tree* parent_);
    Tree(Tree const&) = delete;
    Tree& operator=(Tree const&) = delete;
    /// Releases smart children, and so their subtrees: a vector's from the last to the first, a list's from
    /// the first to the last. Raw children live on.
    ~Tree() override;

    /// Appends child and does nothing else: its parent stays as it is, and a child that is here already, as
    /// one that was built with this parent, is here twice.
    void push_back(value_type const& child) { children.push_back(child); }

    /// @{ Those of the children.
    iterator begin() { return children.begin(); }
    iterator end() { return children.end(); }
    const_iterator begin() const { return children.begin(); }
    const_iterator end() const { return children.end(); }
    std::size_t size() const { return children.size(); }
    bool empty() const { return children.empty(); }
    /// @}
    /// The parent; null for a root.
    Node* GetParent() const { return AsNode(parent); }

private:
    // The sanitizer's check is told by the virtual table, which while the node is being built is not yet that
    // of Node, and which is gone where a parent is stale.
    __attribute__((no_sanitize("vptr"))) static Node* AsNode(Tree* tree) { return static_cast<Node*>(tree); }
};

class VERTRA_API TreeVector;
class VERTRA_API TreeList;
class VERTRA_API TreeDeque;
class VERTRA_API SmartTreeVector;
class VERTRA_API SmartTreeList;

/// A node with raw pointers in a vector.
class VERTRA_API TreeVector : public Tree<std::vector<TreeVector*>> {
public:
    /// As `Tree`'s.
    explicit TreeVector(TreeVector* parent_);
    ~TreeVector() override;
};

/// A node with raw pointers in a list.
class VERTRA_API TreeList : public Tree<std::list<TreeList*>> {
public:
    /// As `Tree`'s.
    explicit TreeList(TreeList* parent_);
    ~TreeList() override;
};

/// A node with raw pointers in a deque.
class VERTRA_API TreeDeque : public Tree<std::deque<TreeDeque*>> {
public:
    /// As `Tree`'s.
    explicit TreeDeque(TreeDeque* parent_);
    ~TreeDeque() override;
};

/// The release of a subtree recurses, a child within its parent, and the stack bounds how deep a tree may be.
/// On one of 8 MiB, 5,000 levels are safe in every build; measured were 17,000 or more without optimisation,
/// 100,000 or more with it, and 6,600 or more under the address sanitizer. Take a deeper tree apart from its
/// leaves.
///
/// A class derived from a smart node must not throw out of its constructor when there is a parent, which by
/// then has its share and would delete the node again.
class VERTRA_API SmartTreeVector : public Tree<std::vector<SmartPtr<SmartTreeVector>>> {
public:
    /// As `Tree`'s.
    explicit SmartTreeVector(SmartTreeVector* parent_);
    ~SmartTreeVector() override;
};

/// Depth and derived classes are bounded as with `SmartTreeVector`.
class VERTRA_API SmartTreeList : public Tree<std::list<SmartPtr<SmartTreeList>>> {
public:
    /// As `Tree`'s.
    explicit SmartTreeList(SmartTreeList* parent_);
    ~SmartTreeList() override;
};

template <class Container>
Tree<Container>::Tree(Tree* parent_) : children(), cursor(), parent(parent_) {
    if (parent == nullptr) return;
    value_type self(AsNode(this));
    try {
        parent->push_back(self);
    } catch (...) {
        // The node is half built and nobody's to delete: self lets go of the counter alone.
        if constexpr (!std::is_pointer_v<value_type>) self.pointer = nullptr;
        throw;
    }
}

template <class Container>
Tree<Container>::~Tree() {
    // The order in which a standard container destroys its elements is its own affair.
    if constexpr (requires { children.pop_front(); })
        while (!empty()) children.pop_front();
    else
        while (!empty()) children.pop_back();
}

extern template class SmartPtr<SmartTreeVector>;
extern template class SmartPtr<SmartTreeList>;
extern template class Tree<std::vector<TreeVector*>>;
extern template class Tree<std::list<TreeList*>>;
extern template class Tree<std::deque<TreeDeque*>>;
extern template class Tree<std::vector<SmartPtr<SmartTreeVector>>>;
extern template class Tree<std::list<SmartPtr<SmartTreeList>>>;

}  // namespace keel
