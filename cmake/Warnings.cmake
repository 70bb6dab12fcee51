# One interface target carries the warning flags (and the sanitizers) for every
# target of the project, so no layer can quietly build with fewer checks.
add_library(lapdesk_warnings INTERFACE)
target_compile_options(lapdesk_warnings INTERFACE -Wall -Wextra -Werror)

if(LAPDESK_SANITIZE)
  target_compile_options(lapdesk_warnings INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(lapdesk_warnings INTERFACE -fsanitize=address,undefined)
endif()
