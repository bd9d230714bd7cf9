#include "picture.h"

#include <array>

namespace pictures {
namespace {

Vec Flat(Vec2 const& v) { return Vec(v.x, v.y, 0); }

/// The part of one vector that lies along another.
void Shadow(std::string const& file) {
    Picture p(220);
    p.Flat(60, 170, 34);
    Vec2 const a(5, 4);
    Vec2 const b(9, 1.5F);
    Vec2 const unit = Normalize(b);
    Vec2 const along = unit * (a * unit);
    p.Arrow(Vec(), Flat(b), "ink");
    p.Arrow(Vec(), Flat(a), "ink");
    p.Segment(Flat(a), Flat(along), "grey dash");
    p.Arrow(Vec(), Flat(along), "blue");
    p.Arrow(Flat(along), Flat(a), "orange");
    p.Label(Flat(a), "a", "ink", -16, -8);
    p.Label(Flat(b), "b", "ink", 10, 4);
    p.Label(Flat(along), "u * (a * u)", "blue code mid", -70, 40);
    p.Label(Flat((a + along) * .5F), "the rest", "orange", 12, 0);
    p.Save(file);
}

/// The cross product and the parallelogram whose area it measures.
void Cross(std::string const& file) {
    Picture p(250);
    p.Seen(Vec(4.5F, 3.6F, 6), 200, 200, 215);
    Vec3 const a(1.5F, .5F, .25F);
    Vec3 const b(.25F, 0, -1.25F);
    Vec3 const c = a ^ b;
    p.Fill({Vec(), Vec(a), Vec(a + b), Vec(b)}, "grey area");
    p.Arrow(Vec(), Vec(a), "ink");
    p.Arrow(Vec(), Vec(b), "ink");
    p.Arrow(Vec(), Vec(c) * .8F, "blue");
    p.Label(Vec(a), "a", "ink", 8, 12);
    p.Label(Vec(b), "b", "ink", 4, -8);
    p.Label(Vec(c) * .8F, "a ^ b", "blue code", 12, 6);
    p.Label(Vec(a + b) * .5F, Text("area %.2f", static_cast<double>(Len(c))), "grey mid", 4, 6);
    p.Save(file);
}

/// An arm built from the shoulder on: each link goes on from the matrix of the one before.
void Arm(std::string const& file) {
    Picture p(230);
    p.Flat(60, 180, 34);
    Points const link = {Vec(0, -.28F, 0), Vec(3.2F, -.2F, 0), Vec(3.2F, .2F, 0), Vec(0, .28F, 0)};
    Matrix arm;
    constexpr std::array<char const*, 3> kColours = {"blue", "orange", "green"};
    constexpr std::array<float, 3> kAngles = {50, -35, -60};
    p.Segment(Vec(-1, 0, 0), Vec(1, 0, 0), "grey");
    for (std::size_t i = 0; i < kAngles.size(); ++i) {
        arm.ZRot(Degrees(kAngles.at(i)));
        Points drawn;
        for (Vec const& corner : link) drawn.push_back(corner * arm);
        p.Fill(drawn, Text("%s area", kColours.at(i)));
        p.Dot(Vec() * arm, "ink dot", 4);
        p.Label(Vec(1.6F, .7F, 0) * arm, Text("%g", static_cast<double>(kAngles.at(i))),
                Text("%s mid", kColours.at(i)), 0, 5);
        arm.Trans(3.2F, 0, 0);
    }
    Vec const hand = Vec() * arm;
    p.Dot(hand, "ink ring", 5);
    p.Label(hand, "Vec4D() * arm", "ink code mid", 0, 26);
    p.Save(file);
}

/// Between two quaternions about z: their own circle, and the axes on the way.
void Slerps(std::string const& file) {
    Picture p(250);
    Quat a;
    Quat b;
    a.SetAxisAngle(Vec(0, 0, 1), Degrees(20));
    b.SetAxisAngle(Vec(0, 0, 1), Degrees(190));
    p.Flat(125, 110, 85);
    p.Draw(Arc(Vec(), 1, 0, 360), "grey thin dash");
    for (int i = 0; i <= 8; ++i) {
        float const t = static_cast<float>(i) / 8;
        Quat const straight = Slerp(a, b, t, 3);
        Quat const round = Slerp(a, b, t, 1e-4F);
        p.Dot(Vec(straight.w, straight.z, 0), "orange ring", 4);
        p.Dot(Vec(round.w, round.z, 0), "blue dot", 5);
    }
    p.Label(Vec(a.w, a.z, 0), "a", "ink", 12, 4);
    p.Label(Vec(b.w, b.z, 0), "b", "ink end", -10, 4);
    p.Label(Vec(0, -1, 0), "w and z of the quaternion", "ink mid", 0, 32);
    p.Flat(350, 110, 85);
    for (int i = 0; i <= 8; ++i) {
        Quat const q = Slerp(a, b, static_cast<float>(i) / 8, 1e-4F);
        p.Arrow(Vec(), q.GetXAxis(), i == 0 || i == 8 ? "ink" : "blue");
    }
    p.Label(Vec(0, -1, 0), "q.GetXAxis()", "ink code mid", 0, 32);
    p.Save(file);
}

/// A segment: nearest points, and the two regions around it.
void Nearest(std::string const& file) {
    Picture p(290);
    p.Flat(240, 145, 34);
    Line const line(-2.2F, -.7F, 0, 2.2F, .7F, 0);
    p.Fill(Outline(line.Midpoint(), 9, [&](Vec const& v) { return IsPointBetweenStartAndEnd(v, line); }),
           "grey area thin");
    p.Fill(Outline(line.Midpoint(), 9, [&](Vec const& v) { return IsPointInsideLine(v, line, .4F); }),
           "orange area thin");
    for (Vec const& point : {Vec(3.6F, -1.2F, 0), Vec(-3.8F, 1.2F, 0), Vec(.4F, -2.2F, 0)}) {
        Vec const nearest = GetClosestPoint(line, point);
        p.Segment(point, nearest, "blue dash thin");
        p.Dot(point, "blue dot");
        p.Dot(nearest, "blue ring");
    }
    p.Segment(line.start, line.end, "ink");
    p.Label(line.start, "start", "ink end", -8, 18);
    p.Label(line.end, "end", "ink", 8, -8);
    p.Label(Vec(), "IsPointBetween-", "grey mid", -6, -62);
    p.Label(Vec(), "StartAndEnd", "grey mid", -6, -44);
    p.Label(line.start, "IsPointInsideLine", "orange end", -14, 48);
    p.Save(file);
}

/// What lies on which side of a plane, and the number that says so.
void Sides(std::string const& file) {
    Picture p(250);
    p.Flat(300, 0, 40);
    Plane const plane(Vec(1, 0, 0), 0);
    p.Segment(Vec(0, -.4F, 0), Vec(0, -5.8F, 0), "ink");
    p.Arrow(Vec(0, -.7F, 0), Vec(1, -.7F, 0), "ink");
    p.Label(Vec(1, -.7F, 0), "normal", "ink", 8, 5);
    constexpr std::array<char const*, 5> kStyles = {"orange", "blue", "ink", "ink", "ink"};
    for (float const x : {-3.F, 0.F, 3.F}) {
        auto const style = [&](vertra::EINTERSECTION_RELATION r) {
            return std::string(kStyles.at(static_cast<std::size_t>(r)));
        };
        Vec const point(x, -1.6F, 0);
        auto const relation = plane.ClassifyPoint(point);
        p.Dot(point, style(relation) + " dot", 4);
        p.Label(point, Text("%d", relation), style(relation), 12, 5);

        Sphere const sphere(Vec(x, -3, 0), .6F);
        auto const ofSphere = plane.ClassifySphere(sphere);
        p.Fill(Arc(sphere.center, sphere.radius, 0, 360), style(ofSphere) + " area");
        p.Label(sphere.center, Text("%d", ofSphere), style(ofSphere), x == 0 ? 6 : -4, 5);

        Box const box(x - .7F, -5, -1, x + .7F, -4.2F, 1);
        auto const ofBox = box.ClassifyPlane(plane);
        p.Fill({box.min, Vec(box.max.x, box.min.y, 0), box.max, Vec(box.min.x, box.max.y, 0)},
               style(ofBox) + " area");
        p.Label(box.Center(), Text("%d", ofBox), style(ofBox), x == 0 ? 6 : -4, 5);
    }
    p.Label(Vec(-7.2F, -1.6F, 0), "ClassifyPoint", "grey", 0, 5);
    p.Label(Vec(-7.2F, -3, 0), "ClassifySphere", "grey", 0, 5);
    p.Label(Vec(-7.2F, -4.6F, 0), "ClassifyPlane", "grey", 0, 5);
    p.Save(file);
}

/// The numbers of the corners and of the three faces in sight.
void Corners(std::string const& file) {
    Picture p(300);
    Vec const eye(5, 3, 5.5F);
    p.Seen(eye, 255, 142, 150);
    Box const box(-1.2F, -.9F, -.9F, 1.2F, .9F, .9F);
    std::array<Vec, 8> corners;
    std::array<Plane, 6> planes;
    box.GetEdges(corners.data());
    box.GetFacePlanes(planes.data());
    for (std::size_t i = 0; i < 8; ++i) {
        for (std::size_t bit : {1U, 2U, 4U}) {
            if ((i & bit) != 0) continue;
            p.Segment(corners.at(i), corners.at(i | bit), i == 0 ? "grey dash thin" : "ink");
        }
    }
    for (std::size_t i = 0; i < 8; ++i) {
        Vec const out = corners.at(i) * 1.16F;
        p.Dot(corners.at(i), "blue dot");
        p.Label(out, Text("%zu", i), "blue mid", i == 0 || i == 7 ? 16 : 0, 5);
    }
    constexpr std::array<Vec, 3> kAxes = {Vec(1, 0, 0), Vec(0, 1, 0), Vec(0, 0, 1)};
    for (std::size_t i = 0; i < 6; ++i) {
        Vec const n = planes.at(i).normal;
        Vec const middle = planes.at(i).GetMemberPoint();
        bool const seen = n * (eye - middle) > 0;
        if (!seen) continue;
        p.Arrow(middle, middle + n * .7F, "orange");
        p.Label(middle, Text("%zu", i), "orange end", -6, 14);
    }
    Vec const origin(-2.6F, -.9F, .9F);
    constexpr std::array<char const*, 3> kNames = {"x", "y", "z"};
    for (std::size_t i = 0; i < 3; ++i) {
        p.Arrow(origin, origin + kAxes.at(i) * .6F, "grey");
        p.Label(origin + kAxes.at(i) * .75F, kNames.at(i), "grey mid", 0, 5);
    }
    p.Save(file);
}

/// Lines against a sphere: the first of the two points, also behind the origin.
void Rays(std::string const& file) {
    Picture p(250);
    p.Flat(240, 130, 1);
    Sphere const sphere(Vec(0, 0, 0), 80);
    p.Fill(Outline(Vec(), 200, [&](Vec const& v) { return sphere.IsInside(v); }), "grey area");
    auto const ray = [&](Vec const& origin, Vec const& direction, char const* text, float dx, float dy) {
        Vec hit;
        int const result = sphere.Intersects(origin, direction, hit);
        char const* const colour = result ? "blue" : "orange";
        p.Arrow(origin, origin + direction * 70, colour);
        p.Dot(origin, Text("%s ring", colour));
        if (result) {
            p.Segment(origin, hit, "blue dash thin");
            p.Dot(hit, "blue dot", 5);
        }
        p.Label(origin, Text("%d%s", result, text), colour, dx, dy);
    };
    ray(Vec(-215, 40, 0), Vec(1, 0, 0), ": ahead", 0, -10);
    ray(Vec(130, 0, 0), Vec(1, 0, 0), ": behind", -10, -10);
    ray(Vec(20, -35, 0), Vec(1, 0, 0), ": from within", -46, 22);
    ray(Vec(-215, -80, 0), Vec(1, 0, 0), ": a touch", 0, -10);
    ray(Vec(60, 105, 0), Vec(1, 0, 0), ": a miss", 0, -10);
    p.Save(file);
}

/// The same points, held from where the first lay and held around their box.
void Bounds(std::string const& file) {
    Picture p(315);
    std::array<Vec, 5> const points = {Vec(-55, -30, 0), Vec(10, 45, 0), Vec(50, 20, 0), Vec(35, -40, 0),
                                       Vec(-20, 5, 0)};
    vertra::BSphere3D<float> grown(points[0], 0);
    Box box;
    auto const all = [&](float x) {
        p.Flat(x, 135, 1);
        for (Vec const& point : points) p.Dot(point, "ink dot", 3.5F);
    };
    all(185);
    for (Vec const& point : points) {
        grown.Add(point);
        box.Add(point);
        if (grown.radius > 1) p.Draw(Arc(grown.center, grown.radius, 0, 360), "orange thin");
    }
    p.Dot(grown.center, "orange ring", 6);
    p.Label(grown.center, Text("Add: radius %.0f", static_cast<double>(grown.radius)), "orange mid", 0, 135);
    all(365);
    vertra::BSphere3D<float> const fitted(box);
    p.Fill({box.min, Vec(box.max.x, box.min.y, 0), box.max, Vec(box.min.x, box.max.y, 0)}, "grey dash");
    p.Draw(Arc(fitted.center, fitted.radius, 0, 360), "blue");
    p.Dot(fitted.center, "blue ring", 6);
    p.Label(fitted.center, Text("of the box: radius %.0f", static_cast<double>(fitted.radius)), "blue mid", 0,
            167.5F);
    p.Save(file);
}

/// The nearest point of the outline, from within too.
void Outlines(std::string const& file) {
    Picture p(250);
    p.Flat(240, 195, 38);
    Triangle const triangle(-3, -.6F, 0, 3, -.2F, 0, -.8F, 3.6F, 0);
    p.Fill(Points(triangle.vertex, triangle.vertex + 3), "grey area");
    for (Vec const& point : {Vec(-1, .2F, 0), Vec(.6F, .5F, 0), Vec(-.9F, 2.1F, 0), Vec(-3.4F, 2, 0),
                             Vec(2.4F, 2.6F, 0), Vec(4.4F, -.4F, 0), Vec(-1.4F, 4.4F, 0)}) {
        char const* const colour = IsInsideTriangle(triangle, point) ? "blue" : "orange";
        p.Arrow(point, GetClosestPoint(triangle, point), colour);
        p.Dot(point, Text("%s dot", colour));
    }
    constexpr std::array<float, 6> kBeside = {-14, 18, 14, 18, 14, -4};
    for (std::size_t i = 0; i < 3; ++i) {
        p.Label(triangle[i], Text("%zu", i), "ink mid", kBeside.at(2 * i), kBeside.at(2 * i + 1));
    }
    p.Save(file);
}

/// Lines straight through a quad: full where it is hit.
void Diagonal(std::string const& file) {
    Picture p(240);
    p.Flat(240, 120, 24);
    vertra::Quad3D<float> const quad(Vec(-4, -3, 0), Vec(4, -3, 0), Vec(4, 3, 0), Vec(-4, 3, 0));
    p.Fill(Points(quad.vertex, quad.vertex + 4), "grey");
    p.Segment(quad.vertex[0], quad.vertex[2], "grey dash thin");
    for (int i = -5; i <= 5; ++i) {
        for (int k = -4; k <= 4; ++k) {
            Vec const at(static_cast<float>(i), static_cast<float>(k) * .75F, 0);
            Vec hit;
            p.Dot(at, quad.Intersects(at, Vec(0, 0, 1), hit) ? "blue dot" : "blue ring thin", 4.5F);
        }
    }
    constexpr std::array<float, 8> kBeside = {-20, 22, 20, 22, 20, -12, -20, -12};
    for (std::size_t i = 0; i < 4; ++i) {
        p.Label(quad.vertex[i], Text("%zu", i), "ink mid", kBeside.at(2 * i), kBeside.at(2 * i + 1));
    }
    p.Save(file);
}

/// Two rectangles, their intersection, and what the two operators make of them.
void Rects(std::string const& file) {
    Picture p(180);
    using Rect = vertra::Rect2D<float>;
    Rect const a(0, 0, 80, 60);
    Rect const b(40, 30, 110, 100);
    auto const corners = [](Rect const& r) {
        return Points{Vec(r.topLeft.x, r.topLeft.y, 0), Vec(r.bottomRight.x, r.topLeft.y, 0),
                      Vec(r.bottomRight.x, r.bottomRight.y, 0), Vec(r.topLeft.x, r.bottomRight.y, 0)};
    };
    auto const panel = [&](float x, Rect const& result, char const* code, char const* style) {
        p.view.Eye();
        p.view.Trans(x, 22, 0);
        p.Fill(corners(result), std::string(style) + " area");
        p.Fill(corners(a), "ink thin");
        p.Fill(corners(b), "ink thin");
        p.Label(Vec(55, 130, 0), code, std::string(style) + " code mid");
    };
    Rect clipped = a;
    clipped.Clip(b);
    panel(25, clipped, "a.Clip(b)", "blue");
    panel(185, a & b, "a & b", "orange");
    panel(345, a | b, "a | b", "orange");
    p.Label(Vec(14, 16, 0), "a", "grey mid");
    p.Label(Vec(98, 92, 0), "b", "grey mid");
    p.Save(file);
}

/// The six ways in which two lines of the plane lie to each other.
void Crossings(std::string const& file) {
    Picture p(300);
    using Line2 = vertra::Line2D<float>;
    int panel = 0;
    auto const draw = [&](Line2 const& a, Line2 const& b) {
        constexpr std::array<char const*, 6> kNames = {"0 collinear",      "1 lines cross",
                                                       "2 segments cross", "3 other's segment",
                                                       "4 this segment",   "5 parallel"};
        int const row = panel / 3;
        p.Flat(80 + 160 * static_cast<float>(panel % 3), 65 + 145 * static_cast<float>(row), 12);
        ++panel;
        Vec2 crossing;
        auto const way = static_cast<std::size_t>(a.Intersection(b, &crossing));
        bool const cross = way != vertra::LINE2D_COLLINEAR && way != vertra::LINE2D_PARALLEL;
        for (Line2 const& line : {a, b}) {
            if (cross) p.Segment(Flat(line.start), Flat(crossing), "grey dash thin");
        }
        p.Segment(Flat(b.start), Flat(b.end), "orange");
        p.Segment(Flat(a.start), Flat(a.end), "blue");
        if (cross) p.Dot(Flat(crossing), "ink ring", 5);
        p.Label(Vec(), kNames.at(way), "ink mid", 0, 68);
    };
    auto const line = [](float ax, float ay, float bx, float by) {
        return Line2(Vec2(ax, ay), Vec2(bx, by));
    };
    draw(line(-5, -2, -1, 0), line(1, 1, 5, 3));
    draw(line(-5, -2, -1, 0), line(4, -3, 2, -1));
    draw(line(-5, -2, 5, 3), line(3, -3, -3, 3));
    draw(line(-5, -2, -2, -.5F), line(4, -3, -2, 3));
    draw(line(-5, -2, 5, 3), line(4, -3, 2, -1));
    draw(line(-5, -2, 3, 2), line(-3, -3, 5, 1));
    p.Save(file);
}

}  // namespace

void DrawTypes(std::string const& directory) {
    Shadow(directory + "shadow.svg");
    Cross(directory + "cross.svg");
    Arm(directory + "arm.svg");
    Slerps(directory + "slerp.svg");
    Nearest(directory + "nearest.svg");
    Sides(directory + "sides.svg");
    Corners(directory + "corners.svg");
    Rays(directory + "rays.svg");
    Bounds(directory + "bounds.svg");
    Outlines(directory + "outlines.svg");
    Diagonal(directory + "diagonal.svg");
    Rects(directory + "rects.svg");
    Crossings(directory + "crossings.svg");
}

}  // namespace pictures
