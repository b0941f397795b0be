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
