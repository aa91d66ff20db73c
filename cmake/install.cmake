# Headers, the core library, every variant where the loader looks for it, pkg-config files, a CMake package and manual pages. The
# components are the packages of cmake/package.cmake.
include(CMakePackageConfigHelpers)

if(NOT "u8" IN_LIST QVXS_VARIANTS)
  install(CODE "message(FATAL_ERROR \"Programs link against u8, which this build lacks: add it to QVXS_VARIANTS\")")
  return()
endif()

install(DIRECTORY include/qvx DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT dev)
if(QVXS_MAN)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/man/ DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT dev FILES_MATCHING PATTERN *.gz)
endif()

# A program's own run path does not reach the libraries of its libraries, so each variant brings the way to the core with it.
set_target_properties(qvxs_u8 PROPERTIES EXPORT_NAME qvxs)
install(TARGETS qvxcore EXPORT qvxs LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT core NAMELINK_COMPONENT dev)
install(TARGETS qvxs_u8 EXPORT qvxs LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT dev)
foreach(variant IN LISTS QVXS_VARIANTS)
  set_target_properties(qvxs_${variant} PROPERTIES INSTALL_RPATH $ORIGIN)
  if(NOT variant STREQUAL u8)
    set_target_properties(qvxs_${variant} PROPERTIES INSTALL_RPATH $ORIGIN/../..)
    install(TARGETS qvxs_${variant} LIBRARY DESTINATION ${QVXS_LIBDIR_${variant}} COMPONENT library NAMELINK_SKIP)
  endif()
endforeach()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/qvxs)
install(EXPORT qvxs NAMESPACE qvx:: FILE qvxsConfig.cmake DESTINATION ${package_dir} COMPONENT dev)
write_basic_package_version_file(qvxsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/qvxsConfigVersion.cmake DESTINATION ${package_dir} COMPONENT dev)

# The prefix is where the file lies, so an installed tree may be moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE QVXS_LIBDIR)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_INCLUDEDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE QVXS_INCLUDEDIR)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE QVXS_PREFIX)
foreach(package qvxs qvxcore)
  configure_file(cmake/${package}.pc.in ${package}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
endforeach()
