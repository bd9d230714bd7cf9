#include "render/look.h"

#include "common/mesh.h"
#include "common/options.h"
#include "common/run.h"

#include <charconv>
#include <cstdio>
#include <numbers>
#include <string>
#include <system_error>

namespace example {
namespace {

using vertra::Vec4D;

/// Reads RRGGBB.
unsigned int ParseColor(std::string const& option, std::string const& text) {
    unsigned int rgb = 0;
    char const* const end = text.data() + text.size();
    auto const [rest, error] = std::from_chars(text.data(), end, rgb, 16);
    if (text.size() != 6 || rest != end || error != std::errc()) {
        throw Error(option + ": needs six hexadecimal digits, RRGGBB, not " + text);
    }
    return rgb;
}

void AddColor(CLI::App& app, std::string const& name, unsigned int& color, std::string const& what) {
    char digits[7] = "";
    std::snprintf(digits, sizeof digits, "%06X", color);
    app.add_option_function<std::string>(
           name, [&color, name](std::string const& text) { color = ParseColor(name, text); }, what)
        ->type_name("RRGGBB")
        ->default_str(digits);
}

}  // namespace

void Look::AddTo(CLI::App& app) {
    AddColor(app, "--background", background, "The colour where there is nothing");
    AddColor(app, "--color", color, "The colour of the mesh");
    AddColor(app, "--highlight", highlight, "How it reflects the lights themselves; 000000 is dull");
    app.add_option("--shininess", shininess, "How small the reflections of the lights are")
        ->check(CLI::Range(1.0, 10000.0))
        ->capture_default_str();
    AddColor(app, "--ambient", ambient, "The light that comes from everywhere");
    app.add_option("--sun", sun, "The direction in which the sun shines")->capture_default_str();
    AddColor(app, "--sun-color", sunColor, "Its colour; 000000 switches a light off");
    app.add_option("--lamp", lamp, "Where the lamp is; by default on the left, in front of the mesh");
    AddColor(app, "--lamp-color", lampColor, "Its colour");
    app.add_option("--spot", spot, "Where the spot is; by default above the mesh");
    app.add_option("--spot-target", spotTarget, "What it points at; by default the middle of the mesh");
    AddColor(app, "--spot-color", spotColor, "Its colour");
    app.add_option(
           "--spot-cone", spotCone,
           "The angles of its cone in degrees, from side to side: where its full light ends, and all of it")
        ->check(CLI::Range(0.0, 180.0))
        ->capture_default_str();
}

Material Look::MakeMaterial() const {
    Material material;
    material.diffuse = color;
    material.ambient = color;
    material.specular = highlight;
    material.power = shininess;
    return material;
}

std::vector<Light> Look::MakeLights(vertra::AABBox3D<double> const& box) const {
    Vec4D<double> const center = box.Center();
    double const width = Len(box.GetExtent());
    auto const place = [&](char const* option, std::optional<Numbers> const& p,
                           Vec4D<double> const& fallback) {
        return p ? Point(option, *p) : center + fallback * width;
    };
    Vec4D<double> const sunward = Point("--sun", sun);
    if (!(Len(sunward) > 1 / kFarthest)) throw Error("--sun: needs a direction");
    Vec4D<double> const from = place("--spot", spot, Vec4D<double>(0.3, 1, 0.3));
    Vec4D<double> const to = place("--spot-target", spotTarget, Vec4D<double>());
    if (!(GetDistanceBetween(from, to) > 1 / kFarthest)) {
        throw Error(std::string(spot ? "--spot" : "--spot-target") +
                    ": the spot and its target are the same point");
    }

    // Half of a light arrives at the distance of the mesh's diagonal, a hundredth at the end of its range.
    double const square = 1 / (width * width);
    double const range = 10 * width;
    constexpr double kRadians = std::numbers::pi / 180;
    auto const [inner, outer] = spotCone;
    Color const black(0U);
    return {CreateDirectionalLight(Color(sunColor), Color(sunColor), Color(ambient), sunward),
            CreatePointLight(Color(lampColor), Color(lampColor), black, Vec4D<double>(),
                             place("--lamp", lamp, Vec4D<double>(-0.7, 0.1, 0.6)), range, 1, 1, 0, square),
            CreateSpotLight(Color(spotColor), Color(spotColor), black, to - from, from, range, 1, 1, 0,
                            square, inner * kRadians, outer * kRadians)};
}

}  // namespace example
