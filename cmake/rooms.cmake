# A room is a folder of sources that becomes a static library of its own. Its work lies in the
# folder, its windows in the subfolder forms/. A room may use the rooms that it names here.

# Headers that a whole kind of source includes are compiled once for all of that kind.
option(TOVA_PCH "Precompiled Qt and test headers" ON)
# What is tested is built as the beekeeper gets it; the tests themselves needn't be quick.
set(test_options -O0)
set(kinds kern fenster kerntest fenstertest)
set(uses_kern Qt6::Core)
set(uses_fenster Qt6::Widgets Qt6::PrintSupport Qt6::Svg)
set(uses_kerntest ${uses_kern} GTest::gtest)
set(uses_fenstertest ${uses_fenster} GTest::gtest)
foreach(kind ${kinds})
  file(WRITE ${CMAKE_BINARY_DIR}/pch/${kind}.cpp.neu "// stands for the headers of cmake/pch/${kind}.h\n")
  file(COPY_FILE ${CMAKE_BINARY_DIR}/pch/${kind}.cpp.neu ${CMAKE_BINARY_DIR}/pch/${kind}.cpp
       ONLY_IF_DIFFERENT)
  add_library(pch_${kind} OBJECT ${CMAKE_BINARY_DIR}/pch/${kind}.cpp)
  if(kind MATCHES "test$")
    target_compile_options(pch_${kind} PRIVATE ${test_options})
  endif()
  target_link_libraries(pch_${kind} PUBLIC ${uses_${kind}})
  if(TOVA_PCH)
    target_precompile_headers(pch_${kind} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/pch/${kind}.h)
  endif()
endforeach()

# tova_pch(TARGET KIND): the target's sources are compiled with the headers of that kind.
function(tova_pch target kind)
  if(TOVA_PCH)
    target_link_libraries(${target} PRIVATE ${uses_${kind}})
    target_precompile_headers(${target} REUSE_FROM pch_${kind})
  endif()
endfunction()

# tova_room(NAME FOLDER LIBRARIES...): every .cpp directly in src/FOLDER.
function(tova_room name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp
                                      ${CMAKE_SOURCE_DIR}/src/${folder}/*.h)
  file(GLOB resources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.qrc)
  add_library(${name} STATIC ${sources} ${resources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  if(resources)
    set_target_properties(${name} PROPERTIES AUTORCC ON)
  endif()
  foreach(source ${sources})  # the meta-object compiler runs only where there is something for it
    file(STRINGS ${source} objects REGEX "Q_OBJECT" LIMIT_COUNT 1)
    if(objects)
      set_target_properties(${name} PROPERTIES AUTOMOC ON)
    endif()
  endforeach()
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARGN})
  if(folder MATCHES "(forms|controls)$")
    tova_pch(${name} fenster)
  else()
    tova_pch(${name} kern)
  endif()
endfunction()

# The tests that need no window, which the sanitizers check too.
add_custom_target(arbeit)

# tova_test(FOLDER LIBRARIES...): one GoogleTest program per folder of tests/, offscreen and in a
# folder of its own, so that what is written into the current folder stays out of the sources. Its
# main is one of tests/gemeinsam, or a main.cpp of the folder where another is needed.
function(tova_test folder)
  set(kind kern)
  if(folder MATCHES "(forms|controls|contract)$")
    set(kind fenster)
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${folder}/*.cpp)
  # Only the sources that ask where they lie are told: the others compile alike in every checkout.
  foreach(source ${sources})
    file(STRINGS ${source} asks REGEX "TOVA_(TESTDATEN|QUELLEN)" LIMIT_COUNT 1)
    if(asks)
      set_source_files_properties(${source} PROPERTIES COMPILE_DEFINITIONS
        "TOVA_TESTDATEN=\"${CMAKE_SOURCE_DIR}/tests/${folder}\";TOVA_QUELLEN=\"${CMAKE_SOURCE_DIR}\"")
    endif()
  endforeach()
  string(REPLACE "/" "_" name "test_${folder}")
  add_executable(${name} ${sources})
  if(NOT EXISTS ${CMAKE_SOURCE_DIR}/tests/${folder}/main.cpp)
    if(kind STREQUAL fenster)
      target_link_libraries(${name} PRIVATE tova_main_forms)
    else()
      target_link_libraries(${name} PRIVATE tova_main_kern)
    endif()
  endif()
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${ARGN} GTest::gtest)
  target_compile_options(${name} PRIVATE ${test_options})
  tova_pch(${name} ${kind}test)
  set(run ${CMAKE_CURRENT_BINARY_DIR}/run/${name})
  file(MAKE_DIRECTORY ${run})
  add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY ${run})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=Europe/Berlin" TIMEOUT 600)
  if(kind STREQUAL kern)
    add_dependencies(arbeit ${name})
    set_tests_properties(${name} PROPERTIES LABELS arbeit)
  endif()
endfunction()
