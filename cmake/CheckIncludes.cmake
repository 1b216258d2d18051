cmake_minimum_required(VERSION 3.25)
# Checks every #include "..." of the sources against the direction of the layers.
#   cmake -DSOURCE_DIR=<repository> -P cmake/CheckIncludes.cmake
# Each folder lists the folders it may include besides itself. A folder below may never
# include one above it. A source folder without a rule fails the check, so that a new
# folder is placed in the layers when it is added. Tests, benchmarks and fuzz targets
# may include everything.

# ---- The rule table: folder, then the folders it may include (lowest layers first).
set(KQ_UI ui/platform ui/model)
set(KQ_CORE ${KQ_UI} document)
set(KQ_BELOW_EDITOR ${KQ_CORE} text speech/codec dialogs speech/forms sim textform prompts)
set(KQ_BELOW_TOOLS ${KQ_BELOW_EDITOR} editor ui/headless check diagram check/forms)

set(KQ_RULE_text "")  # the text formats read by several layers: the standard library only
set(KQ_RULE_ui/platform "")
set(KQ_RULE_ui/model ui/platform)
set(KQ_RULE_ui/headless ${KQ_UI})
set(KQ_RULE_ui/qt ${KQ_UI})
set(KQ_RULE_document ${KQ_UI})
set(KQ_RULE_speech/codec ui/platform)  # the codec needs nothing of the document
set(KQ_RULE_dialogs ${KQ_CORE} speech/codec)
set(KQ_RULE_speech/forms ${KQ_CORE} speech/codec dialogs)
set(KQ_RULE_sim ${KQ_CORE} text speech/codec)
# The work beyond the description that the editor's menus use: below the editor.
set(KQ_RULE_textform ${KQ_CORE} ui/headless speech/codec dialogs)
set(KQ_RULE_prompts ${KQ_CORE} text speech/codec)
set(KQ_RULE_editor ${KQ_BELOW_EDITOR})
# The checks stand on compile, the diagram on the checks' flow, their windows on both.
set(KQ_RULE_check ${KQ_BELOW_EDITOR} editor ui/headless)
set(KQ_RULE_diagram ${KQ_CORE} check)
set(KQ_RULE_check/forms ${KQ_BELOW_EDITOR} editor ui/headless check diagram)
# kqx links the checks and the diagram, not their windows.
set(KQ_RULE_cli ${KQ_BELOW_EDITOR} editor ui/headless check diagram)
set(KQ_RULE_app ${KQ_BELOW_TOOLS} ui/qt)
set(KQ_UNRESTRICTED tests bench fuzz)

# ---- The check.
if(NOT SOURCE_DIR)
  message(FATAL_ERROR "SOURCE_DIR is not set")
endif()
set(KQ_FOLDERS text ui/platform ui/model ui/headless ui/qt document speech/codec dialogs speech/forms
    sim textform prompts editor check diagram check/forms cli app)

# The folder of a path relative to the repository: the longest folder with a rule that it
# lies in, or its first component when none fits.
function(kq_folder_of path out)
  set(best "")
  foreach(folder IN LISTS KQ_FOLDERS)
    string(LENGTH "${folder}/" n)
    string(SUBSTRING "${path}" 0 ${n} head)
    string(LENGTH "${best}" b)
    if(head STREQUAL "${folder}/" AND n GREATER b)
      set(best ${folder})
    endif()
  endforeach()
  if(best STREQUAL "")
    string(REGEX REPLACE "/.*" "" best "${path}")
  endif()
  set(${out} ${best} PARENT_SCOPE)
endfunction()

file(GLOB_RECURSE sources RELATIVE ${SOURCE_DIR}
     ${SOURCE_DIR}/*.h ${SOURCE_DIR}/*.cpp)
set(faults 0)
foreach(source IN LISTS sources)
  if(source MATCHES "^build/|^\\.|/build/")
    continue()
  endif()
  kq_folder_of(${source} from)
  if(from IN_LIST KQ_UNRESTRICTED)
    continue()
  endif()
  if(NOT from IN_LIST KQ_FOLDERS)
    message(SEND_ERROR "${source}: the folder ${from} has no place in the layers "
                       "(add its rule to cmake/CheckIncludes.cmake)")
    math(EXPR faults "${faults} + 1")
    continue()
  endif()
  set(allowed ${from} ${KQ_RULE_${from}})
  file(STRINGS ${SOURCE_DIR}/${source} lines REGEX "^[ \t]*#[ \t]*include[ \t]*\"")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^[ \t]*#[ \t]*include[ \t]*\"([^\"]+)\".*" "\\1" included "${line}")
    if(NOT included MATCHES "/")
      continue()  # a header beside the source
    endif()
    kq_folder_of(${included} to)
    if(NOT to IN_LIST allowed)
      message(SEND_ERROR "${source}: includes ${included} (${from} may not include ${to})")
      math(EXPR faults "${faults} + 1")
    endif()
  endforeach()
endforeach()

if(faults GREATER 0)
  message(FATAL_ERROR "${faults} include(s) against the direction of the layers")
endif()
list(LENGTH sources n)
message(STATUS "Includes of ${n} files follow the layers")
