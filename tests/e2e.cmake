# The tests that need the Qt run-time: the Qt layer's own tests, and one
# end-to-end test per tests/programs/<name>.expected, run by run_program.sh
# (which tells what files make a case).
add_subdirectory(qt)

# Checks sampled pixels of a snapshot against a <name>.pixels file.
find_package(Qt6 REQUIRED COMPONENTS Gui)
add_executable(tamrix_snapshot_pixels tools/snapshot_pixels.cpp)
target_link_libraries(tamrix_snapshot_pixels PRIVATE Qt6::Gui)
target_compile_options(tamrix_snapshot_pixels PRIVATE ${TAMRIX_WARNINGS})

file(GLOB TAMRIX_E2E_CASES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/programs/*.expected)
foreach(expected IN LISTS TAMRIX_E2E_CASES)
  string(REGEX REPLACE "\\.expected$" "" case_path ${expected})
  get_filename_component(case_name ${case_path} NAME)
  add_test(NAME e2e.${case_name}
    COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/run_program.sh
      $<TARGET_FILE:tamrix> $<TARGET_FILE:tamrix-pack> ${case_path}
      ${CMAKE_CURRENT_BINARY_DIR}/e2e/${case_name} $<TARGET_FILE:tamrix_snapshot_pixels>)
  set_tests_properties(e2e.${case_name} PROPERTIES TIMEOUT 60
    ENVIRONMENT "TAMRIX_DB=$<TARGET_FILE:tamrix-db>")
endforeach()

# Two programs add records to one record file side by side.
add_test(NAME e2e.concurrent_records
  COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/concurrency/two_writers.sh
    $<TARGET_FILE:tamrix-pack> $<TARGET_FILE:tamrix-db> ${CMAKE_CURRENT_BINARY_DIR}/e2e/concurrent_records)
set_tests_properties(e2e.concurrent_records PROPERTIES TIMEOUT 120)

# The examples on a real X display, where xvfb-run is installed.
find_program(TAMRIX_XVFB_RUN xvfb-run)
if(TAMRIX_XVFB_RUN)
  foreach(example IN ITEMS draw buttons sprites form)
    add_test(NAME examples_on_xvfb.${example}
      COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/run_example_on_xvfb.sh
        $<TARGET_FILE:tamrix-pack> $<TARGET_FILE:tamrix_snapshot_pixels> ${example}
        ${CMAKE_CURRENT_BINARY_DIR}/examples/${example})
    set_tests_properties(examples_on_xvfb.${example} PROPERTIES TIMEOUT 90)
  endforeach()
endif()

# The library whose functions the API command's case calls, built where the
# case finds it: two folders above the folder that it runs in.
add_library(tamrix_api_test SHARED ${CMAKE_CURRENT_SOURCE_DIR}/api/api_test_library.cpp)
set_target_properties(tamrix_api_test PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})

# The SQL cases on SQLite through ODBC and on a throwaway PostgreSQL server,
# natively and through ODBC, and two programs writing one table at once.
add_test(NAME e2e.sql_servers
  COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/sql/sql_servers.sh
    $<TARGET_FILE:tamrix-pack> ${CMAKE_CURRENT_BINARY_DIR}/e2e/sql_servers)
set_tests_properties(e2e.sql_servers PROPERTIES TIMEOUT 240 SKIP_RETURN_CODE 77)

# The SQL shop example on a real X display.
if(TAMRIX_XVFB_RUN)
  add_test(NAME examples_on_xvfb.sqlshop
    COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/run_example_on_xvfb.sh
      $<TARGET_FILE:tamrix-pack> $<TARGET_FILE:tamrix_snapshot_pixels> sqlshop
      ${CMAKE_CURRENT_BINARY_DIR}/examples/sqlshop)
  set_tests_properties(examples_on_xvfb.sqlshop PROPERTIES TIMEOUT 90)
endif()

# A writer killed while it adds records, and the repair of its file.
add_test(NAME e2e.killed_writer_repair
  COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/concurrency/killed_writer.sh
    $<TARGET_FILE:tamrix-pack> $<TARGET_FILE:tamrix-db> ${CMAKE_CURRENT_BINARY_DIR}/e2e/killed_writer_repair)
set_tests_properties(e2e.killed_writer_repair PROPERTIES TIMEOUT 180)

# tamrix-pack's refusals of outputs that are no regular files and of sources
# larger than memory.
add_test(NAME packer_refusals
  COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/packer_refusals.sh $<TARGET_FILE:tamrix-pack>
    ${CMAKE_CURRENT_BINARY_DIR}/packer_refusals $<$<BOOL:${TAMRIX_SANITIZE}>:sanitized>)
