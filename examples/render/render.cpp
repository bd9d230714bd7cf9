// A picture of a mesh under three lights, as a PNG file.

#include "common/camera.h"
#include "common/mesh.h"
#include "common/options.h"
#include "common/run.h"
#include "render/look.h"
#include "render/picture.h"
#include "render/scene.h"

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <iomanip>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace {

using example::Camera;
using example::Color;
using example::Picture;
using example::Scene;

/// A bar that grows in one line of the terminal and leaves no trace; elsewhere nothing.
class Progress {
public:
    explicit Progress(int steps) : steps_(steps) {}
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;
    ~Progress() {
        if (isShown_) std::cerr << "\r\033[K";
    }

    void Show(int step) {
        constexpr int kWidth = 50;
        int const length = step * kWidth / steps_;
        if (!isShown_ || length == length_) return;
        length_ = length;
        std::cerr << "\r[" << std::left << std::setw(kWidth)
                  << std::string(static_cast<std::size_t>(length), '#') << ']' << std::flush;
    }

private:
    bool const isShown_ = isatty(STDERR_FILENO) != 0;
    int const steps_;
    int length_ = -1;
};

/// The mean of so many rays a side of the pixel, as a packed colour.
unsigned int RenderPixel(Scene const& scene, Camera const& camera, Picture const& picture, int x, int y,
                         int side) {
    // Ours, a shade off the middle: what a mesh has on an axis of the picture would else run through the
    // middle of pixels, and an edge belongs to neither of its triangles.
    constexpr double kRight = 0.0011;
    constexpr double kDown = 0.0007;
    Color sum(0, 0, 0, 0);
    for (int j = 0; j < side; ++j) {
        for (int i = 0; i < side; ++i) {
            double const across = x + (i + 0.5) / side + kRight;
            double const down = y + (j + 0.5) / side + kDown;
            sum += scene.See(camera.LineOfSight(across / picture.width, down / picture.height)) *
                   (1.0 / (side * side));
        }
    }
    AdjustBrightness(0.5 / 255, sum);  // packing truncates; so it rounds
    return static_cast<unsigned int>(sum);
}

/// Row by row on so many threads. Which of them draws a row makes no difference to it.
void Render(Scene const& scene, Camera const& camera, Picture& picture, int side, int threads) {
    Progress progress(picture.height);
    std::atomic<int> next = 0;
    auto const work = [&](Progress* shown) {
        for (int y = next++; y < picture.height; y = next++) {
            for (int x = 0; x < picture.width; ++x) {
                picture.Set(x, y, RenderPixel(scene, camera, picture, x, y, side));
            }
            if (shown != nullptr) shown->Show(y);
        }
    };
    std::vector<std::jthread> others;
    for (int i = 1; i < threads; ++i) others.emplace_back(work, nullptr);
    work(&progress);
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("Draws a picture of a mesh.", "render");
    example::Options options;
    example::Look look;
    std::string output = "render.png";
    bool isFlat = false;
    int side = 1;
    int threads = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    options.AddTo(app);
    app.add_option("--output", output, "The picture, a PNG file")
        ->check([](std::string const& path) { return path.empty() ? "needs a name" : ""; })
        ->capture_default_str();
    app.add_flag("--flat", isFlat, "Show the triangles as they are instead of smoothing them");
    app.add_option("--samples", side,
                   "The root of the number of rays a pixel: 3 smooths edges with 9 of them")
        ->check(CLI::Range(1, 16))
        ->capture_default_str();
    app.add_option("--threads", threads, "On how many to work; by default one a core")
        ->check(CLI::Range(1, 1024));
    look.AddTo(app);

    return example::Run(app, argc, argv, [&] {
        auto const [width, height] = options.size;
        example::Mesh const mesh = example::LoadMesh(options.file);
        Camera const camera = options.MakeCamera(mesh.box, 1.0 * width / height);
        Scene const scene(mesh, isFlat, look.MakeMaterial(), look.MakeLights(mesh.box), look.background);
        Picture picture(width, height);

        auto const start = std::chrono::steady_clock::now();
        Render(scene, camera, picture, side, threads);
        std::chrono::duration<double> const elapsed = std::chrono::steady_clock::now() - start;
        WritePng(picture, output);

        double const seconds = std::max(elapsed.count(), 1e-9);
        double const rays = 1.0 * width * height * side * side;
        std::cout << "mesh    " << mesh.triangles.size() << " triangles\n"
                  << "rays    " << std::setprecision(12) << rays << " in " << std::setprecision(3) << seconds
                  << " s, " << rays / seconds / 1e6 << " million a second\n"
                  << "picture " << output << ", " << width << " x " << height << '\n';
    });
}
