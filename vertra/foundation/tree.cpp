#include <vertra/foundation/tree.h>

namespace keel {

VERTRA_TREE(template)

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
