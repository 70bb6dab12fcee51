# LAPDESK_HARDENING builds every program and module with the hardening that
# Debian's dpkg-buildflags gives a package (with hardening=+all): fortified
# glibc calls, a strong stack protector, format-string checks, position-
# independent executables, a read-only relocation table bound at start
# (relro and bind-now), and, where the compiler has them for the target,
# stack clash protection and control-flow protection, which newer dpkg
# versions add by default. The Debian package is built with it; the sanitizer
# and fuzz builds are not, as fortified calls would bypass AddressSanitizer's
# own checks of the same calls.
option(LAPDESK_HARDENING "Build with Debian's hardening flags (optimised builds)" OFF)

if(LAPDESK_HARDENING)
  if(LAPDESK_SANITIZE OR LAPDESK_FUZZ)
    message(FATAL_ERROR "LAPDESK_HARDENING is for the release build, not with the sanitizers")
  endif()
  # glibc fortifies only optimised code and warns about the macro otherwise;
  # the compiler's own default, if it has one, gives way to level 2.
  set(optimised "$<NOT:$<CONFIG:Debug>>")
  add_compile_options(
    $<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=2>
    -fstack-protector-strong -Wformat -Werror=format-security)
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-fstack-clash-protection LAPDESK_HAS_STACK_CLASH_PROTECTION)
  if(LAPDESK_HAS_STACK_CLASH_PROTECTION)
    add_compile_options(-fstack-clash-protection)
  endif()
  check_cxx_compiler_flag(-fcf-protection LAPDESK_HAS_CF_PROTECTION)
  if(LAPDESK_HAS_CF_PROTECTION)
    add_compile_options(-fcf-protection)
  endif()
  add_link_options(LINKER:-z,relro LINKER:-z,now)
  # -fPIE for the programs and -pie at their link (CMP0083).
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  include(CheckPIESupported)
  check_pie_supported()
endif()
