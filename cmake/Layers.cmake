# The layers, as the build enforces them. Each library gets an include root of its own
# (build/include/TARGET) that holds links to its own folders only; a source sees the
# headers of its own folders and of the libraries it links, and nothing above them, so an
# include against the direction of the layers does not compile. kqx's library, the Qt
# binding and the desktop program's start-up have roots of their own too; only the tests,
# benchmarks and fuzz targets see the whole tree. cmake/CheckIncludes.cmake checks every
# include against the direction as a test of its own.
function(kq_expose_headers target)
  set(root ${CMAKE_BINARY_DIR}/include/${target})
  foreach(path IN LISTS ARGN)
    get_filename_component(parent ${root}/${path} DIRECTORY)
    # A folder once linked whole and now exposed file by file: drop the old link.
    if(IS_SYMLINK ${parent})
      file(REMOVE ${parent})
    endif()
    file(MAKE_DIRECTORY ${parent})
    if(NOT EXISTS ${root}/${path})
      file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${path} ${root}/${path} SYMBOLIC)
    endif()
  endforeach()
  target_include_directories(${target} PUBLIC ${root})
endfunction()
