# 32-bit x86 by the host's own compiler (Debian: g++-12-multilib; g++-multilib conflicts with cross compilers, and all
# that it adds is /usr/include/asm, which lies in the host's folder too). Floating point is SSE's, so that every
# expression rounds as on 64-bit builds; the stack is realigned because old callers keep it at 4 bytes only.
set(vemi_ia32_flags "-m32 -mssse3 -mfpmath=sse -mstackrealign -idirafter /usr/include/x86_64-linux-gnu")
set(CMAKE_C_FLAGS_INIT "${vemi_ia32_flags}")
set(CMAKE_CXX_FLAGS_INIT "${vemi_ia32_flags}")
