# Every fuzz target also builds as a plain program that replays the saved
# inputs of fuzz/regressions/<target>; CTest runs each one.
set(TAMRIX_FUZZ_TARGETS image preparation expression program)
foreach(target IN LISTS TAMRIX_FUZZ_TARGETS)
  add_executable(replay_${target} ${PROJECT_SOURCE_DIR}/fuzz/${target}_fuzzer.cpp
                                  ${PROJECT_SOURCE_DIR}/fuzz/replay_main.cpp)
  target_include_directories(replay_${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests/unit ${PROJECT_SOURCE_DIR}/fuzz)
  target_link_libraries(replay_${target} PRIVATE tamrix_core)
  add_test(NAME fuzz_regressions.${target}
           COMMAND replay_${target} ${PROJECT_SOURCE_DIR}/fuzz/regressions/${target})
endforeach()
