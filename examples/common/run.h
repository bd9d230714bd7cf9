#pragma once

#include <CLI/CLI.hpp>

#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>

namespace example {

/// What the user must mend, in one line that names the file or the option.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Opens a file to read. Throws an Error that names it.
std::ifstream Open(std::string const& path);

/// Parses the options, then does the program's work. Returns the exit status: 2 with a line on stderr for
/// whatever was thrown, so a program that prints only when nothing can go wrong any more leaves stdout empty.
int Run(CLI::App& app, int argc, char** argv, std::function<void()> const& work);

}  // namespace example
