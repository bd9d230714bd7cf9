#include "../support.h"

using namespace support;

TYPED_TEST(FloatAndDouble, RecordsLightsHoldTheirArgumentsAndDropEveryW) {
    using T = TypeParam;
    using L = Light3D<T>;
    using V = Vec4D<T>;
    Color3D<T> const d(1, 2, 3, 4), s(5, 6, 7, 8), a(9, 10, 11, 12);
    T const defaults[] = {1, 1, 1, 0, 1, 1, 1,    1, 1, 1, 1, 0,       1,      1,
                          1, 0, 0, 0, 0, 0, 1000, 1, 1, 0, 0, T(0.4F), T(0.9F)};
    L numbered, assigned;
    for (int i = 0; i < 27; ++i) Scalars(numbered)[std::size_t(i) + 1] = T(i + 1);
    numbered.type = L::LIGHT_SPOT, assigned.direction.w = assigned.position.w = 7, assigned = numbered;
    // Scalar i of a light is its default from `given` on, and before it the argument, which is i + 1, but for
    // the w.
    auto const expect = [&](L const& light, int type, int given, T w = 0) {
        for (int i = 0; i < 27; ++i)
            ExpectNear(0, i, Scalars(light)[std::size_t(i) + 1],
                       i >= given ? defaults[i] : (i == 15 || i == 19 ? w : T(i + 1)), int(light.type), type);
    };
    expect(L(), 3, 0), expect(L(numbered), 2, 27), expect(assigned, 2, 27, 7),
        expect(CreateDirectionalLight(d, s, a, V(13, 14, 15, 16)), 3, 16);
    expect(L(L::LIGHT_POINT, d, s, a, V(17, 18, 19, 20), V(13, 14, 15, 16), 21, 22, 23, 24, 25, 26, 27), 1,
           27);
    expect(CreatePointLight(d, s, a, V(13, 14, 15, 16), V(17, 18, 19, 20), 21, 22, 23, 24, 25), 1, 25);
    expect(CreateSpotLight(d, s, a, V(13, 14, 15, 16), V(17, 18, 19, 20), 21, 22, 23, 24, 25, 26, 27), 2, 27);
    static_assert(L().direction == V(T(1)));
}

TYPED_TEST(FloatAndDouble, RecordsMaterialsDifferWhereAnyFieldDoes) {
    using T = TypeParam;
    using M = Material3D<T>;
    using C = Color3D<T>;
    auto const fields = [](auto& m) {
        return std::tie(m.diffuse, m.ambient, m.specular, m.emissive, m.power, m.texture1, m.texture2, m.type,
                        m.typeParam, m.flag1, m.flag2, m.flag3, m.flag4, m.flag5, m.flag6, m.flag7, m.flag8,
                        m.flag9);
    };
    auto const equal = [](M const& p, M const& q) { return (p == q) + (p != q) == 1 ? p == q : 9; };
    T storage[2];
    auto* const one = reinterpret_cast<ITexture2D<T>*>(storage);
    auto* const two = reinterpret_cast<ITexture2D<T>*>(storage + 1);
    auto const type = static_cast<typename M::MATERIAL_TYPE>(5);
    M const other(16U, 32U, 48U, 64U, 3, one, two, type, 4, 11, 12, 13, 14, 15, 16, 17, 18, 19);
    M const colors(C(16U), C(32U), C(2, 2, 2, 2), C(64U), 3, one, two, type, 4, 11, 12, 13, 14, 15, 16, 17,
                   18, 19);
    M m, copy(other), assigned;
    C const white(1, 1, 1, 1);
    EXPECT_TRUE(fields(m) ==
                std::tuple(white, white, white, C(0U), 0, nullptr, nullptr, 0, 0, 0, 1, 1, 1, 1, 1, 1, 0, 0));
    EXPECT_TRUE(fields(other) == std::tuple(C(16U), C(32U), C(48U), C(64U), 3, one, two, 5, 4, 11, 12, 13, 14,
                                            15, 16, 17, 18, 19));
    EXPECT_TRUE(fields(copy) == fields(other) && fields(assigned = other) == fields(other) &&
                colors.specular.r == 2);
    copy = colors, copy.specular = other.specular;
    EXPECT_TRUE(fields(copy) == fields(other));
    [&]<std::size_t... I>(std::index_sequence<I...>) {
        ((copy = m, std::get<I>(fields(copy)) = std::get<I>(fields(other)),
          ExpectNear(0, I, equal(copy, m), 0, equal(m, copy), 0, equal(copy, M(copy)), 1)),
         ...);
    }
    (std::make_index_sequence<18>());
    copy = m, m.diffuse.r = T(0.5), copy.diffuse.r = T(0.501);
    EXPECT_EQ(equal(m, copy), 1) << "one bin";
    m.power = copy.power = kNaN<T>;
    ExpectNear(0, "a NaN", equal(m, copy), 0, equal(m, m), 1);
    static_assert(M() == M());
}
