# The manual pages, one a stem and a link to it for each function, made of the public headers.
if(NOT QVXS_MAN)
  return()
endif()
find_package(Python3 REQUIRED COMPONENTS Interpreter)
file(GLOB manual_sources CONFIGURE_DEPENDS include/qvx/*.h traits/*.traits)
set(manual_tools tools/docs/man.py tools/interface/headers.py tools/interface/traits.py)
list(TRANSFORM manual_tools PREPEND ${PROJECT_SOURCE_DIR}/)
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/man/man7/qvxs.7.gz
  COMMAND ${CMAKE_COMMAND} -E env PYTHONDONTWRITEBYTECODE=1 ${Python3_EXECUTABLE} tools/docs/man.py include/qvx traits ${PROJECT_VERSION}
    ${PROJECT_BINARY_DIR}/man
  WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
  DEPENDS ${manual_sources} ${manual_tools} COMMENT "Writing the manual pages" VERBATIM)
add_custom_target(man ALL DEPENDS ${PROJECT_BINARY_DIR}/man/man7/qvxs.7.gz)
