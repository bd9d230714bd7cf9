#include "common/run.h"

#include <exception>
#include <filesystem>
#include <iostream>

namespace example {

std::ifstream Open(std::string const& path) {
    if (!std::filesystem::exists(path)) throw Error(path + ": there is no such file");
    if (!std::filesystem::is_regular_file(path)) throw Error(path + ": is not a file");
    std::ifstream file(path);
    if (!file) throw Error(path + ": cannot be opened");
    return file;
}

int Run(CLI::App& app, int argc, char** argv, std::function<void()> const& work) {
    try {
        app.parse(argc, argv);
        work();
        if (!std::cout.flush()) throw Error("standard output: cannot be written");
        return 0;
    } catch (CLI::Success const& help) {
        return app.exit(help);
    } catch (std::exception const& error) {
        std::cerr << app.get_name() << ": " << error.what() << '\n';
        return 2;
    }
}

}  // namespace example
