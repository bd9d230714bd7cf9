// Judges the decisions of the shapes by exact rational arithmetic: see scripts/exhaust.
//
// Inputs are eighths from -1 to 1, where coincidences abound and float's sums and products are exact. Each
// expected answer follows from what the shapes are, as sets of points, and from who owns the boundary. With
// the argument `near` inputs are random but for one that lies on a boundary as well as rounding lets it, and
// it is counted how many decisions are wrong, of the library and of glm.

#include <vertra/vertra.h>

#include <glm/glm.hpp>
#define GLM_ENABLE_EXPERIMENTAL
#include <glm/gtc/type_ptr.hpp>
#include <glm/gtx/intersect.hpp>
#include <gmpxx.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <string_view>
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
    double const* next;
    T operator()() { return T(*next++); }
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
    glm::vec<2, T> GlmFlat() { return {(*this)(), (*this)()}; }
    glm::vec<3, T> Glm() { return {(*this)(), (*this)(), (*this)()}; }
};

template <>
struct Input<Number> {
    double const* next;
    Number operator()() { return *next++; }
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

int cases = 100000;
using Numbers = std::array<double, 16>;  // of a case
int failures = 0;

/// Asks the library, in float and in double, and the judge; each answer from 0 to last must occur.
template <class Answer, class Judge>
void Check(char const* family, std::size_t last, Answer answer, Judge judge) {
    std::mt19937 random(1);
    std::map<int, int> answers;
    int wrong = 0;
    for (int i = 0; i < cases; ++i) {
        Numbers k{};
        int const reach = 1 << random() % 4;
        for (double& number : k) number = (static_cast<int>(random() >> 4U) % (2 * reach + 1) - reach) / 8.0;
        int const expected = judge(Exact{k.data()});
        ++answers[expected];
        int const single = answer(Input<float>{k.data()});
        int const wide = answer(Input<double>{k.data()});
        if (expected == kLeftOut || (single == expected && wide == expected) || wrong++ > 0) continue;
        std::printf("%s: %d, but float %d, double %d for, in eighths,", family, expected, single, wide);
        for (double const number : k) std::printf(" %g", 8 * number);
        std::puts("");
    }
    int const leftOut = std::exchange(answers[kLeftOut], 0);
    answers.erase(kLeftOut);
    std::printf("%-27s %d cases, %d wrong, answers", family, cases - leftOut, wrong);
    for (auto const& [value, count] : answers) std::printf("  %d: %d", value, count);
    std::puts("");
    failures += wrong > 0 || answers.size() != last + 1;
}

constexpr auto kCuts = [](auto in) {
    auto const plane = in.Plane();
    auto const line = in.Line();
    auto hit = line.end;
    return plane.Intersects(line, hit);
};
constexpr auto kSphereHolds = [](auto in) { return in.Sphere().IsInside(in.Vec()); };
constexpr auto kSphereMeets = [](auto in) {
    auto const sphere = in.Sphere();
    return IsIntersectingWithSphere(in.Line(), sphere.center, sphere.radius, 0);
};

/// How far inside a sphere a point lies, as a difference of squares; or the point of a line that is nearest
/// to the center.
Number PointDepth(Exact in) {
    Point const c = in.Vec();
    Number const r = in();
    return r * r - Square(in.Vec() - c);
}
Number LineDepth(Exact in) {
    Point const c = in.Vec();
    Number const r = in();
    Point const a = in.Vec(), d = in.Vec() - a;
    Number const t = Square(d) == 0 ? Number(0) : Number(Dot(c - a, d) / Square(d));
    return r * r - Square(Along(a, d, t) - c);
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
    Check("Plane3D, segment", 1, kCuts, [](Exact in) { return int(Sides(in)[0] * Sides(in)[1] < 0); });
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
    Check("Sphere3D::IsInside", 1, kSphereHolds, [](Exact in) { return int(PointDepth(in) > 0); });
    auto const overlaps = [](auto in) { return in.Sphere().Intersects(in.Sphere()); };
    Check("Sphere3D, sphere", 1, overlaps, [](Exact in) {
        Point const a = in.Vec();
        Number const r = abs(in());
        Point const apart = in.Vec() - a;
        Number const reach = r + abs(in());
        return int(Square(apart) < reach * reach);
    });
    Check("IsIntersectingWithSphere", 1, kSphereMeets, [](Exact in) {
        Number const depth = LineDepth(in);
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

/// The shares of wrong decisions, the library's and glm's, in per cent. The judge tells by its sign.
template <class T>
std::array<double, 2> WrongShares(auto toBoundary, auto answer, auto peer, auto judge) {
    std::mt19937_64 random(1);
    int judged = 0;
    std::array<int, 2> wrong{};
    for (int i = 0; i < cases; ++i) {
        Numbers k{};
        for (double& number : k) number = double(random() >> 11U) * 0x1p-52 - 1;
        toBoundary(k);
        for (double& number : k) number = double(T(number));
        Number const exact = judge(Exact{k.data()});
        if (exact == 0) continue;
        ++judged;
        wrong[0] += answer(Input<T>{k.data()}) != (exact > 0);
        wrong[1] += peer(Input<T>{k.data()}) != (exact > 0);
    }
    return {100.0 * wrong[0] / judged, 100.0 * wrong[1] / judged};
}
void Count(char const* family, auto toBoundary, auto answer, auto peer, auto judge) {
    auto const single = WrongShares<float>(toBoundary, answer, peer, judge);
    auto const wide = WrongShares<double>(toBoundary, answer, peer, judge);
    std::printf("%-26s float: %6.3f %% wrong, glm %6.3f %%  double: %6.3f %%, glm %6.3f %%\n", family,
                single[0], single[1], wide[0], wide[1]);
}

/// Three numbers as a vector, to read or to set.
struct At {
    Numbers& numbers;
    std::size_t first;
    glm::dvec3 operator()() const { return glm::make_vec3(&numbers[first]); }
    void operator()(glm::dvec3 const& v) const { std::copy_n(glm::value_ptr(v), 3, &numbers[first]); }
};

void CountNear() {
    auto const toEdge = [](Numbers& k) {  // of the triangle at 0, the line from 9 along 12
        double const place = 1.5 * (k[15] + 1);
        auto const edge = static_cast<std::size_t>(place);
        At const a{k, 3 * edge}, b{k, (3 * edge + 3) % 9};
        At{k, 12}(glm::mix(a(), b(), place - double(edge)) - At{k, 9}());
    };
    auto const pierces = [](auto in) {
        auto const triangle = in.Triangle();
        auto const start = in.Vec();
        auto hit = start;
        return triangle.Intersects(start, in.Vec(), hit);
    };
    auto const glmPierces = [](auto in) {
        auto const a = in.Glm(), b = in.Glm(), c = in.Glm(), start = in.Glm();
        auto hit = start;  // of glm the distance, and the place in the triangle
        glm::vec<2, decltype(hit.x)> place;
        return glm::intersectRayTriangle(start, in.Glm(), a, b, c, place, hit.x);
    };
    Count("line, edge of a triangle", toEdge, pierces, glmPierces, [](Exact in) {
        Point const a = in.Vec(), f = in.Vec() - a, g = in.Vec() - a, start = in.Vec();
        Point x;
        if (Solve(f, g, Point{} - in.Vec(), start - a, x) == 0) return Number(0);
        return std::min({x[0], x[1], Number(1 - x[0] - x[1])});
    });

    auto const toPlane = [](Numbers& k) {  // at 0, the end of the segment at 7
        At const n{k, 0}, p{k, 7};
        p(p() - n() * ((glm::dot(n(), p()) + k[3]) / glm::dot(n(), n())));
    };
    auto const glmCuts = [](auto in) {
        auto const n = in.Glm();
        auto const d = in();
        auto const first = glm::dot(n, in.Glm()) + d;
        return first * (glm::dot(n, in.Glm()) + d) < 0;
    };
    Count("segment up to a plane", toPlane, kCuts, glmCuts, [](Exact in) {
        auto const sides = Sides(in);
        return Number(-sides[0] * sides[1]);
    });

    auto const toSphere = [](Numbers& k) {  // at 0, the point at 4
        At const c{k, 0}, p{k, 4};
        p(c() + std::abs(k[3]) * glm::normalize(p()));
    };
    auto const glmHolds = [](auto in) {
        auto const c = in.Glm();
        auto const r = in.Radius();
        return glm::distance(c, in.Glm()) < r;
    };
    Count("point, sphere", toSphere, kSphereHolds, glmHolds, PointDepth);

    auto const toTangent = [](Numbers& k) {  // to the sphere at 0, the line through 4 and 7
        At const c{k, 0}, p{k, 4}, q{k, 7};
        glm::dvec3 const out = glm::normalize(p()), along = glm::cross(out, q());
        p(c() + std::abs(k[3]) * out - along);
        q(p() + 2.0 * along);
    };
    auto const glmMeets = [](auto in) {
        auto const c = in.Glm();
        auto const r = in.Radius();
        auto const start = in.Glm();
        auto hit = start;  // of glm the distance
        return glm::intersectRaySphere(start, glm::normalize(in.Glm() - start), c, r * r, hit.x);
    };
    Count("line, sphere", toTangent, kSphereMeets, glmMeets, LineDepth);

    auto const toLine = [](Numbers& k) {  // from 0 to 2, the point at 4
        for (std::size_t i = 0; i < 2; ++i) k[4 + i] = glm::mix(k[i], k[2 + i], k[15]);
    };
    auto const isRight = [](auto in) {
        return in.FlatLine().ClassifyPoint(in.Flat(), 0) == POINT2D_POSITIVE_SIDE;
    };
    auto const glmIsRight = [](auto in) {
        auto const a = in.GlmFlat(), b = in.GlmFlat(), c = in.GlmFlat();
        return glm::determinant(glm::mat<2, 2, decltype(in())>(b - a, c - a)) < 0;
    };
    Count("point, side of a 2D line", toLine, isRight, glmIsRight, [](Exact in) {
        Point const a = in.Flat(), b = in.Flat();
        return Number(-Turn(a, b, in.Flat()));
    });
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 2 && std::string_view(argv[2]) == "near") {
        CountNear();
        return EXIT_SUCCESS;
    }
    if (argc > 2) cases = std::stoi(argv[2]);
    CheckPlane();
    CheckBox();
    CheckTriangle();
    CheckSphere();
    CheckPlanar();
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
