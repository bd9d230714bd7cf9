#pragma once

#include <vertra/appearance/color3d.h>
#include <vertra/export.h>
#include <vertra/numeric/vec4d.h>

#include <type_traits>

namespace vertra {

/// One light source, as a record for the renderer: nothing here reads it to shade anything, normalises its
/// direction or clamps its colours. The w of direction and position follows the rules of `Vec4D`.
template <class T>
class VERTRA_API Light3D {
public:
    /// What kind of light the renderer is to make of it.
    enum LIGHT_TYPE : int { LIGHT_POINT = 1, LIGHT_SPOT = 2, LIGHT_DIRECTIONAL = 3 };

    /// @{ For the renderer; nothing here reads it.
    LIGHT_TYPE type;
    Color3D<T> diffuse;
    Color3D<T> specular;
    Color3D<T> ambient;
    Vec4D<T> direction;
    Vec4D<T> position;
    T range;
    T falloff;
    T attenuation0;
    T attenuation1;
    T attenuation2;
    /// @}
    T theta;  ///< 0.4 by default, the float value in both scalars
    T phi;    ///< 0.9 by default, the float value in both scalars

    /// A white directional light along (1, 1, 1), of range 1000, falloff 1 and attenuation 1, 0, 0. The alpha
    /// of specular is 1, that of the other two colours 0.
    constexpr Light3D();
    /// All fields; the w of direction and position becomes 0.
    constexpr Light3D(Light3D const& other);
    /// The position comes before the direction, unlike in the record and the factories.
    constexpr Light3D(LIGHT_TYPE type_, Color3D<T> diffuse_, Color3D<T> specular_, Color3D<T> ambient_,
                      Vec4D<T> position_, Vec4D<T> direction_, T range_, T falloff_, T attenuation0_,
                      T attenuation1_, T attenuation2_, T theta_, T phi_);

    /// All fields but the w of direction and position, which stay.
    constexpr Light3D const& operator=(Light3D const& other);
};

/// A directional light; what is not given has the default.
template <class T>
constexpr Light3D<T> CreateDirectionalLight(Color3D<T> diffuse, Color3D<T> specular, Color3D<T> ambient,
                                            Vec4D<T> direction);
/// A point light, its direction stored as well; theta and phi have the default.
template <class T>
constexpr Light3D<T> CreatePointLight(Color3D<T> diffuse, Color3D<T> specular, Color3D<T> ambient,
                                      Vec4D<T> direction, Vec4D<T> position, std::type_identity_t<T> range,
                                      std::type_identity_t<T> falloff, std::type_identity_t<T> attenuation0,
                                      std::type_identity_t<T> attenuation1,
                                      std::type_identity_t<T> attenuation2);
/// A spot light: all is given.
template <class T>
constexpr Light3D<T> CreateSpotLight(Color3D<T> diffuse, Color3D<T> specular, Color3D<T> ambient,
                                     Vec4D<T> direction, Vec4D<T> position, std::type_identity_t<T> range,
                                     std::type_identity_t<T> falloff, std::type_identity_t<T> attenuation0,
                                     std::type_identity_t<T> attenuation1,
                                     std::type_identity_t<T> attenuation2, std::type_identity_t<T> theta,
                                     std::type_identity_t<T> phi);

template <class T>
constexpr Light3D<T>::Light3D()
    : Light3D(LIGHT_DIRECTIONAL, Color3D<T>(T(1), T(1), T(1), T(0)), Color3D<T>(T(1), T(1), T(1), T(1)),
              Color3D<T>(T(1), T(1), T(1), T(0)), Vec4D<T>(), Vec4D<T>(T(1)), T(1000), T(1), T(1), T(0), T(0),
              T(0.4F), T(0.9F)) {}

template <class T>
constexpr Light3D<T>::Light3D(Light3D const&) = default;

template <class T>
constexpr Light3D<T>::Light3D(LIGHT_TYPE type_, Color3D<T> diffuse_, Color3D<T> specular_,
                              Color3D<T> ambient_, Vec4D<T> position_, Vec4D<T> direction_, T range_,
                              T falloff_, T attenuation0_, T attenuation1_, T attenuation2_, T theta_, T phi_)
    : type(type_),
      diffuse(diffuse_),
      specular(specular_),
      ambient(ambient_),
      direction(direction_),
      position(position_),
      range(range_),
      falloff(falloff_),
      attenuation0(attenuation0_),
      attenuation1(attenuation1_),
      attenuation2(attenuation2_),
      theta(theta_),
      phi(phi_) {}

template <class T>
constexpr Light3D<T> const& Light3D<T>::operator=(Light3D const& other) {
    type = other.type;
    diffuse = other.diffuse;
    specular = other.specular;
    ambient = other.ambient;
    direction = other.direction;
    position = other.position;
    range = other.range;
    falloff = other.falloff;
    attenuation0 = other.attenuation0;
    attenuation1 = other.attenuation1;
    attenuation2 = other.attenuation2;
    theta = other.theta;
    phi = other.phi;
    return *this;
}

template <class T>
constexpr Light3D<T> CreateDirectionalLight(Color3D<T> diffuse, Color3D<T> specular, Color3D<T> ambient,
                                            Vec4D<T> direction) {
    Light3D<T> light;
    light.diffuse = diffuse;
    light.specular = specular;
    light.ambient = ambient;
    light.direction = direction;
    return light;
}

template <class T>
constexpr Light3D<T> CreatePointLight(Color3D<T> diffuse, Color3D<T> specular, Color3D<T> ambient,
                                      Vec4D<T> direction, Vec4D<T> position, std::type_identity_t<T> range,
                                      std::type_identity_t<T> falloff, std::type_identity_t<T> attenuation0,
                                      std::type_identity_t<T> attenuation1,
                                      std::type_identity_t<T> attenuation2) {
    Light3D<T> light = CreateDirectionalLight(diffuse, specular, ambient, direction);
    light.type = Light3D<T>::LIGHT_POINT;
    light.position = position;
    light.range = range;
    light.falloff = falloff;
    light.attenuation0 = attenuation0;
    light.attenuation1 = attenuation1;
    light.attenuation2 = attenuation2;
    return light;
}

template <class T>
constexpr Light3D<T> CreateSpotLight(Color3D<T> diffuse, Color3D<T> specular, Color3D<T> ambient,
                                     Vec4D<T> direction, Vec4D<T> position, std::type_identity_t<T> range,
                                     std::type_identity_t<T> falloff, std::type_identity_t<T> attenuation0,
                                     std::type_identity_t<T> attenuation1,
                                     std::type_identity_t<T> attenuation2, std::type_identity_t<T> theta,
                                     std::type_identity_t<T> phi) {
    return Light3D<T>(Light3D<T>::LIGHT_SPOT, diffuse, specular, ambient, position, direction, range, falloff,
                      attenuation0, attenuation1, attenuation2, theta, phi);
}

#define VERTRA_LIGHT3D(INSTANTIATE, T)                                                                      \
    INSTANTIATE class Light3D<T>;                                                                           \
    INSTANTIATE VERTRA_API Light3D<T> CreateDirectionalLight(Color3D<T>, Color3D<T>, Color3D<T>, Vec4D<T>); \
    INSTANTIATE VERTRA_API Light3D<T> CreatePointLight(Color3D<T>, Color3D<T>, Color3D<T>, Vec4D<T>,        \
                                                       Vec4D<T>, T, T, T, T, T);                            \
    INSTANTIATE VERTRA_API Light3D<T> CreateSpotLight(Color3D<T>, Color3D<T>, Color3D<T>, Vec4D<T>,         \
                                                      Vec4D<T>, T, T, T, T, T, T, T);

VERTRA_LIGHT3D(extern template, float)
VERTRA_LIGHT3D(extern template, double)

}  // namespace vertra
