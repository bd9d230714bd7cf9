// Which triangle of a mesh lies under a pixel of its picture?

#include "common/camera.h"
#include "common/mesh.h"
#include "common/options.h"
#include "common/run.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <iostream>
#include <optional>
#include <string_view>

namespace {

using example::Camera;
using example::Mesh;
using vertra::Line3D;
using vertra::Vec4D;

/// What a line of sight meets first.
struct Pick {
    std::optional<std::size_t> triangle;  ///< its number in the mesh, from 0
    Vec4D<double> point;                  ///< where it is hit
    std::size_t tests = 0;                ///< of triangles
};

/// The triangle nearest to the start of the segment. None is tried where the sphere or the box around them is
/// missed.
Pick PickTriangle(Mesh const& mesh, Line3D<double> sight) {
    Pick pick;
    Vec4D<double> entry;
    if (!mesh.sphere.Intersects(sight.start, Normalize(sight.end - sight.start), entry) ||
        !mesh.box.Intersects(sight))
        return pick;
    for (auto const& triangle : mesh.triangles) {
        Vec4D<double> point;
        if (triangle.Intersects(sight, point)) {
            pick.triangle = pick.tests;
            pick.point = sight.end = point;  // from now on only a nearer triangle can be hit
        }
        ++pick.tests;
    }
    return pick;
}

std::ostream& operator<<(std::ostream& out, Vec4D<double> const& v) {
    return out << '(' << v.x << ", " << v.y << ", " << v.z << ')';
}

void PrintMesh(Mesh const& mesh) {
    std::cout << "mesh    " << mesh.vertices << " vertices, " << mesh.triangles.size() << " triangles\n"
              << "box     " << mesh.box.min << " to " << mesh.box.max << '\n';
}

void PrintPick(Mesh const& mesh, Camera const& camera, Line3D<double> const& sight) {
    auto const start = std::chrono::steady_clock::now();
    Pick const pick = PickTriangle(mesh, sight);
    std::chrono::duration<double> const elapsed = std::chrono::steady_clock::now() - start;

    std::cout << "eye     " << camera.eye << '\n';
    if (pick.triangle) {
        std::cout << "hit     triangle " << *pick.triangle << " at " << pick.point << ", distance "
                  << GetDistanceBetween(camera.eye, pick.point) << '\n';
    } else {
        std::cout << "no hit\n";
    }
    double const seconds = std::max(elapsed.count(), 1e-9);
    std::cout << "tests   " << pick.tests << " triangles in " << seconds * 1e6 << " us, "
              << static_cast<double>(pick.tests) / seconds / 1e6 << " million a second\n";
}

/// A character a pixel: blank for no hit, else the denser the more squarely the triangle faces the eye.
void PrintMap(Mesh const& mesh, Camera const& camera, int width, int height) {
    constexpr std::string_view kRamp = ".:-=+*#%@";
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            Line3D<double> const sight = camera.LineOfSight((x + 0.5) / width, (y + 0.5) / height);
            Pick const pick = PickTriangle(mesh, sight);
            if (!pick.triangle) {
                std::cout << ' ';
                continue;
            }
            Vec4D<double> const normal = Normalize(Normal(mesh.triangles[*pick.triangle]));
            Vec4D<double> const direction = Normalize(sight.end - sight.start);
            double const cosine = std::abs(normal * direction);
            std::cout << kRamp[std::min(static_cast<std::size_t>(cosine * kRamp.size()), kRamp.size() - 1)];
        }
        std::cout << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Tells which triangle of a mesh lies under a pixel of its picture.", "pick");
    example::Options options;
    std::optional<std::array<int, 2>> pixel;
    std::optional<std::array<int, 2>> map;
    options.AddTo(app);
    app.add_option("--pixel", pixel, "Column and row, from 0 at the upper left; by default the middle");
    app.add_option("--map", map, "Print the whole picture instead, as so many characters and lines")
        ->check(CLI::Range(1, 1000))
        ->excludes("--pixel")
        ->excludes("--size");

    return example::Run(app, argc, argv, [&] {
        Mesh const mesh = example::LoadMesh(options.file);
        if (map) {
            auto const [width, height] = *map;
            // A character is about twice as high as it is wide.
            PrintMap(mesh, options.MakeCamera(mesh.box, width / (2.0 * height)), width, height);
            return;
        }
        auto const [width, height] = options.size;
        auto const [x, y] = pixel.value_or(std::array{width / 2, height / 2});
        if (x < 0 || x >= width || y < 0 || y >= height) {
            throw example::Error("--pixel: outside of the picture, which has " + std::to_string(width) +
                                 " x " + std::to_string(height) + " pixels");
        }
        Camera const camera = options.MakeCamera(mesh.box, 1.0 * width / height);
        PrintMesh(mesh);
        PrintPick(mesh, camera, camera.LineOfSight((x + 0.5) / width, (y + 0.5) / height));
    });
}
