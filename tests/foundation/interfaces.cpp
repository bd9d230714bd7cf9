#include <keel/software_buffer.h>
#include <vertra/foundation/blowfish.h>
#include <vertra/foundation/registry_section.h>
#include <vertra/foundation/service.h>
#include <vertra/foundation/tree.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <stdexcept>
#include <utility>

namespace {

using namespace keel;

template <class... Ts>
concept Derived = ((std::has_virtual_destructor_v<Ts> && std::is_base_of_v<Base, Ts>)&&...);
static_assert(Derived<Base, IBuffer, IService, IEncrypterDecrypter, CRegistrySection, TreeVector>);
static_assert(std::is_base_of_v<IBuffer, ISoftwareBuffer> && std::is_destructible_v<ISoftwareBuffer>);
struct Service : IService {};
static_assert(std::is_default_constructible_v<Service> && !std::is_default_constructible_v<IService>);
static_assert(std::is_destructible_v<Service> && !std::is_destructible_v<IService>);

// A pointer to a member holds the offset of a virtual operation in the table, plus 1 on some machines
// (Itanium C++ ABI). The destructor has the first two slots.
bool FollowTheDestructor(auto... operations) {
    std::size_t offset = 0, slot = 2;
    return ((std::memcpy(&offset, &operations, sizeof(offset)), offset / sizeof(void*) == slot++) && ...);
}

TEST(Interfaces, OperationsKeepTheirSlots) {
    using E = IEncrypterDecrypter;
    std::unique_ptr<Base> const service = std::make_unique<Service>();
    EXPECT_TRUE(dynamic_cast<IService*>(service.get()));
    EXPECT_TRUE(FollowTheDestructor(&E::GetMinimumBlockSize, &E::SetKey, &E::SetInitialChain, &E::Encrypt,
                                    &E::Decrypt));
    using S = ISoftwareBuffer;
    unsigned char* (S::*const data)() = &S::GetData;
    unsigned char const* (S::*const constData)() const = &S::GetData;
    EXPECT_TRUE(FollowTheDestructor(&S::GetSize, &S::Resize, &S::Read, &S::Write, data, constData,
                                    &S::GetCapacity, &S::Reserve, &S::Append));
}

TEST(RegistrySection, KeepsWhatItWasGiven) {
    std::string const name(100, 'n');
    long place = 0;
    auto section = std::make_unique<CRegistrySection>(name, reinterpret_cast<CRegistry*>(&place));
    EXPECT_TRUE(section->entries.empty() && section->name == name);
    EXPECT_EQ(static_cast<void*>(section->registry), &place);
    section->entries["key"] = name;  // destruction through the base frees all, as the leak check sees
    std::unique_ptr<Base> const base = std::move(section);
}

TEST(SoftwareBuffer, GrowsAndRefusesWhatLiesBeyondItsEnd) {
    std::unique_ptr<ISoftwareBuffer> const buffer = std::make_unique<CSoftwareBuffer>();
    buffer->Append("abcd", 4);
    buffer->Write(1, "XY", 2);
    char out[] = "..";
    buffer->Read(2, out, 2);
    buffer->Resize(6);
    for (auto const size : {std::size_t(2), std::size_t(-4)}) {
        EXPECT_THROW(buffer->Read(5, out, size), std::out_of_range) << size;
        EXPECT_THROW(buffer->Write(7, "zz", size), std::out_of_range) << size;
    }
    EXPECT_TRUE(std::memcmp(buffer->GetData(), "aXYd\0\0", buffer->GetSize()) == 0 &&
                std::string(out) == "Yd");
    buffer->Reserve(100);
    auto const* const data = std::as_const(*buffer).GetData();
    while (buffer->GetSize() < 100) buffer->Append("e", 1);
    EXPECT_TRUE(buffer->GetData() == data && data[99] == 'e' && buffer->GetCapacity() >= 100);
}

}  // namespace
