# A room is a folder of sources that becomes a static library of its own. Its work lies in the
# folder, its windows in the subfolder forms/. A room may use the rooms that it names here.

# tova_room(NAME FOLDER LIBRARIES...): every .cpp directly in src/FOLDER.
function(tova_room name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp
                                      ${CMAKE_SOURCE_DIR}/src/${folder}/*.h)
  file(GLOB resources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.qrc)
  add_library(${name} STATIC ${sources} ${resources})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON LINKER_LANGUAGE CXX)
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARGN})
endfunction()

# tova_test(FOLDER LIBRARIES...): one GoogleTest program per folder of tests/, offscreen and in a
# folder of its own, so that what is written into the current folder stays out of the sources. Its
# main is one of tests/gemeinsam, or a main.cpp of the folder where another is needed.
function(tova_test folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${folder}/*.cpp)
  if(NOT EXISTS ${CMAKE_SOURCE_DIR}/tests/${folder}/main.cpp)
    if(folder MATCHES "(forms|controls)$")
      list(APPEND sources ${CMAKE_SOURCE_DIR}/tests/gemeinsam/main_forms.cpp)
    else()
      list(APPEND sources ${CMAKE_SOURCE_DIR}/tests/gemeinsam/main_kern.cpp)
    endif()
  endif()
  string(REPLACE "/" "_" name "test_${folder}")
  add_executable(${name} ${sources})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE
    TOVA_TESTDATEN="${CMAKE_SOURCE_DIR}/tests/${folder}" TOVA_QUELLEN="${CMAKE_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE ${ARGN} GTest::gtest)
  set(run ${CMAKE_CURRENT_BINARY_DIR}/run/${name})
  file(MAKE_DIRECTORY ${run})
  add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY ${run})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=Europe/Berlin" TIMEOUT 600)
endfunction()
