# Hardening of release builds; docs/performance.md has what it costs. Sanitizers bring checks of their own, which
# _FORTIFY_SOURCE would hide errors from.
if(GRADIX_SANITIZE OR GRADIX_FUZZ)
  return()
endif()
include(CheckCXXCompilerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES C CXX) # without it, CMake does not link position-independent programs as such

set(optimised $<CONFIG:Release,RelWithDebInfo>)
foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
  string(MAKE_C_IDENTIFIER "GRADIX_HAS${flag}" has_flag)
  check_cxx_compiler_flag(${flag} ${has_flag})
  if(${has_flag})
    add_compile_options($<${optimised}:${flag}>)
  endif()
endforeach()
# The distribution's flags may have it in another strength.
add_compile_options($<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=2>)
add_compile_definitions($<${optimised}:_GLIBCXX_ASSERTIONS>)
add_link_options($<${optimised}:LINKER:-z,relro,-z,now>)
