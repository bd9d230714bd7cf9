#include "picture.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>

namespace pictures {
namespace {

constexpr char const* kHead =
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"480\" height=\"%d\" viewBox=\"0 0 480 %d\">\n"
    "<style>\n"
    "svg{font:15px sans-serif}\n"
    "path,circle{fill:none;stroke:currentColor;stroke-width:2;stroke-linejoin:round;stroke-linecap:round}\n"
    "text{fill:currentColor}\n"
    ".ink{color:#1f2328}.grey{color:#7d8590}.blue{color:#0a5fd0}.orange{color:#c24e00}.green{color:#17803d}\n"
    ".area{fill:currentColor;fill-opacity:.16}.full,.dot{fill:currentColor}.ring{fill:#fff}\n"
    ".bare{stroke:none}.thin{stroke-width:1}.dash{stroke-dasharray:5 5}\n"
    ".mid{text-anchor:middle}.end{text-anchor:end}.code{font-family:monospace;font-size:14px}\n"
    "</style>\n"
    "<rect x=\".5\" y=\".5\" width=\"479\" height=\"%d\" rx=\"8\" fill=\"#fdfdfb\" stroke=\"#c8ccd0\"/>\n";

/// To a tenth of a unit, so that the file shows what the eye can.
std::string Number(float x) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%g", static_cast<double>(std::round(x * 10) / 10 + 0.0F));
    return text.data();
}

std::string Number(Vec2 const& p) { return Number(p.x) + " " + Number(p.y); }

std::string Escaped(std::string_view text) {
    std::string result;
    for (char const c : text) {
        if (c == '&') {
            result += "&amp;";
        } else if (c == '<') {
            result += "&lt;";
        } else {
            result += c;
        }
    }
    return result;
}

std::string Attribute(std::string_view name, std::string_view value) {
    std::string text(" ");
    return text.append(name).append("=\"").append(value).append("\"");
}

}  // namespace

void Picture::Flat(float x, float y, float scale) {
    view.Eye();
    view.Trans(x, y, 0);
    view.Scale(scale, -scale, scale);
}

void Picture::Seen(Vec const& eye, float x, float y, float scale) {
    Matrix projection;
    projection.Frustum(-1, 1, -1, 1, 4, 40);
    Flat(x, y, scale);
    Matrix camera;
    camera.Look(eye, Vec(), Vec(0, 1, 0));
    view = camera * projection * view;
}

Vec2 Picture::At(Vec const& point) const {
    Vec clip = point;
    clip *= view;
    return Vec2(clip.x, clip.y) / clip.w;
}

void Picture::Put(Points const& points, std::string_view first, std::string_view last,
                  std::string_view style) {
    std::string path;
    for (Vec const& point : points) path += (path.empty() ? std::string(first) : "L") + Number(At(point));
    body += "<path" + Attribute("class", style) + Attribute("d", path + std::string(last)) + "/>\n";
}

void Picture::Arrow(Vec const& a, Vec const& b, std::string_view style) {
    Segment(a, b, style);
    Vec2 const tip = At(b);
    Vec2 const back = vertra::Normalize(At(a) - tip) * 9;
    Vec2 const across = Vec2(-back.y, back.x) * 0.45F;
    Matrix const kept = view;
    view.Eye();
    Vec2 const left = tip + back + across;
    Vec2 const right = tip + back - across;
    Fill({Vec(tip.x, tip.y, 0), Vec(left.x, left.y, 0), Vec(right.x, right.y, 0)},
         std::string(style) + " full");
    view = kept;
}

void Picture::Dot(Vec const& at, std::string_view style, float radius) {
    Vec2 const p = At(at);
    body += "<circle" + Attribute("class", style) + Attribute("cx", Number(p.x)) +
            Attribute("cy", Number(p.y)) + Attribute("r", Number(radius)) + "/>\n";
}

void Picture::Label(Vec const& at, std::string_view text, std::string_view style, float dx, float dy) {
    Vec2 const p = At(at) + Vec2(dx, dy);
    body += "<text" + Attribute("class", style) + Attribute("x", Number(p.x)) + Attribute("y", Number(p.y)) +
            ">" + Escaped(text) + "</text>\n";
}

void Picture::Save(std::string const& path) const {
    std::array<char, 2048> head{};
    std::snprintf(head.data(), head.size(), kHead, height, height, height - 1);
    std::ofstream file(path, std::ios::binary);
    file << head.data() << body << "</svg>\n" << std::flush;
    if (!file) throw std::runtime_error(path + ": cannot be written");
}

Points Arc(Vec const& middle, float radius, float from, float to) {
    Points points;
    constexpr int kSteps = 24;
    for (int i = 0; i <= kSteps; ++i) {
        Matrix turn;
        turn.ZRot(Degrees(from + (to - from) * static_cast<float>(i) / kSteps));
        points.push_back(middle + Vec(radius, 0, 0) * turn);
    }
    return points;
}

}  // namespace pictures

/// pictures DIRECTORY: draws the pictures of docs/, from what the library computes.
int main(int count, char** arguments) {
    if (count != 2) {
        std::fputs("usage: pictures DIRECTORY\n", stderr);
        return EXIT_FAILURE;
    }
    try {
        std::string const directory = std::string(arguments[1]) + "/";
        pictures::DrawConventions(directory);
        pictures::DrawTypes(directory);
    } catch (std::exception const& error) {
        std::fprintf(stderr, "pictures: %s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
