# Every fuzz target also builds as a plain program that replays the saved
# inputs of fuzz/regressions/<target>; CTest runs each one.
set(TAMRIX_FUZZ_TARGETS image preparation expression program record_file text_store container)
foreach(target IN LISTS TAMRIX_FUZZ_TARGETS)
  add_executable(replay_${target} ${PROJECT_SOURCE_DIR}/fuzz/${target}_fuzzer.cpp
                                  ${PROJECT_SOURCE_DIR}/fuzz/replay_main.cpp)
  target_include_directories(replay_${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests/unit ${PROJECT_SOURCE_DIR}/fuzz)
  target_link_libraries(replay_${target} PRIVATE tamrix_core)
  target_compile_options(replay_${target} PRIVATE ${TAMRIX_WARNINGS})
  add_test(NAME fuzz_regressions.${target}
           COMMAND replay_${target} ${PROJECT_SOURCE_DIR}/fuzz/regressions/${target})
  # Some inputs once hung: one that hangs again fails rather than stalls.
  set_tests_properties(fuzz_regressions.${target} PROPERTIES TIMEOUT 120)
endforeach()

# The picture loader of the Qt layer, replayed through its codec.
if(TARGET tamrix_qt)
  add_executable(replay_picture_file ${PROJECT_SOURCE_DIR}/fuzz/picture_file_fuzzer.cpp
                                     ${PROJECT_SOURCE_DIR}/fuzz/replay_main.cpp)
  target_include_directories(replay_picture_file PRIVATE ${PROJECT_SOURCE_DIR}/fuzz)
  target_link_libraries(replay_picture_file PRIVATE tamrix_qt)
  target_compile_options(replay_picture_file PRIVATE ${TAMRIX_WARNINGS})
  add_test(NAME fuzz_regressions.picture_file
           COMMAND replay_picture_file ${PROJECT_SOURCE_DIR}/fuzz/regressions/picture_file)
  set_tests_properties(fuzz_regressions.picture_file PROPERTIES TIMEOUT 120)
endif()
