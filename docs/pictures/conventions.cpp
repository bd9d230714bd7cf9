#include "picture.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace pictures {
namespace {

using vertra::FastSqrt;

Points Moved(Points const& points, Matrix const& m) {
    Points result;
    for (Vec const& point : points) result.push_back(point * m);
    return result;
}

/// What acts first: the same two builders, in both orders.
void Order(std::string const& file) {
    Points const flag = {Vec(0, 0, 0),     Vec(2, 0, 0),   Vec(2, .8F, 0),
                         Vec(.8F, .8F, 0), Vec(.8F, 2, 0), Vec(0, 2, 0)};
    Picture p(285);
    Matrix turn;
    turn.ZRot(.6F, .8F);
    Matrix move;
    move.Trans(6, 0, 0);
    auto const panel = [&](float left, Matrix const& midway, Matrix const& both, char const* colour,
                           char const* firstCall, char const* secondCall, char const* sense) {
        p.Flat(left, 190, 19);
        p.Segment(Vec(-.5F, 0, 0), Vec(9.5F, 0, 0), "grey thin");
        p.Segment(Vec(0, -.5F, 0), Vec(0, 8, 0), "grey thin");
        p.Fill(flag, "grey area");
        p.Fill(Moved(flag, midway), "grey dash");
        p.Fill(Moved(flag, both), std::string(colour) + " area");
        p.Label(Vec(-1, 0, 0), firstCall, std::string(colour) + " code", 0, 34);
        p.Label(Vec(-1, 0, 0), secondCall, std::string(colour) + " code", 0, 54);
        p.Label(Vec(-1, 0, 0), sense, "ink", 0, 78);
    };
    Matrix turnedFirst;
    turnedFirst.Trans(6, 0, 0);
    turnedFirst.ZRot(.6F, .8F);
    Matrix movedFirst;
    movedFirst.ZRot(.6F, .8F);
    movedFirst.Trans(6, 0, 0);
    panel(50, turn, turnedFirst, "blue", "m.Trans(6, 0, 0);", "m.ZRot(c, s);", "turned first, then moved");
    panel(280, move, movedFirst, "orange", "m.ZRot(c, s);", "m.Trans(6, 0, 0);", "moved first, then turned");
    p.Draw(Arc(Vec(), 6, 3, 49), "orange dash thin");
    p.Save(file);
}

/// The three rotations, by turning the axis that each takes to another.
void Rotations(std::string const& file) {
    Picture p(290);
    p.Seen(Vec(4.2F, 3.4F, 6), 225, 185, 215);
    Vec const x(1, 0, 0);
    Vec const y(0, 1, 0);
    Vec const z(0, 0, 1);
    for (Vec const& axis : {x, y, z}) p.Arrow(Vec(), axis * 1.5F, "ink");
    p.Label(x * 1.5F, "x", "ink", 8, 5);
    p.Label(y * 1.5F, "y", "ink", -4, -8);
    p.Label(z * 1.5F, "z", "ink", -16, 8);
    auto const turned = [&](Vec const& from, char const* colour, auto const& rotate) {
        Points points;
        for (int degrees = 8; degrees <= 82; degrees += 2) {
            Matrix m;
            rotate(m, Degrees(static_cast<float>(degrees)));
            points.push_back(from * 1.1F * m);
        }
        p.Draw(points, colour);
        p.Arrow(points[points.size() - 2], points.back(), colour);
        return points[points.size() / 2];
    };
    Vec const aboutX = turned(y, "blue", [](Matrix& m, float angle) { m.XRot(angle); });
    Vec const aboutY = turned(z, "orange", [](Matrix& m, float angle) { m.YRot(angle); });
    Vec const aboutZ = turned(x, "green", [](Matrix& m, float angle) { m.ZRot(angle); });
    p.Label(aboutX, "XRot: y to z", "blue end", -12, 0);
    p.Label(aboutY, "YRot: z to x", "orange mid", 10, 26);
    p.Label(aboutZ, "ZRot: x to y", "green", 12, -4);
    p.Save(file);
}

/// The view from the side, and where it lands between -1 and 1.
void Clip(std::string const& file) {
    Picture p(282);
    Matrix projection;
    projection.Frustum(-.5F, .5F, -.5F, .5F, 1, 10);
    Matrix const back = Invert(projection);
    auto const clipped = [](Vec v, Matrix const& m) {
        v *= m;
        return v / v.w;
    };
    auto const sideways = [](Vec const& v) { return Vec(-v.z, v.y, 0); };  // looking along x
    auto const deep = [](Vec const& v) { return Vec(v.z, v.y, 0); };
    auto const corner = [&](float y, float z) { return sideways(clipped(Vec(0, y, z), back)); };

    p.Flat(28, 130, 19);
    p.Dot(Vec(), "ink dot", 4);
    p.Label(Vec(), "eye", "ink mid", 0, 24);
    for (float const y : {-1.F, 1.F}) p.Segment(Vec(), corner(y, -1), "grey dash thin");
    p.Fill({corner(-1, -1), corner(1, -1), corner(1, 1), corner(-1, 1)}, "blue area");
    p.Segment(corner(-1, -1), Vec(1, -5.2F, 0), "grey dash thin");
    p.Label(Vec(1, -5, 0), "zNear", "ink mid", 0, 22);
    p.Label(Vec(10, -5, 0), "zFar", "ink mid", 0, 22);
    p.Label(Vec(5.5F, -5, 0), "-z", "ink mid", 0, 42);

    auto const cells = [&](auto const& place, char const* style) {
        for (int k = 2; k < 10; ++k) {
            auto const z = static_cast<float>(k);
            p.Segment(place(Vec(0, -z / 2, -z)), place(Vec(0, z / 2, -z)), style);
        }
        for (int k = 1; k <= 10; ++k) p.Dot(place(Vec(0, .45F, -static_cast<float>(k))), "orange dot", 3);
    };
    cells(sideways, "blue thin");

    p.Flat(365, 130, 90);
    p.Fill({Vec(-1, -1, 0), Vec(1, -1, 0), Vec(1, 1, 0), Vec(-1, 1, 0)}, "blue area");
    cells([&](Vec const& v) { return deep(clipped(v, projection)); }, "blue thin");
    p.Label(Vec(-1, -1, 0), "-1", "ink mid", 0, 22);
    p.Label(Vec(1, -1, 0), "1", "ink mid", 0, 22);
    p.Label(Vec(0, -1, 0), "z / w", "ink mid", 0, 42);
    p.Save(file);
}

/// What becomes of w: the values are those that the operations gave.
void W(std::string const& file) {
    Picture p(298);
    float y = 12;
    auto const row = [&](char const* code, Vec const& v, float w) {
        p.Label(Vec(16, y + 17, 0), code, "ink code");
        std::array<float, 4> const values = {v.x, v.y, v.z, w};
        for (int i = 0; i < 4; ++i) {
            float const x = 256 + 52 * static_cast<float>(i);
            char const* const style = i == 3 ? "orange area" : "grey";
            p.Fill({Vec(x, y, 0), Vec(x + 46, y, 0), Vec(x + 46, y + 24, 0), Vec(x, y + 24, 0)}, style);
            p.Label(Vec(x + 23, y + 17, 0),
                    Text("%g", static_cast<double>(values.at(static_cast<std::size_t>(i)))),
                    i == 3 ? "orange mid" : "ink mid");
        }
        y += 31;
    };
    Vec const v(1, 2, 3, 4);
    row("Vec4D v(1, 2, 3, 4)", v, v.w);
    Vec const copy = v;  // NOLINT(performance-unnecessary-copy-initialization): the copy is what is shown
    row("Vec4D copy = v", copy, copy.w);
    Vec const whole(v, v.w);
    row("Vec4D whole(v, v.w)", whole, whole.w);
    Vec target(9, 9, 9, 9);
    row("Vec4D t(9, 9, 9, 9)", target, target.w);
    target = v;
    row("t = v", target, target.w);
    target += v;
    row("t += v", target, target.w);
    Vec const sum = v + v;
    row("v + v", sum, sum.w);
    Matrix projection;
    projection.Frustum(-1, 1, -1, 1, 1, 3);
    Vec const product = v * projection;
    row("v * projection", product, product.w);
    target *= projection;
    row("t *= projection", target, target.w);
    p.Save(file);
}

/// One quaternion, and which way it turns the x axis.
void Senses(std::string const& file) {
    Picture p(270);
    Vec const x(1, 0, 0);
    Quat q;
    q.SetAxisAngle(Vec(0, 0, 1), Degrees(50));
    p.Flat(70, 135, 115);
    p.Draw(Arc(Vec(), 1, -70, 70), "grey dash thin");
    p.Arrow(Vec(), x, "ink");
    p.Arrow(Vec(), q.GetXAxis(), "blue");
    p.Arrow(Vec(), q * x, "orange");
    for (bool const up : {true, false}) {
        char const* const colour = up ? "blue" : "orange";
        Points const arc = Arc(Vec(), .5F, up ? 4.F : -4.F, up ? 46.F : -46.F);
        p.Draw(arc, colour);
        p.Arrow(arc[arc.size() - 2], arc.back(), colour);
    }
    p.Label(x, "x", "ink", 10, 5);
    p.Label(q.GetXAxis(), "q.GetXAxis()", "blue code", 42, -12);
    p.Label(q.GetXAxis(), "x * m, with m.Rot(z, a)", "blue code", 42, 10);
    p.Label(q.GetXAxis(), "Conj(q) * x", "blue code", 42, 32);
    p.Label(q * x, "q * x", "orange code", 42, -20);
    p.Label(q * x, "x * ToMatrix(q)", "orange code", 42, 2);
    p.Label(q * x, "ToMatrix(q).Row(0)", "orange code", 42, 24);
    Matrix m;
    m.Rot(Vec(0, 0, 1), Degrees(50));
    for (Vec const& same : {x * m, Conj(q) * x}) p.Dot(same, "blue ring thin", 6);
    for (Vec const& same : {x * ToMatrix(q), ToMatrix(q).Row(0)}) p.Dot(same, "orange ring thin", 6);
    p.Label(x, "q.SetAxisAngle(z, a)", "ink code", 60, -4);
    p.Label(x, "z towards you", "ink", 60, 16);
    p.Save(file);
}

/// Dots on a grid, full where the test holds.
void Boundaries(std::string const& file) {
    Picture p(360);
    int panel = 0;
    auto const grid = [&](char const* name, char const* argument, Points const& shape, auto const& test) {
        int const row = panel / 3;
        p.Flat(80 + 160 * static_cast<float>(panel % 3), 70 + 175 * static_cast<float>(row), 36);
        ++panel;
        p.Fill(shape, "grey");
        for (int i = -3; i <= 3; ++i) {
            for (int k = -3; k <= 3; ++k) {
                Vec const at(static_cast<float>(i) / 2, static_cast<float>(k) / 2, 0);
                p.Dot(at, test(at) ? "blue dot" : "blue ring thin", 4.5F);
            }
        }
        p.Label(Vec(0, -1.5F, 0), name, "ink mid", 0, 28);
        p.Label(Vec(0, -1.5F, 0), argument, "ink mid", 0, 47);
    };
    Points const square = {Vec(-1, -1, 0), Vec(1, -1, 0), Vec(1, 1, 0), Vec(-1, 1, 0)};
    Box const box(-1, -1, -1, 1, 1, 1);
    vertra::Rect2D<float> const rect(-1, -1, 1, 1);
    Triangle const triangle(-1.5F, -1.5F, 0, 1.5F, -1.5F, 0, -1.5F, 1.5F, 0);
    Points const corners(triangle.vertex, triangle.vertex + 3);
    grid("AABBox3D", "IsInside", square, [&](Vec const& v) { return box.IsInside(v); });
    grid("AABBox3D", "IsTotallyInside", square, [&](Vec const& v) { return box.IsTotallyInside(v); });
    grid("Rect2D", "IsPointInside", square, [&](Vec const& v) { return rect.IsPointInside({v.x, v.y}); });
    grid("Sphere3D", "IsInside", Arc(Vec(), 1, 0, 360),
         [](Vec const& v) { return Sphere(Vec(), 1).IsInside(v); });
    grid("IsInsideTriangle", "", corners, [&](Vec const& v) { return IsInsideTriangle(triangle, v); });
    grid("IsInsideTriangleFast", "", corners,
         [&](Vec const& v) { return IsInsideTriangleFast(triangle, v); });
    p.Label(corners[0], "0", "grey mid", -16, 5);
    p.Label(corners[1], "1", "grey mid", 16, 5);
    p.Label(corners[2], "2", "grey mid", -16, 5);
    p.Save(file);
}

/// Results that are added: in how many of three shapes does the middle of each cell lie?
void Counts(std::string const& file) {
    Picture p(230);
    p.Flat(0, 230, 1);
    Sphere const left(Vec(165, 120, 0), 92);
    Sphere const right(Vec(300, 105, 0), 80);
    Box const box(190, 20, -1, 420, 165, 1);
    constexpr std::array<char const*, 4> kStyles = {"grey", "blue", "green", "orange"};
    for (int i = 0; i < 18; ++i) {
        for (int k = 0; k < 8; ++k) {
            Vec const at(32 + 24.5F * static_cast<float>(i), 24 + 26 * static_cast<float>(k), 0);
            int const count = left.IsInside(at) + right.IsInside(at) + box.IsInside(at);
            p.Label(at, Text("%d", count), Text("%s mid", kStyles.at(static_cast<std::size_t>(count))), 0, 5);
        }
    }
    p.Draw(Arc(left.center, left.radius, 0, 360), "ink thin");
    p.Draw(Arc(right.center, right.radius, 0, 360), "ink thin");
    p.Fill({box.min, Vec(box.max.x, box.min.y, 0), box.max, Vec(box.min.x, box.max.y, 0)}, "ink thin");
    p.Save(file);
}

/// The red byte of a colour against its channel: in steps, and out of range.
void Colours(std::string const& file) {
    Picture p(330);
    auto const byte = [](vertra::Color3D<float> const& c) {
        return static_cast<float>(static_cast<unsigned int>(c) >> 16 & 0xFF);
    };
    auto const red = [](float channel) { return vertra::Color3D<float>(channel, 0, 0, 0); };

    p.Flat(60, 120, 1);
    auto const stair = [&](float channel) { return Vec(channel * 255 * 62, byte(red(channel)) * 16, 0); };
    p.Arrow(Vec(), Vec(400, 0, 0), "grey");
    p.Arrow(Vec(), Vec(0, 105, 0), "grey");
    for (int step = 0; step < 6; ++step) {
        float const low = (static_cast<float>(step) + .001F) / 255;
        float const high = (static_cast<float>(step) + .999F) / 255;
        p.Segment(stair(low), stair(high), "ink");
    }
    for (float const channel : {2.2F, 2.8F}) p.Dot(stair(channel / 255), "blue dot", 5);
    p.Label(stair(2.5F / 255), "equal", "blue mid", 0, 24);
    for (float const channel : {3.9F, 4.1F}) p.Dot(stair(channel / 255), "orange dot", 5);
    p.Label(stair(4.1F / 255), "unequal", "orange", 12, 22);
    p.Label(Vec(0, 105, 0), "byte", "ink end", -10, 12);
    p.Label(Vec(400, 0, 0), "channel * 255", "ink end", 0, -8);
    for (int k = 1; k < 6; ++k)
        p.Label(Vec(62 * static_cast<float>(k), 0, 0), Text("%d", k), "grey mid", 0, 20);
    p.Flat(180, 285, 1);
    auto const place = [](float channel, float value) { return Vec(channel * 115, value / 255 * 105, 0); };
    p.Arrow(place(-1.05F, 0), place(2.4F, 0), "grey");
    p.Arrow(Vec(), place(0, 285), "grey");
    Points wrapped;
    Points held;
    float last = 0;
    for (int i = -64; i <= 128; ++i) {
        float const channel = static_cast<float>(i) / 64;
        float const value = byte(red(channel));
        if (std::fabs(value - last) > 100) {
            p.Draw(wrapped, "orange");
            wrapped.clear();
        }
        wrapped.push_back(place(channel, value));
        held.push_back(place(channel, byte(red(channel) + red(0))));
        last = value;
    }
    p.Draw(wrapped, "orange");
    p.Draw(held, "blue dash");
    p.Label(place(1.2F, 255), "a sum: held", "blue", 0, -6);
    p.Label(place(-.95F, 250), "stored: it wraps", "orange end", 90, -14);
    p.Label(place(-1, 0), "-1", "grey mid", 0, 20);
    p.Label(place(0, 0), "0", "grey mid", 0, 20);
    p.Label(place(1, 0), "1", "grey mid", 0, 20);
    p.Label(place(2, 0), "2", "grey mid", 0, 20);
    p.Label(place(0, 285), "byte", "ink", 10, 8);
    p.Label(place(2.4F, 0), "channel", "ink end", 0, -8);
    p.Save(file);
}

/// The relative error of the root over two octaves, the least and the greatest in each of many columns.
void Root(std::string const& file) {
    Picture p(215);
    p.Flat(70, 100, 1);
    auto const place = [](float column, double error) {
        return Vec(column * 3, static_cast<float>(error * 4e8), 0);
    };
    for (double const error : {-2e-7, 0., 2e-7}) {
        p.Segment(place(0, error), place(128, error), error == 0 ? "grey thin" : "grey thin dash");
        p.Label(place(0, error), error == 0 ? "0" : Text("%g", error), "ink end", -8, 5);
    }
    Points low;
    Points high;
    for (int column = 0; column < 128; ++column) {
        double least = 1;
        double greatest = -1;
        for (int i = 0; i < 1024; ++i) {
            float const x = 1 + (static_cast<float>(column) + static_cast<float>(i) / 1024) * 3 / 128;
            double const exact = std::sqrt(static_cast<double>(x));
            double const error = static_cast<double>(FastSqrt(x)) / exact - 1;
            least = std::min(least, error);
            greatest = std::max(greatest, error);
        }
        low.push_back(place(static_cast<float>(column), least));
        high.push_back(place(static_cast<float>(column), greatest));
    }
    std::reverse(high.begin(), high.end());
    low.insert(low.end(), high.begin(), high.end());
    p.Fill(low, "blue area thin");
    for (int x = 1; x <= 4; ++x) {
        p.Label(place(static_cast<float>(x - 1) * 128 / 3, -2e-7), Text("%d", x), "grey mid", 0, 18);
    }
    p.Label(place(0, 1.4e-7), "FastSqrt(x) / exact - 1", "blue", 8, 5);
    p.Save(file);
}

/// What a test of a segment against a triangle returns and writes.
void Hits(std::string const& file) {
    Picture p(310);
    p.Seen(Vec(1, 4.2F, 7), 240, 198, 172);
    for (int i = -2; i <= 2; ++i) {
        auto const k = static_cast<float>(i);
        p.Segment(Vec(k, 0, -2), Vec(k, 0, 2), "grey thin");
        p.Segment(Vec(-2, 0, k), Vec(2, 0, k), "grey thin");
    }
    Triangle const triangle(Vec(-1.7F, 0, 1.3F), Vec(.5F, 0, 1.3F), Vec(-1.3F, 0, -1.3F));
    p.Fill(Points(triangle.vertex, triangle.vertex + 3), "blue area");
    auto const probe = [&](Line const& line, char const* text, float dx, float dy) {
        Vec const untouched(100);
        Vec out(untouched);
        int const result = triangle.Intersects(line, out);
        char const* const colour = result ? "blue" : "orange";
        p.Arrow(line.start, line.end, colour);
        if (out != untouched) {
            p.Segment(line.end, out, Text("%s dash thin", colour));
            p.Dot(out, Text("%s %s", colour, result ? "dot" : "ring"), 5);
        }
        p.Label(line.start, Text("%d%s", result, text), Text("%s", colour), dx, dy);
    };
    probe(Line(Vec(-1.2F, 1.3F, .6F), Vec(-.9F, -.7F, .5F)), ": it hits", -40, -8);
    probe(Line(Vec(-.2F, 1.9F, -.4F), Vec(-.5F, .9F, .3F)), ": too short", -30, -8);
    probe(Line(Vec(.9F, 1.5F, -1.3F), Vec(1.2F, -.5F, -.6F)), ": beside it", -20, -8);
    probe(Line(Vec(.7F, .4F, 1.6F), Vec(2, .4F, 1.1F)), ": parallel, out untouched", -40, 30);
    p.Save(file);
}

}  // namespace

void DrawConventions(std::string const& directory) {
    Order(directory + "order.svg");
    Rotations(directory + "rotations.svg");
    Clip(directory + "clip.svg");
    W(directory + "w.svg");
    Senses(directory + "senses.svg");
    Boundaries(directory + "boundaries.svg");
    Counts(directory + "counts.svg");
    Colours(directory + "colours.svg");
    Root(directory + "root.svg");
    Hits(directory + "hits.svg");
}

}  // namespace pictures
