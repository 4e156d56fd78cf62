# Every dependency is a Debian package installed by setup.sh.
find_package(Qt6 REQUIRED COMPONENTS Core Gui Widgets PrintSupport Multimedia Test)
find_package(PkgConfig REQUIRED)
pkg_check_modules(FFMPEG REQUIRED IMPORTED_TARGET
  libavformat libavcodec libavutil libswscale libswresample)
find_package(SQLite3 REQUIRED)
if(HUNT_BUILD_TESTS)
  find_package(GTest REQUIRED)
  include(GoogleTest)
endif()
if(HUNT_BUILD_BENCH)
  find_package(benchmark REQUIRED)
endif()

# A screen folder is one library of every .cpp in it; folders still empty build nothing.
function(hunt_screen_library name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
    ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE ${ARGN})
    return()
  endif()
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARGN})
endfunction()
