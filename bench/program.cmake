# Programs as F(p) against the same F written in C++.
add_executable(program_bench ${CMAKE_CURRENT_LIST_DIR}/program_bench.cpp)
target_link_libraries(program_bench
  PRIVATE lapdesk_transform_program lapdesk_bench_ratio_table lapdesk_warnings)

# The same data sets with the calculator window as the program's view.
if(LAPDESK_GUI)
  add_executable(window_bench ${CMAKE_CURRENT_LIST_DIR}/window_bench.cpp)
  target_link_libraries(window_bench
    PRIVATE lapdesk_calculator lapdesk_transform_window lapdesk_transform_program lapdesk_bench_ratio_table
            lapdesk_warnings)
endif()
