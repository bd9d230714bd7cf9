# cmake --install: libraries, headers, the package for find_package(vertra CONFIG), vertra.pc for pkg-config.
include(CMakePackageConfigHelpers)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)

install(TARGETS vertra keel EXPORT vertra
        LIBRARY COMPONENT library NAMELINK_COMPONENT development
        FILE_SET HEADERS FILE_SET interop)

# Nothing else is needed, so the exported targets are the whole package configuration.
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vertra)
install(EXPORT vertra NAMESPACE vertra:: FILE vertra-config.cmake DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/vertra-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/vertra-config-version.cmake DESTINATION ${package_dir})

# The prefix is found from where vertra.pc lies, and so survives --prefix, DESTDIR and a move of the whole tree.
# APPEND leaves a directory that was given as an absolute path alone.
file(RELATIVE_PATH prefix_from_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
set(libdir "\${prefix}")
cmake_path(APPEND libdir ${CMAKE_INSTALL_LIBDIR})
set(includedir "\${prefix}")
cmake_path(APPEND includedir ${CMAKE_INSTALL_INCLUDEDIR})
configure_file(cmake/vertra.pc.in vertra.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vertra.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# What shows our types in a debugger. gdb looks for its part under its data directory, by the library's whole path.
set(gdb_dir "\${CMAKE_INSTALL_PREFIX}")
cmake_path(APPEND gdb_dir ${CMAKE_INSTALL_LIBDIR})
install(FILES debugger/gdb.py RENAME $<TARGET_FILE_NAME:vertra>-gdb.py
        DESTINATION ${CMAKE_INSTALL_DATADIR}/gdb/auto-load${gdb_dir})
install(FILES debugger/vertra.natvis DESTINATION ${CMAKE_INSTALL_DATADIR}/vertra)

# The manual, where scripts/docs has built it.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/docs/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libvertra-doc/html
        COMPONENT documentation OPTIONAL)
