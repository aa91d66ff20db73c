# In the system's folders the loader finds the core library itself, and libraries are no programs.
file(GLOB_RECURSE libraries ${CPACK_TEMPORARY_DIRECTORY}/*.so.*)
foreach(library IN LISTS libraries)
  if(NOT IS_SYMLINK ${library})
    file(RPATH_REMOVE FILE ${library})
    file(CHMOD ${library} PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
  endif()
endforeach()
