# Helpers that every folder of the tree uses to declare its targets.

if(CMAKE_SYSTEM_NAME STREQUAL "Windows")
  set(ZEM_WIN32 ON)
  add_compile_definitions(UNICODE _UNICODE NOMINMAX _WIN32_WINNT=0x0601 WINVER=0x0601 _WIN32_IE=0x0600)
  # The runtimes go into each module, so the products run under Wine and on
  # Windows without mingw DLLs beside them.
  add_link_options(-static -static-libgcc -static-libstdc++)
  set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_SOURCE_DIR}/tools/wine-run")
  set(ZEM_SHARED_DIR_FOR_TESTS "Z:${ZEM_SHARED_DIR}")
  set(ZEM_BUILD_DIR_FOR_TESTS "Z:${CMAKE_BINARY_DIR}")
  set(ZEM_SOURCE_DIR_FOR_TESTS "Z:${CMAKE_SOURCE_DIR}")
else()
  set(ZEM_WIN32 OFF)
  set(ZEM_SHARED_DIR_FOR_TESTS "${ZEM_SHARED_DIR}")
  set(ZEM_BUILD_DIR_FOR_TESTS "${CMAKE_BINARY_DIR}")
  set(ZEM_SOURCE_DIR_FOR_TESTS "${CMAKE_SOURCE_DIR}")
  if(ZEM_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND ZEM_SANITIZE)
    # Coverage feedback for the fuzz targets reaches into the libraries.
    add_compile_options(-fsanitize=fuzzer-no-link)
    set(ZEM_FUZZ ON)
  endif()
endif()

set(ZEM_STRICT_WARNINGS -Wall -Wextra -Werror)

# A portable library: every .cpp of the folder, standard C++ only.
#   zem_portable_library(<target> <folder> [DEPENDS <targets>...])
function(zem_portable_library target folder)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${folder}/*.cpp")
  if(NOT sources)
    # A folder whose first code has not landed yet offers only its headers.
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE "${folder}")
    target_link_libraries(${target} INTERFACE ${ARG_DEPENDS})
    return()
  endif()
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} PUBLIC "${folder}")
  target_compile_options(${target} PRIVATE ${ZEM_STRICT_WARNINGS})
  target_link_libraries(${target} PUBLIC ${ARG_DEPENDS})
  set_property(GLOBAL APPEND PROPERTY ZEM_PORTABLE_LIBRARIES ${target})
endfunction()

# Copies Zem_Mfc.dll, and the further files given, beside a Windows program
# after each build of it, so that the program finds them under Wine.
#   zem_place_library_beside(<target> [files...])
function(zem_place_library_beside target)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:Zem_Mfc> ${ARGN} $<TARGET_FILE_DIR:${target}>)
endfunction()

# One GoogleTest executable per subsystem, from every .cpp of Tests/<name>.
#   zem_test_suite(<name> LIBS <targets>...)
function(zem_test_suite name)
  cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp")
  if(NOT sources)
    return()
  endif()
  set(target ${name}_tests)
  add_executable(${target} ${sources})
  target_compile_options(${target} PRIVATE ${ZEM_STRICT_WARNINGS})
  target_compile_definitions(${target} PRIVATE
    ZEM_TESTDATA_DIR="${ZEM_SHARED_DIR_FOR_TESTS}/testdata"
    ZEM_BUILD_DIR="${ZEM_BUILD_DIR_FOR_TESTS}"
    ZEM_SOURCE_DIR="${ZEM_SOURCE_DIR_FOR_TESTS}")
  target_link_libraries(${target} PRIVATE ${ARG_LIBS} GTest::gtest_main)
  add_test(NAME ${ZEM_BUILD_NAME}.${target} COMMAND ${target})
  set_tests_properties(${ZEM_BUILD_NAME}.${target} PROPERTIES TIMEOUT 600)
endfunction()
