# Where the sources of this platform are, below each folder that has some.
if(WIN32)
  set(AMBERTASK_PLATFORM windows)
else()
  set(AMBERTASK_PLATFORM linux)
endif()

# Flags that every target of the project shares. Link it privately.
add_library(ambertask_options INTERFACE)
add_library(ambertask::options ALIAS ambertask_options)

target_compile_features(ambertask_options INTERFACE cxx_std_20)
target_compile_definitions(
  ambertask_options
  INTERFACE QT_NO_CAST_TO_ASCII
            QT_RESTRICTED_CAST_FROM_ASCII
            QT_NO_URL_CAST_FROM_STRING
            QT_NO_FOREACH
            QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(
    ambertask_options
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wshadow
              -Wconversion
              -Wno-sign-conversion
              -Wnon-virtual-dtor
              -Woverloaded-virtual
              -Wold-style-cast
              -Wcast-qual
              $<$<BOOL:${AMBERTASK_WARNINGS_AS_ERRORS}>:-Werror>)
  if(AMBERTASK_SANITIZE)
    target_compile_options(ambertask_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                       -fno-omit-frame-pointer)
    target_link_options(ambertask_options INTERFACE -fsanitize=address,undefined)
  elseif(CMAKE_BUILD_TYPE STREQUAL "Release")
    # Hardening: the program reads files and texts of others. Overflows end it at once, and the tables of the linker are
    # read-only when it runs.
    target_compile_options(ambertask_options INTERFACE -fstack-protector-strong
                                                       $<$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86_64>:-fcf-protection>)
    target_compile_definitions(ambertask_options INTERFACE _FORTIFY_SOURCE=3 _GLIBCXX_ASSERTIONS)
    if(WIN32)
      # What they call is in a library there.
      target_link_options(ambertask_options INTERFACE -fstack-protector-strong)
    else()
      target_link_options(ambertask_options INTERFACE LINKER:-z,relro,-z,now)
    endif()
  endif()
elseif(MSVC)
  target_compile_options(ambertask_options INTERFACE /W4 /utf-8 /permissive-
                                                     $<$<BOOL:${AMBERTASK_WARNINGS_AS_ERRORS}>:/WX>)
endif()

# One library a folder of src/: ambertask_<name>, alias ambertask::<name>; its headers are reached as <name>/X.h.
# PRECOMPILED is the header of cmake/precompiled that it takes: core where no window is known, otherwise widgets. PLATFORM
# are the sources of which each platform has its own, in linux/ and windows/.
function(ambertask_library name)
  cmake_parse_arguments(ARG "" "PRECOMPILED" "SOURCES;PLATFORM;PUBLIC;PRIVATE" ${ARGN})
  if(NOT ARG_PRECOMPILED)
    set(ARG_PRECOMPILED widgets)
  endif()
  list(TRANSFORM ARG_PLATFORM PREPEND "${AMBERTASK_PLATFORM}/")
  add_library(ambertask_${name} STATIC ${ARG_SOURCES} ${ARG_PLATFORM})
  add_library(ambertask::${name} ALIAS ambertask_${name})
  target_include_directories(ambertask_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(
    ambertask_${name}
    PUBLIC ${ARG_PUBLIC}
    PRIVATE ambertask::options ${ARG_PRIVATE})
  set_target_properties(ambertask_${name} PROPERTIES POSITION_INDEPENDENT_CODE ON
                        UNITY_BUILD ${AMBERTASK_UNITY} UNITY_BUILD_BATCH_SIZE 8)
  if(WIN32 AND ARG_PLATFORM)
    # The headers of Windows would come over their neighbours.
    set_source_files_properties(${ARG_PLATFORM} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  endif()
  if(AMBERTASK_PRECOMPILED)
    ambertask_precompile(ambertask_${name} ${ARG_PRECOMPILED})
  endif()
endfunction()

# ambertask_precompile(<target> <header>)
# The first target that asks for a header of cmake/precompiled has it compiled, the others take it from there: they must
# have the same options and Qt modules.
function(ambertask_precompile target header)
  get_property(owner GLOBAL PROPERTY AMBERTASK_OWNER_OF_${header})
  if(owner)
    target_precompile_headers(${target} REUSE_FROM ${owner})
  else()
    target_precompile_headers(${target} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/precompiled/${header}.h")
    set_property(GLOBAL PROPERTY AMBERTASK_OWNER_OF_${header} ${target})
  endif()
endfunction()
