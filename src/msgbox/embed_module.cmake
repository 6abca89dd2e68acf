# Builds the Visual Basic source of modCustomMsgBox into the msgbox room, so that the text has one
# home. Its last line end is left off: the text is a text box's, not a file's.
set(module_file ${PROJECT_SOURCE_DIR}/resources/modCustomMsgBox.bas)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${module_file})
file(READ ${module_file} module_bytes HEX)
string(REGEX REPLACE "0d0a$" "" module_bytes "${module_bytes}")
string(REGEX REPLACE "(..)" "0x\\1," module_bytes "${module_bytes}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/module_source.cpp.in
               ${CMAKE_CURRENT_BINARY_DIR}/module_source.cpp @ONLY)
target_sources(brimwork_msgbox PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/module_source.cpp)
