#include <vertra/foundation/tree.h>

namespace keel {

template class SmartPtr<SmartTreeVector>;
template class SmartPtr<SmartTreeList>;
template class Tree<std::vector<TreeVector*>>;
template class Tree<std::list<TreeList*>>;
template class Tree<std::deque<TreeDeque*>>;
template class Tree<std::vector<SmartPtr<SmartTreeVector>>>;
template class Tree<std::list<SmartPtr<SmartTreeList>>>;

TreeVector::TreeVector(TreeVector* parent_) : Tree(parent_) {}
TreeVector::~TreeVector() = default;

TreeList::TreeList(TreeList* parent_) : Tree(parent_) {}
TreeList::~TreeList() = default;

TreeDeque::TreeDeque(TreeDeque* parent_) : Tree(parent_) {}
TreeDeque::~TreeDeque() = default;

SmartTreeVector::SmartTreeVector(SmartTreeVector* parent_) : Tree(parent_) {}
SmartTreeVector::~SmartTreeVector() = default;

SmartTreeList::SmartTreeList(SmartTreeList* parent_) : Tree(parent_) {}
SmartTreeList::~SmartTreeList() = default;

}  // namespace keel
