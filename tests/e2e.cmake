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
  foreach(example IN ITEMS draw buttons sprites)
    add_test(NAME examples_on_xvfb.${example}
      COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/run_example_on_xvfb.sh
        $<TARGET_FILE:tamrix-pack> $<TARGET_FILE:tamrix_snapshot_pixels> ${example}
        ${CMAKE_CURRENT_BINARY_DIR}/examples/${example})
    set_tests_properties(examples_on_xvfb.${example} PROPERTIES TIMEOUT 90)
  endforeach()
endif()
