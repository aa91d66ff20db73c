# Debian packages, a component each: `./run package` builds them of build/release and the site.
set(QVXS_SITE "" CACHE PATH "The reference site, for the package of documentation")

# component, package, section, depends, summary, description
set(QVXS_PACKAGES)
macro(qvxs_package component package section depends summary description)
  list(APPEND QVXS_PACKAGES ${component})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${depends}")
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${summary}\n${description}")
  install(FILES ${PROJECT_SOURCE_DIR}/cmake/debian/copyright DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}
    COMPONENT ${component} EXCLUDE_FROM_ALL)
  install(FILES ${PROJECT_BINARY_DIR}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}
    COMPONENT ${component} EXCLUDE_FROM_ALL)
endmacro()

set(version ${PROJECT_VERSION})
qvxs_package(core libqvxcore1 libs ""
  "allocator and threads of the qvxs signal library"
  "The core library allocates aligned memory and keeps the threads among which the\nsignal library divides long vectors.")
qvxs_package(library libqvxs7 libs "libqvxcore1 (= ${version})"
  "vector primitives for signal processing"
  "Plain C functions over vectors of samples: arithmetic, conversion, statistics,\nFourier transforms, filters, resampling, windows and generators. There is a\nvariant each for SSSE3, AVX2 and AVX-512, of which the loader takes the best.")
qvxs_package(dev libqvxs-dev libdevel "libqvxs7 (= ${version}), libqvxcore1 (= ${version})"
  "vector primitives for signal processing - development files"
  "Headers, a CMake package, pkg-config files, and a manual page for each stem of\nfunctions.")
if(QVXS_SITE)
  install(DIRECTORY ${QVXS_SITE}/ DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/libqvxs-doc/html COMPONENT doc EXCLUDE_FROM_ALL)
  qvxs_package(doc libqvxs-doc doc ""
    "vector primitives for signal processing - reference"
    "The reference of the qvxs library as static pages with a search of their own:\nfunctions, contracts, performance and examples.")
  set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
endif()
if(QVXS_PYTHON)
  qvxs_package(python python3-qvxs python "libqvxs7 (>= ${version}), libqvxcore1 (>= ${version}), libc6, libstdc++6, python3 (>= 3.11), python3 (<< 3.12), python3-numpy (>= 1:1.24), python3-numpy-abi9"
    "vector primitives for signal processing - Python module"
    "The functions of the qvxs library over NumPy arrays.")
endif()
foreach(component core library)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_STRICT_PERMISSION ON)
endforeach()
# What packages of programs will depend on.
set(soname_core "libqvxcore 1 libqvxcore1")
set(soname_library "libqvxs 7 libqvxs7")
foreach(component core library)
  file(WRITE ${PROJECT_BINARY_DIR}/debian/${component}/shlibs "${soname_${component}} (>= ${version})\n")
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/${component}/shlibs ${PROJECT_SOURCE_DIR}/cmake/debian/triggers)
endforeach()

find_program(QVXS_GZIP gzip REQUIRED)
execute_process(COMMAND ${QVXS_GZIP} -9nc ${PROJECT_SOURCE_DIR}/cmake/debian/changelog OUTPUT_FILE ${PROJECT_BINARY_DIR}/changelog.gz)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qvxs)
set(CPACK_PACKAGE_VENDOR qvxs)
set(CPACK_PACKAGE_CONTACT "qvxs maintainers <maintainers@qvxs.example>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_SOURCE_DIR}/build/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL ${QVXS_PACKAGES})
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian/staged.cmake)
include(CPack)
