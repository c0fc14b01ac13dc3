# vemi_flags: what every translation unit that sees the library's internals is compiled with: the processor level, the
# rules for floating point and for the lane library, OpenMP, warnings.
find_path(VEMI_HIGHWAY_INCLUDE_DIR hwy/highway.h DOC "Folder of Google Highway's headers (Debian: libhwy-dev)" REQUIRED)

add_library(vemi_flags INTERFACE)

if(VEMI_LEVEL STREQUAL "x86-64-v2")
  set(lanes HWY_SSE4)
elseif(VEMI_LEVEL STREQUAL "x86-64-v3")
  set(lanes HWY_AVX2)
elseif(VEMI_LEVEL STREQUAL "x86-64-v4")
  set(lanes HWY_AVX3)
elseif(VEMI_LEVEL STREQUAL "ia32")
  set(lanes HWY_SSSE3)
elseif(VEMI_LEVEL STREQUAL "armv8-a")
  set(lanes HWY_NEON)
else()
  message(FATAL_ERROR "VEMI_LEVEL is '${VEMI_LEVEL}'; it must be x86-64-v2, x86-64-v3, x86-64-v4, ia32 or armv8-a")
endif()
if(NOT VEMI_LEVEL STREQUAL "ia32")  # ia32 has its flags from the toolchain file
  target_compile_options(vemi_flags INTERFACE -march=${VEMI_LEVEL})
endif()

# Highway's AVX2 and AVX-512 targets also want AES and PCLMUL, which the levels lack: without the first definition they
# silently fall back to 16-byte lanes. VEMI_LANES lets core/lanes.h assert the outcome. Highway's debug assertions live
# in its own library, which is not linked.
target_compile_definitions(vemi_flags INTERFACE HWY_DISABLE_PCLMUL_AES HWY_IS_DEBUG_BUILD=0 VEMI_LANES=${lanes})
if(VEMI_LEVEL STREQUAL "armv8-a")
  # Where Highway finds this header on ARM, it believes in dispatch at run time, and compiles its functions for
  # processors with AES; ours, which are for all processors, could not inline them.
  target_compile_definitions(vemi_flags INTERFACE TOOLCHAIN_MISS_SYS_AUXV_H)
endif()
target_include_directories(vemi_flags SYSTEM INTERFACE ${VEMI_HIGHWAY_INCLUDE_DIR})

# Blocks of lanes are copied in whole vectors, and copies of a length that is bounded but unknown by the C library. GCC
# would take pieces of 16 bytes at x86-64-v3 and `rep movs` for short lengths: what is then loaded as a vector waits until
# the pieces have reached the cache, and a `rep movs` needs 30 ns to start. Other compilers lack the flags and the faults.
set(block_copies -mmemcpy-strategy=libcall:-1:noalign -mmemset-strategy=libcall:-1:noalign)
if(VEMI_LEVEL STREQUAL "x86-64-v3")
  list(APPEND block_copies -mmove-max=256 -mstore-max=256)
endif()
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag("${block_copies}" VEMI_BLOCK_COPIES)
if(VEMI_BLOCK_COPIES)
  target_compile_options(vemi_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:${block_copies}>)
endif()

# Where GCC knows which registers a function of ours uses, it leaves out the vzeroupper behind a call of one without
# vectors, and so returns with the upper halves that were there before: the user's next SSE instruction waits 100 ns.
check_cxx_compiler_flag(-fno-ipa-ra VEMI_NO_IPA_RA)
if(VEMI_NO_IPA_RA)
  target_compile_options(vemi_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fno-ipa-ra>)
endif()

# No contraction of a*b+c into one rounding: the same bits on every level.
target_compile_options(vemi_flags INTERFACE -ffp-contract=off)

target_compile_options(vemi_flags INTERFACE -fopenmp)
target_link_options(vemi_flags INTERFACE -fopenmp)
target_link_libraries(vemi_flags INTERFACE m)

# vemi_warnings is also for code that stays outside the library: tests, benchmarks, examples.
add_library(vemi_warnings INTERFACE)
target_compile_options(vemi_warnings INTERFACE
  -Wall -Wextra -Wconversion -Wshadow -Wpointer-arith -Wno-psabi $<$<BOOL:${VEMI_WERROR}>:-Werror>)
target_link_libraries(vemi_flags INTERFACE vemi_warnings)

if(VEMI_SANITIZE STREQUAL "address")
  # Rows may start at any byte, so element pointers are legally unaligned on the processors that the library supports.
  # The checks for null and for object sizes double the compile time of templates and find what the address sanitizer
  # finds as well. So does the poison on variables out of scope; the fuzzer's build by clang has it.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize=alignment,null,object-size
                      -fno-sanitize-address-use-after-scope -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(VEMI_SANITIZE STREQUAL "thread")  # clang, whose OpenMP runtime tells the sanitizer when threads meet
  add_compile_options(-fsanitize=thread)
  add_link_options(-fsanitize=thread)
elseif(VEMI_SANITIZE STREQUAL "fuzzer")  # clang
  add_compile_options(-fsanitize=fuzzer-no-link,address)
  add_link_options(-fsanitize=address)
elseif(VEMI_SANITIZE)
  message(FATAL_ERROR "VEMI_SANITIZE is '${VEMI_SANITIZE}'; it must be address, thread or fuzzer")
endif()
