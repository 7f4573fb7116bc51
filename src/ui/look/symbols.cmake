# The drawn symbols and the application icon, as resources of the views.
file(GLOB symbol_files CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/symbols/*.svg)
qt_add_resources(velmora_ui "symbols"
  PREFIX "/velmora/symbols"
  BASE ${CMAKE_CURRENT_LIST_DIR}/symbols
  FILES ${symbol_files})

file(GLOB icon_files CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/icon/*.svg)
qt_add_resources(velmora_ui "icon"
  PREFIX "/velmora/icon"
  BASE ${CMAKE_CURRENT_LIST_DIR}/icon
  FILES ${icon_files})
