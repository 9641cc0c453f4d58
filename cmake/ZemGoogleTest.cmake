# GoogleTest and GoogleMock from Debian's sources, built inside this tree.
set(ZEM_GOOGLETEST_DIR /usr/src/googletest CACHE PATH "GoogleTest source tree")
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
add_subdirectory(${ZEM_GOOGLETEST_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
