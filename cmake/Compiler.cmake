# The flags that every target of the project takes, through one interface target.
add_library(ordwise_flags INTERFACE)
target_compile_options(ordwise_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
  $<$<BOOL:${ORDWISE_WERROR}>:-Werror>)
# g++ 12 warns of overlapping copies inside std::string at -O3 where there are none (GCC bug 105329).
target_compile_options(ordwise_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
# The engine computes in single precision where a field is single: no excess precision, no
# contraction of a multiplication and an addition, so that all machines print the same digits.
target_compile_options(ordwise_flags INTERFACE -ffp-contract=off)
if(ORDWISE_SANITIZE)
  target_compile_options(ordwise_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(ordwise_flags INTERFACE -fsanitize=address,undefined)
  # With the sanitizers g++ 12 takes parts of std::regex for uninitialised (GCC bug 105562).
  target_compile_options(ordwise_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()

# The same sources make the same program wherever they lie.
target_compile_options(ordwise_flags INTERFACE -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)

# What is given to users is hardened: checked copies, guarded stacks, checked jumps, and tables that
# nobody can write to once the program runs. (docs/performance.md tells what it costs.)
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection ORDWISE_HAS_CF_PROTECTION)
if(CMAKE_BUILD_TYPE STREQUAL Release AND NOT ORDWISE_SANITIZE)
  target_compile_options(ordwise_flags INTERFACE
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong
    $<$<BOOL:${ORDWISE_HAS_CF_PROTECTION}>:-fcf-protection>)
  target_link_options(ordwise_flags INTERFACE -Wl,-z,relro -Wl,-z,now -Wl,--build-id=sha1)
endif()
