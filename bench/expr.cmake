# Expression evaluations per second on typical calculator expressions.
add_executable(expr_bench ${CMAKE_CURRENT_LIST_DIR}/expr_bench.cpp)
target_link_libraries(expr_bench PRIVATE lapdesk_expr benchmark::benchmark_main lapdesk_warnings)
