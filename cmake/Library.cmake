# The library is compiled once, as objects, and linked twice:
#   vemi           the shared library that users get;
#   vemi_internal  the same objects as an archive, for tests that reach past the exports. Its allocator alone is compiled
#                  anew, with the seam through which a test makes an allocation fail.
file(GLOB vemi_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*/*.cpp)
set(vemi_allocator ${PROJECT_SOURCE_DIR}/src/core/alloc.cpp)
list(REMOVE_ITEM vemi_sources ${vemi_allocator})

# vemi_compile: the flags of the library's own sources. They need neither exceptions nor RTTI, export only what the
# headers mark, and call each other's exports directly.
add_library(vemi_compile INTERFACE)
target_link_libraries(vemi_compile INTERFACE vemi_flags)
target_compile_options(vemi_compile INTERFACE
  -fno-exceptions -fno-rtti -fno-threadsafe-statics -fno-semantic-interposition
  -fvisibility=hidden -fvisibility-inlines-hidden)
target_include_directories(vemi_compile INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)

add_library(vemi_objects OBJECT ${vemi_sources})
target_link_libraries(vemi_objects PRIVATE vemi_compile)
set_target_properties(vemi_objects PROPERTIES POSITION_INDEPENDENT_CODE ON)
# Off where files are edited, so that each goes on including what it uses.
if(VEMI_PRECOMPILED_HEADERS)
  target_precompile_headers(vemi_objects PRIVATE
    <algorithm> <cmath> ${PROJECT_SOURCE_DIR}/src/core/exports.h ${PROJECT_SOURCE_DIR}/src/core/map_region.h)
  # GCC's headers of intrinsics silence these about themselves, by pragmas that do not last as precompiled headers do.
  target_compile_options(vemi_objects PRIVATE "$<$<CXX_COMPILER_ID:GNU>:-Wno-uninitialized;-Wno-maybe-uninitialized>")
endif()

add_library(vemi SHARED ${vemi_allocator} $<TARGET_OBJECTS:vemi_objects>)
add_library(vemi::vemi ALIAS vemi)
target_link_libraries(vemi PRIVATE vemi_compile)
target_include_directories(vemi INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
# Linked as C, so that the C++ runtime library stays out; the version script hides what headers of the C++ library
# declare visible; -z defs turns a missing dependency into an error of this link (clang's sanitizers are one until the
# program is linked).
target_link_options(vemi PRIVATE
  $<$<NOT:$<CXX_COMPILER_ID:Clang>>:-Wl,-z,defs> -Wl,-Bsymbolic-functions -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/vemi.map)
set_target_properties(vemi PROPERTIES
  LINKER_LANGUAGE C
  LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/vemi.map
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR})

add_library(vemi_internal STATIC EXCLUDE_FROM_ALL ${vemi_allocator} $<TARGET_OBJECTS:vemi_objects>)
target_link_libraries(vemi_internal PRIVATE vemi_compile PUBLIC vemi_flags)
target_compile_definitions(vemi_internal PUBLIC VEMI_ALLOCATION_SEAM)
target_include_directories(vemi_internal PUBLIC ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)
