# Flags of the whole house, set once. Results must not depend on the optimiser: no fast-math, no contraction
# of a*b+c into one rounding, IEEE floats at every place where the records say 32 bits.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g1 -DNDEBUG")

add_compile_options(-ffp-contract=off -fno-fast-math)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # g++ 12 takes two neighbouring doubles through 32 bits and back as one vector, and leaves the rounding out.
  add_compile_options(-fno-tree-slp-vectorize)
endif()
if(CMAKE_SYSTEM_PROCESSOR MATCHES "i[3-6]86")
  add_compile_options(-msse2 -mfpmath=sse)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-align -Werror)

if(TESSAREL_ASSAINIR)
  add_compile_options("-fsanitize=${TESSAREL_ASSAINIR}" -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options("-fsanitize=${TESSAREL_ASSAINIR}")
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # g++ takes the instrumentation itself for reads of unset values.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()
if(TESSAREL_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
  set(CMAKE_C_COMPILER_LAUNCHER "${CCACHE}")
endif()
