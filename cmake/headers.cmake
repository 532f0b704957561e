# Every header alone, with no other one before it: what tools/check --headers builds. A header that
# lives on what its sources include first doesn't compile here.
file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}
     src/*.h tests/*.h examples/*.h bench/*.h fuzz/*.h)
set(header_sources)
foreach(header ${headers})
  set(source ${CMAKE_BINARY_DIR}/headers/${header}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${CMAKE_SOURCE_DIR}/${header}\"\n")
  list(APPEND header_sources ${source})
endforeach()
add_library(headers OBJECT EXCLUDE_FROM_ALL ${header_sources})
target_compile_options(headers PRIVATE -O0)
target_include_directories(headers PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests
                           ${CMAKE_SOURCE_DIR}/examples ${CMAKE_SOURCE_DIR}/bench
                           ${CMAKE_SOURCE_DIR}/fuzz)
# Of our own libraries none: they needn't be built for this.
target_link_libraries(headers PRIVATE Qt6::Widgets Qt6::PrintSupport Qt6::Svg Qt6::Test
                                      SQLite::SQLite3 GTest::gtest benchmark::benchmark)
