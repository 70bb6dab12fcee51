# Programs as F(p) against the same F written in C++.
add_executable(program_bench ${CMAKE_CURRENT_LIST_DIR}/program_bench.cpp)
target_link_libraries(program_bench
  PRIVATE lapdesk_transform_program lapdesk_bench_ratio_table lapdesk_warnings)
