#include "common/run.h"

#include <exception>
#include <iostream>

namespace example {

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
