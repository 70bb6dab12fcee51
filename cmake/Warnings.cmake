# One interface target carries the warning flags (and the sanitizers) for every
# target of the project, so no layer can quietly build with fewer checks.
add_library(lapdesk_warnings INTERFACE)
target_compile_options(lapdesk_warnings INTERFACE -Wall -Wextra)
# Warnings fail the developer and CI builds; a package built by another
# compiler version must not fail on a warning that version adds.
if(LAPDESK_WERROR)
  target_compile_options(lapdesk_warnings INTERFACE -Werror)
endif()

# GCC 12 reports -Wrestrict inside libstdc++'s own std::string concatenation
# at -O2/-O3 (GCC bug 105651); the warning is false, so it is not an error.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(lapdesk_warnings INTERFACE -Wno-restrict)
endif()

if(LAPDESK_FUZZ)
  # Every layer is instrumented for coverage; only the fuzz targets link the
  # fuzzer's own main.
  target_compile_options(lapdesk_warnings INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined,float-cast-overflow
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lapdesk_warnings INTERFACE -fsanitize=address,undefined,float-cast-overflow)
elseif(LAPDESK_SANITIZE)
  target_compile_options(lapdesk_warnings INTERFACE
    -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=undefined,float-cast-overflow
    -fno-omit-frame-pointer)
  target_link_options(lapdesk_warnings INTERFACE -fsanitize=address,undefined,float-cast-overflow)
endif()
