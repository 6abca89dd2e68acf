# Brimwork.dll: the entry points, the component behind them and the pictures. The run time is linked
# in, so that it needs no file beside it.
enable_language(RC)

# Each picture is in the library under its folder's and its own name: faces/indent.
file(GLOB pictures CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/resources/*/*.bmp ${PROJECT_SOURCE_DIR}/resources/*/*.ico)
set(BRIMWORK_PICTURES "")
foreach(picture IN LISTS pictures)
  file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR}/resources ${picture})
  string(REGEX REPLACE "\\.[a-z]+$" "" name ${name})
  string(APPEND BRIMWORK_PICTURES "${name} RCDATA \"${picture}\"\n")
endforeach()
string(REPLACE "." "," BRIMWORK_VERSION_NUMBERS "${PROJECT_VERSION}.0")
configure_file(${CMAKE_CURRENT_LIST_DIR}/brimwork.rc.in ${CMAKE_CURRENT_BINARY_DIR}/brimwork.rc @ONLY)

add_library(Brimwork MODULE windows/library/entry_points.cpp windows/library/tick_count.cpp
  windows/library/Brimwork.def
  ${CMAKE_CURRENT_BINARY_DIR}/brimwork.rc)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/brimwork.rc PROPERTIES
  OBJECT_DEPENDS "${pictures}")
target_link_libraries(Brimwork PRIVATE brimwork_windows)
target_compile_definitions(Brimwork PRIVATE ${productDefinitions})
# 5.1 is the first system that it starts on; 64 bits began with 5.2.
set(subsystemMinor 1)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(subsystemMinor 2)
endif()
target_link_options(Brimwork PRIVATE -static -s
  LINKER:--subsystem,windows:5.${subsystemMinor} LINKER:--gc-sections
  LINKER:--nxcompat LINKER:--dynamicbase)
set_target_properties(Brimwork PROPERTIES PREFIX "" UNITY_BUILD OFF
  LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
