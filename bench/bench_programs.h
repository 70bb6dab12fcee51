// The programs the benchmarks run as F(p): one line, and a 200-step loop.
#pragma once

namespace lapdesk::bench {

inline constexpr const char* kReturnProgram = "Return 1/(p+1)\r\nEnd\r\n";
inline constexpr const char* kLoopProgram =
    "s = 0\r\nFor k = 1 To 200\r\ns = s + 1/((p+k)*(p+k))\r\nNext\r\nReturn s\r\nEnd\r\n";

}  // namespace lapdesk::bench
