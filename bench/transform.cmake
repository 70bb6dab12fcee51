# One N = 4096 inversion (table cached and rebuilt) against a plain O(N^2)
# DFT and FFTW's backward transform of the same size. FFTW is linked to this
# benchmark only, as the reference.
find_package(PkgConfig REQUIRED)
pkg_check_modules(FFTW3 REQUIRED IMPORTED_TARGET fftw3)
add_executable(transform_bench ${CMAKE_CURRENT_LIST_DIR}/transform_bench.cpp)
target_link_libraries(transform_bench
  PRIVATE lapdesk_transform PkgConfig::FFTW3 lapdesk_bench_ratio_table lapdesk_warnings)
