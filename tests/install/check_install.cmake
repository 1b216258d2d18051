# Installs the build into a scratch prefix and checks what a desktop and a shell need of
# it: the programs, the manual page, the desktop entry that passes the file, and the KQX
# file type known to the MIME database (made anew by the install).
# Arguments: -DBUILD=<build folder> -DPREFIX=<scratch prefix> -DWITH_QT=ON|OFF
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${PREFIX}"
                RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "the install failed: ${result}")
endif()
set(expected bin/kqx share/man/man1/kqx.1)
if(WITH_QT)
  list(APPEND expected bin/KQEdit share/applications/kqedit.desktop
       share/mime/packages/kqedit-kqx.xml share/icons/hicolor/scalable/apps/kqedit.svg
       share/kqedit/manual/index.html)
endif()
foreach(f IN LISTS expected)
  if(NOT EXISTS "${PREFIX}/${f}")
    message(FATAL_ERROR "not installed: ${f}")
  endif()
endforeach()
if(WITH_QT)
  file(READ "${PREFIX}/share/applications/kqedit.desktop" entry)
  if(NOT entry MATCHES "Exec=KQEdit %f" OR NOT entry MATCHES "MimeType=application/x-kqx;")
    message(FATAL_ERROR "the desktop entry does not pass KQX files to KQEdit")
  endif()
  find_program(update_mime update-mime-database)
  if(update_mime)
    file(READ "${PREFIX}/share/mime/globs2" globs)
    if(NOT globs MATCHES "application/x-kqx:\\*\\.kqx")
      message(FATAL_ERROR "the MIME database does not know *.kqx")
    endif()
  endif()
endif()
execute_process(COMMAND "${PREFIX}/bin/kqx" --version RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "the installed kqx --version exits ${result}")
endif()
file(REMOVE_RECURSE "${PREFIX}")
