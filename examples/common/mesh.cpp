#include "common/mesh.h"

#include "common/run.h"

#include <tiny_obj_loader.h>

#include <cctype>
#include <charconv>
#include <cmath>
#include <fstream>
#include <sstream>
#include <string_view>
#include <system_error>

namespace example {
namespace {

using vertra::Vec4D;

/// True when the whole text is a number that the type can hold.
template <class Number>
bool Reads(std::string_view text, Number& number) {
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

/// True for the line of a vertex or a face. Refuses what the loader would let pass in silence: it takes "nan"
/// and a missing coordinate for 0, an index for its remainder by 2^32, and drops a quad that lacks a vertex.
bool Check(std::string const& line, long long& vertices) {
    constexpr int kMostCorners = 1000;  // ours: the time to cut up a polygon can grow with their cube
    std::istringstream words(line);
    std::string word;
    words >> word;
    if (word == "v") {
        for (char const axis : {'x', 'y', 'z'}) {
            double number = 0;
            if (!(words >> word) || !Reads(word, number) || !(std::abs(number) <= kFarthest)) {
                throw Error(std::string("the vertex's ") + axis + " is not a number between -1e9 and 1e9");
            }
        }
        ++vertices;
        return true;
    }
    if (word == "f") {
        int corners = 0;
        for (; words >> word; ++corners) {
            long long index = 0;
            if (!Reads(std::string_view(word).substr(0, word.find('/')), index)) {
                throw Error("the face has a corner without an index");
            }
            if (index == 0 || index > vertices || index < -vertices) {
                throw Error("the face's index " + std::to_string(index) +
                            " is out of range: " + std::to_string(vertices) + " vertices stand above it");
            }
        }
        if (corners < 3 || corners > kMostCorners) {
            throw Error("the face has " + std::to_string(corners) + " corners, not 3 to 1000");
        }
        return true;
    }
    return false;
}

/// The lines of vertices and faces, checked; all others are left blank.
std::stringstream ReadChecked(std::string const& path) {
    std::ifstream file = Open(path);
    std::stringstream checked;
    std::string line;
    long long vertices = 0;
    for (int number = 1; std::getline(file, line); ++number) {
        for (char& c : line) {
            if (std::iscntrl(static_cast<unsigned char>(c))) c = ' ';
        }
        try {
            checked << (Check(line, vertices) ? line : "") << '\n';
        } catch (Error const& error) {
            throw Error(path + ":" + std::to_string(number) + ": " + error.what());
        }
    }
    if (file.bad()) throw Error(path + ": cannot be read");
    return checked;
}

}  // namespace

Mesh LoadMesh(std::string const& path) {
    tinyobj::attrib_t attributes;
    std::vector<tinyobj::shape_t> shapes;
    std::vector<tinyobj::material_t> materials;
    std::string warning;
    std::string error;
    std::stringstream checked = ReadChecked(path);
    if (!tinyobj::LoadObj(&attributes, &shapes, &materials, &warning, &error, &checked)) {
        throw Error(path + ": " + error.substr(0, error.find('\n')));
    }

    Mesh mesh;
    mesh.vertices = attributes.vertices.size() / 3;
    for (tinyobj::shape_t const& shape : shapes) {
        auto const& indices = shape.mesh.indices;
        auto const number = [&](std::size_t i) {
            return static_cast<std::size_t>(indices.at(i).vertex_index);
        };
        auto const vertex = [&](std::size_t i) {
            auto const& v = attributes.vertices;
            return Vec4D<double>(v.at(3 * i), v.at(3 * i + 1), v.at(3 * i + 2));
        };
        for (std::size_t i = 0; i < indices.size(); i += 3) {
            auto const [a, b, c] =
                mesh.corners.emplace_back(std::array{number(i), number(i + 1), number(i + 2)});
            mesh.triangles.emplace_back(vertex(a), vertex(b), vertex(c));
        }
    }
    if (mesh.triangles.empty()) throw Error(path + ": holds no triangles");

    for (auto const& triangle : mesh.triangles) {
        for (Vec4D<double> const& vertex : triangle.vertex) mesh.box.Add(vertex);
    }
    if (!(Len(mesh.box.GetExtent()) > 1 / kFarthest)) throw Error(path + ": is too small, or a single point");
    mesh.sphere.FitAround(mesh.box);
    return mesh;
}

}  // namespace example
