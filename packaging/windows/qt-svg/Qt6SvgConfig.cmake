get_filename_component(root ${CMAKE_CURRENT_LIST_DIR}/../../.. ABSOLUTE)
if(NOT TARGET Qt6::Svg)
  add_library(Qt6::Svg SHARED IMPORTED)
  set_target_properties(Qt6::Svg PROPERTIES
    IMPORTED_LOCATION ${root}/bin/Qt6Svg.dll
    IMPORTED_IMPLIB ${root}/lib/libQt6Svg.dll.a
    INTERFACE_INCLUDE_DIRECTORIES "${root}/include;${root}/include/QtSvg"
    INTERFACE_LINK_LIBRARIES Qt6::Gui)
endif()
set(Qt6Svg_FOUND TRUE)
