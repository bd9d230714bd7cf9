#pragma once

#include <vertra/appearance/color3d.h>
#include <vertra/export.h>

namespace vertra {

/// The engine's texture interface, used through pointers only.
template <class T>
class ITexture2D;

/// One surface, as a record for the renderer: nothing here gives its fields a meaning, clamps its colours or
/// touches a texture. The textures are not owned; a copy shares them, and null is a valid value.
template <class T>
class VERTRA_API Material3D {
public:
    /// A renderer adds its own.
    enum MATERIAL_TYPE : int { MATERIAL_DEFAULT = 0 };

    /// @{ For the renderer; nothing here reads it.
    Color3D<T> diffuse;
    Color3D<T> ambient;
    Color3D<T> specular;
    Color3D<T> emissive;
    T power;
    ITexture2D<T>* texture1;
    ITexture2D<T>* texture2;
    MATERIAL_TYPE type;
    T typeParam;
    int flag1;
    int flag2;
    int flag3;
    int flag4;
    int flag5;
    int flag6;
    int flag7;
    int flag8;
    int flag9;
    /// @}

    /// Opaque white, emitting (0, 0, 0, 0), no textures, type and parameters 0, flags 0, 1, 1, 1, 1, 1, 1, 0,
    /// 0.
    constexpr Material3D();
    /// All fields.
    constexpr Material3D(Material3D const& other);
    /// All fields in order.
    constexpr Material3D(Color3D<T> const& diffuse_, Color3D<T> const& ambient_, Color3D<T> const& specular_,
                         Color3D<T> const& emissive_, T power_, ITexture2D<T>* texture1_,
                         ITexture2D<T>* texture2_, MATERIAL_TYPE type_, T typeParam_, int flag1_, int flag2_,
                         int flag3_, int flag4_, int flag5_, int flag6_, int flag7_, int flag8_, int flag9_);
    /// The same from packed colours.
    constexpr Material3D(unsigned int diffuse_, unsigned int ambient_, unsigned int specular_,
                         unsigned int emissive_, T power_, ITexture2D<T>* texture1_, ITexture2D<T>* texture2_,
                         MATERIAL_TYPE type_, T typeParam_, int flag1_, int flag2_, int flag3_, int flag4_,
                         int flag5_, int flag6_, int flag7_, int flag8_, int flag9_);

    /// All fields.
    constexpr Material3D& operator=(Material3D const& other);

    /// @{ 1 for the object itself, and where all fields are equal: colours by their packed words, textures by
    /// address, the rest exactly.
    constexpr int operator==(Material3D const& other) const;
    constexpr int operator!=(Material3D const& other) const { return !(*this == other); }
    /// @}
};

template <class T>
constexpr Material3D<T>::Material3D()
    : Material3D(Color3D<T>(T(1), T(1), T(1), T(1)), Color3D<T>(T(1), T(1), T(1), T(1)),
                 Color3D<T>(T(1), T(1), T(1), T(1)), Color3D<T>(T(0), T(0), T(0), T(0)), T(0), nullptr,
                 nullptr, MATERIAL_DEFAULT, T(0), 0, 1, 1, 1, 1, 1, 1, 0, 0) {}

template <class T>
constexpr Material3D<T>::Material3D(Material3D const&) = default;

template <class T>
constexpr Material3D<T>::Material3D(Color3D<T> const& diffuse_, Color3D<T> const& ambient_,
                                    Color3D<T> const& specular_, Color3D<T> const& emissive_, T power_,
                                    ITexture2D<T>* texture1_, ITexture2D<T>* texture2_, MATERIAL_TYPE type_,
                                    T typeParam_, int flag1_, int flag2_, int flag3_, int flag4_, int flag5_,
                                    int flag6_, int flag7_, int flag8_, int flag9_)
    : diffuse(diffuse_),
      ambient(ambient_),
      specular(specular_),
      emissive(emissive_),
      power(power_),
      texture1(texture1_),
      texture2(texture2_),
      type(type_),
      typeParam(typeParam_),
      flag1(flag1_),
      flag2(flag2_),
      flag3(flag3_),
      flag4(flag4_),
      flag5(flag5_),
      flag6(flag6_),
      flag7(flag7_),
      flag8(flag8_),
      flag9(flag9_) {}

template <class T>
constexpr Material3D<T>::Material3D(unsigned int diffuse_, unsigned int ambient_, unsigned int specular_,
                                    unsigned int emissive_, T power_, ITexture2D<T>* texture1_,
                                    ITexture2D<T>* texture2_, MATERIAL_TYPE type_, T typeParam_, int flag1_,
                                    int flag2_, int flag3_, int flag4_, int flag5_, int flag6_, int flag7_,
                                    int flag8_, int flag9_)
    : Material3D(Color3D<T>(diffuse_), Color3D<T>(ambient_), Color3D<T>(specular_), Color3D<T>(emissive_),
                 power_, texture1_, texture2_, type_, typeParam_, flag1_, flag2_, flag3_, flag4_, flag5_,
                 flag6_, flag7_, flag8_, flag9_) {}

template <class T>
constexpr Material3D<T>& Material3D<T>::operator=(Material3D const&) = default;

template <class T>
constexpr int Material3D<T>::operator==(Material3D const& other) const {
    if (this == &other) return 1;
    return diffuse == other.diffuse && ambient == other.ambient && specular == other.specular &&
           emissive == other.emissive && power == other.power && texture1 == other.texture1 &&
           texture2 == other.texture2 && type == other.type && typeParam == other.typeParam &&
           flag1 == other.flag1 && flag2 == other.flag2 && flag3 == other.flag3 && flag4 == other.flag4 &&
           flag5 == other.flag5 && flag6 == other.flag6 && flag7 == other.flag7 && flag8 == other.flag8 &&
           flag9 == other.flag9;
}

#define VERTRA_MATERIAL3D(INSTANTIATE, T) INSTANTIATE class Material3D<T>;

VERTRA_MATERIAL3D(extern template, float)
VERTRA_MATERIAL3D(extern template, double)

}  // namespace vertra
