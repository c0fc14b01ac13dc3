# 64-bit ARM on another machine (Debian: g++-12-aarch64-linux-gnu, qemu-user-static). Highway is headers alone, so that
# the host's serve; the cross compiler finds them in /usr/include, where it looks last.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc-12)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++-12)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64-static -L /usr/aarch64-linux-gnu)
