# Headers, the core library, every variant where the loader looks for it, pkg-config files and a CMake package.
include(CMakePackageConfigHelpers)

install(DIRECTORY include/qvx DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS qvxcore EXPORT qvxs LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
foreach(variant IN LISTS QVXS_VARIANTS)
  if(variant STREQUAL u8)
    set(namelink "")
  else()
    set(namelink NAMELINK_SKIP)  # programs link against the one in the plain folder
  endif()
  install(TARGETS qvxs_${variant} LIBRARY DESTINATION ${QVXS_LIBDIR_${variant}} ${namelink})
endforeach()
install(EXPORT qvxs NAMESPACE qvx:: FILE qvxsTargets.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/qvxs)

configure_package_config_file(cmake/qvxsConfig.cmake.in qvxsConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/qvxs PATH_VARS CMAKE_INSTALL_INCLUDEDIR CMAKE_INSTALL_LIBDIR)
write_basic_package_version_file(qvxsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/qvxsConfig.cmake ${PROJECT_BINARY_DIR}/qvxsConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/qvxs)

foreach(package qvxs qvxcore)
  configure_file(cmake/${package}.pc.in ${package}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
