# Warnings, hardening and sanitizers, for every target alike.
find_program(KORVIN_CCACHE ccache)
if(KORVIN_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${KORVIN_CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
                    -Wold-style-cast -Wcast-align -Woverloaded-virtual -Wduplicated-cond -Wnull-dereference
                    -Wimplicit-fallthrough -Werror)
# g++ 12 sees overlaps in the concatenation of strings where there are none (GCC bug 105651).
add_compile_options(-Wno-restrict)
add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)

if(KORVIN_HARDENED)
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  # All is linked into programs, so that no function can be exchanged by a library: calls may be inlined.
  add_compile_options(-fno-semantic-interposition)
  add_compile_options(-fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
  add_link_options(-pie -Wl,-z,relro,-z,now)
endif()

if(KORVIN_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # With the sanitizers' code in between, g++ 12 takes std::regex's own variables for unset ones.
  add_compile_options(-Wno-maybe-uninitialized)
  add_link_options(-fsanitize=address,undefined)
  add_compile_definitions(KORVIN_SANITIZE=1 _GLIBCXX_ASSERTIONS)
endif()
