// Judges the decisions of the shapes by exact rational arithmetic: see scripts/exhaust.
//
// Inputs are eighths from -1 to 1, where coincidences abound and float's sums and products are exact. Each
// expected answer follows from what the shapes are, as sets of points, and from who owns the boundary.

#include <vertra/vertra.h>

#include <gmpxx.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <utility>
#include <vector>

namespace {

using namespace vertra;
using Number = mpq_class;
using Point = std::array<Number, 3>;
using Bounds = std::array<Point, 2>;

/// Not judged: the library rounds here and the exact answer is close, or docs/determinism.md says why.
constexpr int kLeftOut = -1;

/// Makes shapes of T from the numbers of a case, in braces, which are read from left to right.
template <class T>
struct Input {
    int const* next;
    T operator()() { return T(*next++) / T(8); }
    T Radius() { return Abs((*this)()); }
    Vec2D<T> Flat() { return Vec2D<T>{(*this)(), (*this)()}; }
    Vec4D<T> Vec() { return Vec4D<T>{(*this)(), (*this)(), (*this)()}; }
    Plane3D<T> Plane() { return Plane3D<T>{Vec(), (*this)()}; }
    Line3D<T> Line() { return Line3D<T>{Vec(), Vec()}; }
    AABBox3D<T> Box() { return AABBox3D<T>{Vec(), Vec()}.Repair(); }
    Triangle3D<T> Triangle() { return Triangle3D<T>{Vec(), Vec(), Vec()}; }
    Sphere3D<T> Sphere() { return Sphere3D<T>{Vec(), Radius()}; }
    Line2D<T> FlatLine() { return Line2D<T>{Flat(), Flat()}; }
    Position2D<T> Position() { return Position2D<T>{(*this)(), (*this)()}; }
    Rect2D<T> Rect() { return Rect2D<T>{Position(), Position()}.Repair(); }
};

template <>
struct Input<Number> {
    int const* next;
    Number operator()() { return Number(*next++) / 8; }
    Point Flat() { return {(*this)(), (*this)(), 0}; }
    Point Vec() { return {(*this)(), (*this)(), (*this)()}; }
    Bounds Box() { return Sorted({Vec(), Vec()}); }
    Bounds Rect() { return Sorted({Flat(), Flat()}); }
    static Bounds Sorted(Bounds box) {
        for (std::size_t i = 0; i < 3; ++i)
            if (box[1][i] < box[0][i]) std::swap(box[0][i], box[1][i]);
        return box;
    }
};
using Exact = Input<Number>;

Point Along(Point const& a, Point const& d, Number const& t) {
    return {a[0] + d[0] * t, a[1] + d[1] * t, a[2] + d[2] * t};
}
Point operator-(Point const& a, Point const& b) { return Along(a, b, -1); }
Number Dot(Point const& a, Point const& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
Number Square(Point const& a) { return Dot(a, a); }
Point Cross(Point const& a, Point const& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
/// Positive where a, b, c run counter-clockwise in the plane.
Number Turn(Point const& a, Point const& b, Point const& c) { return Cross(b - a, c - a)[2]; }

/// Finds x with a*x[0] + b*x[1] + c*x[2] = r, if the determinant, which it returns, is not 0.
Number Solve(Point const& a, Point const& b, Point const& c, Point const& r, Point& x) {
    Number determinant = Dot(a, Cross(b, c));
    std::array<Number, 3> const parts{Dot(r, Cross(b, c)), Dot(a, Cross(r, c)), Dot(a, Cross(b, r))};
    for (std::size_t i = 0; i < 3 && determinant != 0; ++i) x[i] = parts[i] / determinant;
    return determinant;
}

/// How deep a point, once projected, lies behind the edges through the first vertex and behind the third.
Point Depths(Exact in) {
    Point const a = in.Vec(), f = in.Vec() - a, g = in.Vec() - a;
    Point x;
    if (Solve(f, g, Cross(f, g), in.Vec() - a, x) == 0) return {-1, -1, -1};
    return {x[0], x[1], 1 - x[0] - x[1]};
}

/// A segment and a triangle. A hit is rounded, unless it is on the grid and the determinant a power of two.
int Pierces(Exact in) {
    Point const a = in.Vec(), f = in.Vec() - a, g = in.Vec() - a, start = in.Vec(), d = in.Vec() - start;
    Point x;
    Number const determinant = Solve(f, g, Point{} - d, start - a, x);
    if (determinant == 0) return 0;
    Number const least = std::min({x[0], x[1], Number(1 - x[0] - x[1]), x[2], Number(1 - x[2])});
    bool isExact = mpz_popcount(mpz_class(abs(determinant.get_num())).get_mpz_t()) == 1;
    for (Number const& h : Along(start, d, x[2]))
        isExact = isExact && abs(h) <= 1 && Number(h * 8).get_den() == 1;
    return isExact || abs(least) > Number(1, 256) ? least > 0 : kLeftOut;
}

/// Clips a polygon, or the segment or point to which it shrinks, by the box widened by margin: is any left?
int Reaches(std::vector<Point> polygon, Bounds const& box, Number const& margin) {
    for (std::size_t face = 0; face < 6; ++face) {
        auto const depth = [&, i = face / 2](Point const& p) -> Number {
            return margin + (face % 2 == 0 ? p[i] - box[0][i] : box[1][i] - p[i]);
        };
        std::vector<Point> kept;
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            Point const &p = polygon[i], &q = polygon[(i + 1) % polygon.size()];
            Number const a = depth(p), b = depth(q);
            if (a >= 0) kept.push_back(p);
            if (a * b < 0) kept.push_back(Along(p, q - p, a / (a - b)));
        }
        polygon = kept;
    }
    return !polygon.empty();
}
int Holds(Bounds const& box, Point const& p) { return Reaches({p}, box, 0); }

/// The least width, over the first axes, of what two boxes share; negative where they are apart.
Number Overlap(Bounds const& a, Bounds const& b, std::size_t axes) {
    Number least = 8;
    for (std::size_t i = 0; i < axes; ++i)
        least = std::min<Number>(least, std::min(a[1][i], b[1][i]) - std::max(a[0][i], b[0][i]));
    return least;
}

/// A segment meets a line where its ends do not lie strictly on one side.
int Crossing(Exact in) {
    Point const a = in.Flat(), b = in.Flat(), c = in.Flat(), d = in.Flat();
    if (c == d) return kLeftOut;
    if (Turn({}, b - a, d - c) == 0) return Turn(c, d, a) == 0 ? LINE2D_COLLINEAR : LINE2D_PARALLEL;
    bool const onThis = Turn(c, d, a) * Turn(c, d, b) <= 0;
    bool const onOther = Turn(a, b, c) * Turn(a, b, d) <= 0;
    if (onThis) return onOther ? LINE2D_SEGMENTS_CROSS : LINE2D_CROSSES_THIS_SEGMENT;
    return onOther ? LINE2D_CROSSES_OTHER_SEGMENT : LINE2D_LINES_CROSS;
}

constexpr int kCases = 100000;
int failures = 0;

/// Asks the library, in float and in double, and the judge; each answer from 0 to last must occur.
template <class Answer, class Judge>
void Check(char const* family, std::size_t last, Answer answer, Judge judge) {
    std::mt19937 random(1);
    std::map<int, int> answers;
    int wrong = 0;
    for (int i = 0; i < kCases; ++i) {
        std::array<int, 16> k{};
        int const reach = 1 << random() % 4;
        for (int& number : k) number = static_cast<int>(random() >> 4U) % (2 * reach + 1) - reach;
        int const expected = judge(Exact{k.data()});
        ++answers[expected];
        int const single = answer(Input<float>{k.data()});
        int const wide = answer(Input<double>{k.data()});
        if (expected == kLeftOut || (single == expected && wide == expected) || wrong++ > 0) continue;
        std::printf("%s: %d, but float %d, double %d for, in eighths,", family, expected, single, wide);
        for (int const number : k) std::printf(" %d", number);
        std::puts("");
    }
    int const leftOut = std::exchange(answers[kLeftOut], 0);
    answers.erase(kLeftOut);
    std::printf("%-27s %d cases, %d wrong, answers", family, kCases - leftOut, wrong);
    for (auto const& [value, count] : answers) std::printf("  %d: %d", value, count);
    std::puts("");
    failures += wrong > 0 || answers.size() != last + 1;
}

/// The signs of a plane's equation at two points.
std::array<int, 2> Sides(Exact in) {
    Point const n = in.Vec();
    Number const d = in();
    Number const first = Dot(n, in.Vec()) + d;
    return {sgn(first), sgn(Number(Dot(n, in.Vec()) + d))};
}
/// The sign of a direction's way along a plane's normal.
int Turned(Exact in) {
    Point const n = in.Vec();
    ++in.next;
    return sgn(Dot(n, in.Vec()));
}

void CheckPlane() {
    auto const classify = [](auto in) { return int(in.Plane().ClassifyPoint(in.Vec())); };
    Check("Plane3D::ClassifyPoint", 2, classify, [](Exact in) {
        int const side = Sides(in)[0];
        if (side == 0) return int(EIR_ON_PLANE);
        return int(side > 0 ? EIR_IN_FRONT : EIR_BEHIND);
    });
    auto const faces = [](auto in) {
        auto const plane = in.Plane();
        return IsFrontFacing(plane, in.Vec());
    };
    Check("IsFrontFacing", 1, faces, [](Exact in) { return int(Turned(in) <= 0); });
    auto const meets = [](auto in) {
        auto const plane = in.Plane();
        auto const line = in.Line();
        auto hit = line.end;
        return plane.Intersects(line.start, line.end, hit);
    };
    Check("Plane3D, line", 1, meets, [](Exact in) { return int(Turned(in) != 0); });
    auto const cuts = [](auto in) {
        auto const plane = in.Plane();
        auto const line = in.Line();
        auto hit = line.end;
        return plane.Intersects(line, hit);
    };
    Check("Plane3D, segment", 1, cuts, [](Exact in) { return int(Sides(in)[0] * Sides(in)[1] < 0); });
}

void CheckBox() {
    auto const holds = [](auto in) { return in.Box().IsInside(in.Vec()); };
    Check("AABBox3D::IsInside", 1, holds, [](Exact in) {
        Bounds const box = in.Box();
        return Holds(box, in.Vec());
    });
    auto const overlaps = [](auto in) { return in.Box().Intersects(in.Box()); };
    Check("AABBox3D, box", 1, overlaps, [](Exact in) {
        Bounds const box = in.Box();
        return int(Overlap(box, in.Box(), 3) >= 0);
    });
    auto const meets = [](auto in) { return in.Box().Intersects(in.Line()); };
    Check("AABBox3D, segment", 1, meets, [](Exact in) {
        Bounds const box = in.Box();
        std::vector<Point> const segment{in.Vec(), in.Vec()};
        int const near = Reaches(segment, box, Number(1, 1024));
        return near == Reaches(segment, box, Number(-1, 1024)) ? near : kLeftOut;
    });
}

void CheckTriangle() {
    auto const holds = [](auto in) {
        auto const triangle = in.Triangle();
        return IsInsideTriangle(triangle, in.Vec());
    };
    Check("IsInsideTriangle", 1, holds, [](Exact in) {
        Point const d = Depths(in);
        return int(d[0] > 0 && d[1] > 0 && d[2] > 0);
    });
    auto const holdsFast = [](auto in) {
        auto const triangle = in.Triangle();
        return IsInsideTriangleFast(triangle, in.Vec());
    };
    Check("IsInsideTriangleFast", 1, holdsFast, [](Exact in) {
        Point const d = Depths(in);
        Point const a = in.Vec(), f = in.Vec() - a, g = in.Vec() - a, q = in.Vec() - a;
        if ((d[0] == 0 && Dot(q, f) == 0) || (d[1] == 0 && Dot(q, g) == 0)) return kLeftOut;
        return int(d[0] >= 0 && d[1] >= 0 && d[2] > 0);
    });
    auto const pierced = [](auto in) {
        auto const triangle = in.Triangle();
        auto const line = in.Line();
        auto hit = line.end;
        return triangle.Intersects(line, hit);
    };
    Check("Triangle3D, segment", 1, pierced, Pierces);
    auto const overlaps = [](auto in) { return in.Triangle().Intersects(in.Box()); };
    Check("Triangle3D, box", 1, overlaps, [](Exact in) {
        std::vector<Point> const triangle{in.Vec(), in.Vec(), in.Vec()};
        return Reaches(triangle, in.Box(), 0);
    });
}

void CheckSphere() {
    auto const holds = [](auto in) { return in.Sphere().IsInside(in.Vec()); };
    Check("Sphere3D::IsInside", 1, holds, [](Exact in) {
        Point const c = in.Vec();
        Number const r = in();
        return int(Square(in.Vec() - c) < r * r);
    });
    auto const overlaps = [](auto in) { return in.Sphere().Intersects(in.Sphere()); };
    Check("Sphere3D, sphere", 1, overlaps, [](Exact in) {
        Point const a = in.Vec();
        Number const r = abs(in());
        Point const apart = in.Vec() - a;
        Number const reach = r + abs(in());
        return int(Square(apart) < reach * reach);
    });
    auto const meets = [](auto in) {
        auto const sphere = in.Sphere();
        return IsIntersectingWithSphere(in.Line(), sphere.center, sphere.radius, 0);
    };
    Check("IsIntersectingWithSphere", 1, meets, [](Exact in) {
        Point const c = in.Vec();
        Number const r = in();
        Point const a = in.Vec(), d = in.Vec() - a;
        Number const t = Square(d) == 0 ? Number(0) : Number(Dot(c - a, d) / Square(d));
        Number const depth = r * r - Square(Along(a, d, t) - c);
        return abs(depth) > Number(1, 16384) ? int(depth > 0) : kLeftOut;
    });
}

void CheckPlanar() {
    auto const crosses = [](auto in) { return int(in.FlatLine().Intersection(in.FlatLine())); };
    Check("Line2D::Intersection", 5, crosses, Crossing);
    // No point of the grid lies off a line, but nearer to it than this.
    auto const classify = [](auto in) { return int(in.FlatLine().ClassifyPoint(in.Flat(), 0.001F)); };
    Check("Line2D::ClassifyPoint", 2, classify, [](Exact in) {
        Point const a = in.Flat(), b = in.Flat();
        Number const turn = Turn(a, b, in.Flat());
        if (turn == 0) return int(POINT2D_ON_LINE);
        return int(turn < 0 ? POINT2D_POSITIVE_SIDE : POINT2D_NEGATIVE_SIDE);
    });
    auto const holds = [](auto in) { return in.Rect().IsPointInside(in.Position()); };
    Check("Rect2D::IsPointInside", 1, holds, [](Exact in) {
        Bounds const rect = in.Rect();
        return Holds(rect, in.Flat());
    });
    auto const collides = [](auto in) { return in.Rect().IsCollided(in.Rect()); };
    Check("Rect2D::IsCollided", 1, collides, [](Exact in) {
        Bounds const a = in.Rect(), b = in.Rect();
        bool const hasInside = Overlap(a, a, 2) > 0 && Overlap(b, b, 2) > 0;
        return hasInside ? int(Overlap(a, b, 2) > 0) : kLeftOut;
    });
}

}  // namespace

int main() {
    CheckPlane();
    CheckBox();
    CheckTriangle();
    CheckSphere();
    CheckPlanar();
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
