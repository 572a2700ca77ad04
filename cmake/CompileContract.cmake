# The numeric compile flags, one line each with its reason. Nothing else in the project sets any of them.

add_library(zthalf_contract INTERFACE)

target_compile_options(zthalf_contract INTERFACE
  -ffp-contract=off        # results are defined operation by operation; compilers fuse a*b+c wherever the processor can
  -fno-strict-aliasing     # one array has three element types, and calls on overlapping arrays are defined
  -fno-trapping-math       # no status flag is ever read; without this GCC vectorises no loop with float comparisons
  -fno-math-errno          # no errno is ever read; without this a sqrt loop stays a loop of calls
)

# Flags from outside, the user's or an enclosing project's, stand before all of these on the command line. What gives
# other bits even so stops the configuration.
set(ZTHALF_CHANGES_BITS -ffast-math -Ofast -funsafe-math-optimizations -fassociative-math -freciprocal-math
  -ffinite-math-only -fno-signed-zeros -fsingle-precision-constant -fcx-limited-range -fcx-fortran-rules -fapprox-func
  "-ffp-model=(fast|aggressive)" "-fdenormal-fp-math(-f32)?=(preserve-sign|positive-zero|dynamic)[^ ]*" -mdaz-ftz
  "-mrecip[^ ]*" "-mfpmath=[^ ]*(387|both)[^ ]*")
list(JOIN ZTHALF_CHANGES_BITS "|" ZTHALF_CHANGES_BITS)

# A flag that names a processor changes no bit, since nothing is fused, whatever the processor could fuse. It decides
# where the library runs, and what its base level is made of.
set(ZTHALF_NAMES_PROCESSOR "-m(arch|cpu)=[^ ]+|-m(sse[34]|ssse|avx|fma|f16c|bmi)[^ ]*")

# The linker's flags count: with -ffast-math it adds code that flushes subnormals, to the program that makes the tables.
get_directory_property(ZTHALF_OUTER_OPTIONS COMPILE_OPTIONS)
get_directory_property(ZTHALF_OUTER_LINK_OPTIONS LINK_OPTIONS)
set(ZTHALF_OUTER_FLAGS CMAKE_CXX_FLAGS CMAKE_CXX_COMPILER_ARG1 ZTHALF_OUTER_OPTIONS ZTHALF_OUTER_LINK_OPTIONS
  CMAKE_SHARED_LINKER_FLAGS CMAKE_EXE_LINKER_FLAGS)
foreach(config IN LISTS CMAKE_BUILD_TYPE CMAKE_CONFIGURATION_TYPES)
  string(TOUPPER ${config} config)
  list(APPEND ZTHALF_OUTER_FLAGS
    CMAKE_CXX_FLAGS_${config} CMAKE_SHARED_LINKER_FLAGS_${config} CMAKE_EXE_LINKER_FLAGS_${config})
endforeach()
set(ZTHALF_PROCESSOR_FLAG "")
foreach(variable IN LISTS ZTHALF_OUTER_FLAGS)
  string(REGEX REPLACE "[;:<> \t]+" " " flags " ${${variable}} ")
  if(flags MATCHES " (${ZTHALF_CHANGES_BITS}) ")
    message(FATAL_ERROR "'${CMAKE_MATCH_1}' would change results: zthalf's bits are defined operation by operation. "
                        "Configure without it.")
  elseif(flags MATCHES " (${ZTHALF_NAMES_PROCESSOR}) ")
    set(ZTHALF_PROCESSOR_FLAG ${CMAKE_MATCH_1})
  endif()
endforeach()
if(ZTHALF_PROCESSOR_FLAG)
  message(WARNING "'${ZTHALF_PROCESSOR_FLAG}' changes no result, but zthalf will run only on processors that it allows."
                  " Wide instructions are chosen at run time without it.")
endif()

# Optimised is everything but Debug, whatever the build type is called: a distribution's None with -O2, an enclosing
# project's RelWithDebInfo. Sanitizers say the same of code that is compiled faster.
set(ZTHALF_OPTIMISED $<NOT:$<CONFIG:Debug>>)
string(TOUPPER "${CMAKE_BUILD_TYPE}" config)
set(ZTHALF_IS_OPTIMISED TRUE)
if(CMAKE_CXX_FLAGS MATCHES "-fsanitize" OR config STREQUAL "DEBUG")
  set(ZTHALF_OPTIMISED 0)
  set(ZTHALF_IS_OPTIMISED FALSE)
endif()
# A distribution has its own word on the checks of the C library.
set(ZTHALF_FORTIFY ${ZTHALF_OPTIMISED})
if(CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
  set(ZTHALF_FORTIFY 0)
endif()

# What every object of the library is built with beside the numeric flags.
add_library(zthalf_build INTERFACE)
target_link_libraries(zthalf_build INTERFACE zthalf_contract)
target_compile_features(zthalf_build INTERFACE cxx_std_20)
target_compile_options(zthalf_build INTERFACE
  -Wall -Wextra -Wmissing-declarations $<$<BOOL:${ZTHALF_WERROR}>:-Werror>
  $<${ZTHALF_OPTIMISED}:-O3>   # width: at -O2 GCC 12 vectorises next to nothing; element results do not depend on it
  -fstack-protector-strong
  $<${ZTHALF_FORTIFY}:-U_FORTIFY_SOURCE> $<${ZTHALF_FORTIFY}:-D_FORTIFY_SOURCE=2>
)

# Flags of single sources. CMake takes names of files that are not there, and the flags would be lost without a word.
function(zthalf_require_sources)
  foreach(source IN LISTS ARGN)
    get_filename_component(path ${source} ABSOLUTE)
    if(NOT EXISTS ${path})
      message(FATAL_ERROR "${source} has flags of its own and is not there.")
    endif()
  endforeach()
endfunction()

# Loops of a few instructions that all calls of many functions go through begin a line of the instruction cache. Not for
# every source: it makes the library larger, and longer loops do not gain from it.
function(zthalf_aligns_loops)
  zthalf_require_sources(${ARGN})
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -falign-loops=64)
endfunction()

# The thread sanitizer knows nothing of what the system's oneTBB does inside, since that is built without it. The
# sources in which oneTBB's templates are instantiated are left uninstrumented too, and tell it the order of their tasks
# (src/frame/loops/task_order.h); the loops' bodies are watched.
function(zthalf_instantiates_tasks)
  zthalf_require_sources(${ARGN})
  if(CMAKE_CXX_FLAGS MATCHES "-fsanitize=thread")
    set_source_files_properties(${ARGN} PROPERTIES
      COMPILE_OPTIONS -fno-sanitize=thread COMPILE_DEFINITIONS ZTHALF_WATCHES_THREADS SKIP_PRECOMPILE_HEADERS ON)
  endif()
endfunction()
