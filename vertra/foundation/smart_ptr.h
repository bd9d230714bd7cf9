#pragma once

#include <vertra/export.h>

#include <cstdint>
#include <type_traits>
#include <utility>

namespace keel {

/// A share in an object made by `new`, which the last share deletes through its virtual destructor. The count
/// is a plain integer: the shares of one object stay on one thread, or the caller guards them.
template <class T>
class VERTRA_API SmartPtr {
public:
    /// One for each shared object.
    struct Counter {
        std::int32_t count;  ///< the number of shares
    };

    T* pointer = nullptr;        ///< the same in all that share a counter
    Counter* counter = nullptr;  ///< null in an empty pointer

    /// Empty.
    SmartPtr();
    /// The first share in an object that has none yet; a null pointer gives an empty one. Where the counter
    /// cannot be allocated the object stays the caller's.
    explicit SmartPtr(T* object) : pointer(object), counter(object ? new Counter{1} : nullptr) {}
    /// One more share, or an empty pointer from an empty one.
    SmartPtr(SmartPtr const& other) : pointer(other.pointer) { Acquire(other.counter); }
    /// Takes over the share of other, which is left empty.
    SmartPtr(SmartPtr&& other) noexcept
        : pointer(std::exchange(other.pointer, nullptr)), counter(std::exchange(other.counter, nullptr)) {}
    /// Lets go of the share, as Release does.
    ~SmartPtr() { Release(); }

    /// Copies or moves, and lets go of the old share last: the old object may own the new one.
    SmartPtr& operator=(SmartPtr other) noexcept;

    /// Leaves the pointer empty. 1 when that was the last share, and the object is deleted; 0 else.
    int Release();

    /// @{ The object; null, false and not to be followed in an empty pointer.
    T* Get() const { return pointer; }
    T* operator->() const { return pointer; }
    T& operator*() const { return *pointer; }
    explicit operator bool() const { return pointer != nullptr; }
    /// @}
    /// @{ By the address of the object.
    bool operator==(SmartPtr const& other) const { return pointer == other.pointer; }
    bool operator==(T const* object) const { return pointer == object; }
    /// @}

private:
    void Acquire(Counter* shared);
};

template <class T>
SmartPtr<T>::SmartPtr() = default;

template <class T>
SmartPtr<T>& SmartPtr<T>::operator=(SmartPtr other) noexcept {
    std::swap(pointer, other.pointer);
    std::swap(counter, other.counter);
    return *this;
}

template <class T>
int SmartPtr<T>::Release() {
    static_assert(std::has_virtual_destructor_v<T>);
    T* const object = std::exchange(pointer, nullptr);  // first: the object may own this very pointer
    Counter* const shared = std::exchange(counter, nullptr);
    if (shared == nullptr || --shared->count != 0) return 0;
    delete object;
    delete shared;
    return 1;
}

template <class T>
void SmartPtr<T>::Acquire(Counter* shared) {
    counter = shared;
    if (counter != nullptr) ++counter->count;
}

}  // namespace keel
