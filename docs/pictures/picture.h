#pragma once

#include <vertra/vertra.h>

#include <array>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace pictures {

using Vec = vertra::Vec4D<float>;
using Vec2 = vertra::Vec2D<float>;
using Vec3 = vertra::Vec3D<float>;
using Quat = vertra::Quat3D<float>;
using Matrix = vertra::Matrix3D<float>;
using Line = vertra::Line3D<float>;
using Plane = vertra::Plane3D<float>;
using Box = vertra::AABBox3D<float>;
using Sphere = vertra::Sphere3D<float>;
using Triangle = vertra::Triangle3D<float>;
using Points = std::vector<Vec>;

/// The angle of so many degrees.
inline float Degrees(float degrees) { return degrees * 0.017453293F; }

/// As printf has it.
std::string Text(char const* format, auto... values) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, values...);
    return text.data();
}

/// An SVG picture, 480 wide, on paper of its own: it reads well on a light page and on a dark one.
///
/// A style is a list of classes: a colour (ink, grey, blue, orange, green) and what picture.cpp says beside.
class Picture {
public:
    Matrix view;  ///< takes points to the paper, whose y runs down; the identity at first

    explicit Picture(int height_) : height(height_) {}

    /// The view of the plane z = 0: the origin at (x, y) of the paper, y running up.
    void Flat(float x, float y, float scale);
    /// The view from the eye towards the origin, which comes to (x, y) of the paper.
    void Seen(Vec const& eye, float x, float y, float scale);

    void Draw(Points const& points, std::string_view style) { Put(points, "M", "", style); }
    void Fill(Points const& points, std::string_view style) { Put(points, "M", "Z", style); }
    void Segment(Vec const& a, Vec const& b, std::string_view style) { Draw({a, b}, style); }
    void Arrow(Vec const& a, Vec const& b, std::string_view style);
    void Dot(Vec const& at, std::string_view style, float radius = 4);
    /// The text starts (or, styled mid or end, has its middle or end) at the point moved by dx, dy on the
    /// paper.
    void Label(Vec const& at, std::string_view text, std::string_view style, float dx = 0, float dy = 0);

    void Save(std::string const& path) const;

private:
    /// Where the point comes to lie on the paper: the one perspective division.
    Vec2 At(Vec const& point) const;
    void Put(Points const& points, std::string_view first, std::string_view last, std::string_view style);

    int height;
    std::string body;
};

/// Part of a circle in the plane z = 0, between two angles in degrees.
Points Arc(Vec const& middle, float radius, float from, float to);

/// The outline, within reach of the middle, of where a test holds: found by asking the test.
template <class Test>
Points Outline(Vec const& middle, float reach, Test const& test) {
    Points points;
    for (int degrees = 0; degrees < 360; degrees += 4) {
        Matrix turn;
        turn.ZRot(Degrees(static_cast<float>(degrees)));
        float inside = 0;
        float outside = reach;
        for (int step = 0; step < 16; ++step) {
            float const between = (inside + outside) / 2;
            (test(middle + Vec(between, 0, 0) * turn) ? inside : outside) = between;
        }
        points.push_back(middle + Vec(inside, 0, 0) * turn);
    }
    return points;
}

/// The pictures of docs/conventions.md, and those of docs/types.
void DrawConventions(std::string const& directory);
void DrawTypes(std::string const& directory);

}  // namespace pictures
