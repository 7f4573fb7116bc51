# Turns the program into Velmora.app on a Mac.

function(velmora_bundle target)
  set(icon_set ${CMAKE_CURRENT_BINARY_DIR}/Velmora.iconset)
  set(icon ${CMAKE_CURRENT_BINARY_DIR}/Velmora.icns)
  set(entitlements ${CMAKE_SOURCE_DIR}/packaging/macos/Velmora.entitlements)
  set(contents $<TARGET_BUNDLE_CONTENT_DIR:${target}>)
  add_custom_command(OUTPUT ${icon}
    COMMAND velmora_icon_set ${icon_set}
    COMMAND iconutil --convert icns --output ${icon} ${icon_set}
    DEPENDS velmora_icon_set ${CMAKE_SOURCE_DIR}/src/ui/look/icon/velmora.svg
    COMMENT "Drawing the application's icon")
  set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  target_sources(${target} PRIVATE ${icon})
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME Velmora
    MACOSX_BUNDLE TRUE
    MACOSX_BUNDLE_INFO_PLIST ${CMAKE_SOURCE_DIR}/packaging/macos/Info.plist.in
    MACOSX_BUNDLE_GUI_IDENTIFIER ${VELMORA_BUNDLE_IDENTIFIER}
    MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
    MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION}
    LINK_DEPENDS "${entitlements};${contents}/Resources/Velmora.icns;${contents}/Info.plist")
  # An unsigned build loses its permissions at every change; sealed for this computer, it keeps them apart
  # from other programs' and may ask for them. All that the seal covers is a reason to link, and so to seal, anew.
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND codesign --force --sign - --entitlements ${entitlements} $<TARGET_BUNDLE_DIR:${target}>
    COMMENT "Sealing Velmora.app for this computer")
endfunction()
