"""Unrun; see ../README.md."""

import re
from pathlib import Path

from conan import ConanFile
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy

CHECKOUT = Path(__file__).resolve().parents[2]


class Vertra(ConanFile):
    name = "vertra"
    description = "2D and 3D primitives for game engines, in float and double"
    license = "MIT"
    package_type = "shared-library"
    settings = "os", "compiler", "build_type", "arch"

    def set_version(self):
        text = (CHECKOUT / "vertra/version.h").read_text()
        self.version = ".".join(re.findall(r"#define VERTRA_VERSION_\w+ (\d+)", text))

    def export_sources(self):
        for pattern in ["CMakeLists.txt", "LICENSE", "cmake/*", "debugger/*", "keel/*", "vertra/*"]:
            copy(self, pattern, CHECKOUT, self.export_sources_folder)

    def validate(self):
        check_min_cppstd(self, 20)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables.update(VERTRA_BUILD_TESTS=False, VERTRA_BUILD_EXAMPLES=False)
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", self.source_folder, str(Path(self.package_folder) / "licenses"))

    def package_info(self):
        # The package configuration of the library itself carries the flags that callers need.
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs = ["lib/cmake/vertra"]
