# What keeps a slip in the program from becoming a stranger's way in. Not under sanitizers, which do
# all of it in their own way, and not without optimisation, which the checked functions need.
include_guard()
include(CheckPIESupported)

option(GALLOPADE_HARDENING "Build the program hardened" ON)
define_property(TARGET PROPERTY GALLOPADE_HOT
  BRIEF_DOCS "Too hot a room for the standard library's assertions")

add_library(gallopade_hardening INTERFACE)
if(GALLOPADE_HARDENING)
  check_pie_supported(LANGUAGES CXX)
  target_compile_options(gallopade_hardening INTERFACE -fstack-protector-strong -U_FORTIFY_SOURCE)
  # The third level needs sizes that the compiler works out at run time.
  if((CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12)
     OR (CMAKE_CXX_COMPILER_ID MATCHES Clang AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12))
    target_compile_options(gallopade_hardening INTERFACE -D_FORTIFY_SOURCE=3)
  else()
    target_compile_options(gallopade_hardening INTERFACE -D_FORTIFY_SOURCE=2)
  endif()
  # Indirect branches land only where they may: CET on x86, branch protection on Arm. Clang takes the
  # one for the other, too, and then warns of it in every source.
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|i.86)$")
    target_compile_options(gallopade_hardening INTERFACE -fcf-protection=full)
  elseif(CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
    target_compile_options(gallopade_hardening INTERFACE -mbranch-protection=standard)
  endif()
  target_compile_definitions(gallopade_hardening INTERFACE
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:GALLOPADE_HOT>>>:_GLIBCXX_ASSERTIONS>)
  target_link_options(gallopade_hardening INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
endif()
