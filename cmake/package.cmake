# cpack -G DEB: the packages libvertra0.1, libvertra-dev and libvertra-doc. scripts/package makes and tries them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The vertra developers <developers@vertra.invalid>" CACHE STRING "Maintainer of the packages")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_COMPONENTS_ALL library development documentation)

set(library_package libvertra${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}) # as the SONAME has it
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
file(WRITE ${PROJECT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/triggers)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "The shared library, and the engine's foundation library that it needs.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvertra-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "The headers, the printers for gdb, and what build systems look for.")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME libvertra-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_DOCUMENTATION_DESCRIPTION "The manual, as pages for a browser.")

# What every package has at Debian, and a plain installation has not.
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${PROJECT_BINARY_DIR}/changelog.Debian
"vertra (${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * CHANGELOG.md of the sources tells what is new.

 -- ${CPACK_PACKAGE_CONTACT}  ${now}
")
execute_process(COMMAND gzip -9nf ${PROJECT_BINARY_DIR}/changelog.Debian)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} key)
    set(directory ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${key}_PACKAGE_NAME})
    install(FILES LICENSE RENAME copyright DESTINATION ${directory} COMPONENT ${component} EXCLUDE_FROM_ALL)
    install(FILES ${PROJECT_BINARY_DIR}/changelog.Debian.gz DESTINATION ${directory}
            COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()
# A flag that silences a warning of callers is meant.
file(WRITE ${PROJECT_BINARY_DIR}/overrides
     "libvertra-dev: pkg-config-bad-directive -Wno-ambiguous-reversed-operator *\n")
install(FILES ${PROJECT_BINARY_DIR}/overrides RENAME libvertra-dev
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT development EXCLUDE_FROM_ALL)
include(CPack)
