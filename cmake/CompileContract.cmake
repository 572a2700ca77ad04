# The numeric compile flags, one line each with its reason. Nothing else in the project sets any of them.

add_library(zthalf_contract INTERFACE)

target_compile_options(zthalf_contract INTERFACE
  -ffp-contract=off        # results are defined operation by operation; compilers fuse a*b+c wherever the processor can
  -fno-strict-aliasing     # one array has three element types, and calls on overlapping arrays are defined
  -fno-trapping-math       # no status flag is ever read; without this GCC vectorises no loop with float comparisons
  -fno-math-errno          # no errno is ever read; without this a sqrt loop stays a loop of calls
)

foreach(flags IN ITEMS "${CMAKE_CXX_FLAGS}" "${CMAKE_CXX_FLAGS_RELEASE}" "${CMAKE_CXX_FLAGS_RELWITHDEBINFO}"
                       "${CMAKE_CXX_FLAGS_DEBUG}" "$ENV{CXXFLAGS}")
  if(flags MATCHES "-ffast-math|-Ofast|-mdaz-ftz|-march=|-mfma|-ffp-contract=(fast|on)|-funsafe|-fassociative")
    message(FATAL_ERROR "'${CMAKE_MATCH_0}' would change results: zthalf's bits are defined operation by operation, and "
                        "wide instructions are chosen at run time. Configure without it.")
  endif()
endforeach()

# What every object of the library is built with beside the numeric flags.
add_library(zthalf_build INTERFACE)
target_link_libraries(zthalf_build INTERFACE zthalf_contract)
target_compile_features(zthalf_build INTERFACE cxx_std_20)
target_compile_options(zthalf_build INTERFACE
  -Wall -Wextra -Wmissing-declarations $<$<BOOL:${ZTHALF_WERROR}>:-Werror>
  $<$<CONFIG:Release>:-O3>            # width; element results do not depend on it, and the tests say so
  -fstack-protector-strong
  $<$<CONFIG:Release>:-U_FORTIFY_SOURCE> $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>
)

# Loops of a few instructions that all calls of many functions go through begin a line of the instruction cache. Not for
# every source: it makes the library larger, and longer loops do not gain from it.
function(zthalf_aligns_loops)
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -falign-loops=64)
endfunction()

# The thread sanitizer knows nothing of what the system's oneTBB does inside, since that is built without it. The
# sources in which oneTBB's templates are instantiated are left uninstrumented too, and tell it the order of their tasks
# (src/frame/task_order.h); the loops' bodies are watched.
function(zthalf_instantiates_tasks)
  if(CMAKE_CXX_FLAGS MATCHES "-fsanitize=thread")
    set_source_files_properties(${ARGN} PROPERTIES
      COMPILE_OPTIONS -fno-sanitize=thread COMPILE_DEFINITIONS ZTHALF_WATCHES_THREADS)
  endif()
endfunction()
