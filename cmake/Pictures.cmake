# Rasterises the SVG pictures, once for each scale and theme, into raw sheets and embeds these uncompressed. So the
# program opens no picture files and needs no decoder for them.
enable_language(ASM)

set(GP_PICTURE_TEMPLATE ${CMAKE_CURRENT_LIST_DIR}/PictureSheets.S.in)

# gp_embed_pictures(target): adds the sheets of resources/pictures, resources/boxes and resources/app to the target.
function(gp_embed_pictures target)
  if(NOT TARGET rasterize)
    add_subdirectory(${CMAKE_SOURCE_DIR}/tools/rasterize ${CMAKE_BINARY_DIR}/tools/rasterize)
  endif()
  file(GLOB drawings CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/pictures/*.svg)
  file(GLOB boxes CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/boxes/*.svg)
  set(box_sizes "")
  foreach(box ${boxes})
    list(APPEND box_sizes ${box}:40)
  endforeach()
  set(logo ${CMAKE_SOURCE_DIR}/resources/app/logo.svg)
  set(program ${CMAKE_SOURCE_DIR}/resources/app/glimmerpane.svg)

  set(GP_SHEET_DIR ${CMAKE_BINARY_DIR}/sheets)
  file(MAKE_DIRECTORY ${GP_SHEET_DIR})
  set(sheets "")
  foreach(scale 100 150 200)
    list(APPEND sheets ${GP_SHEET_DIR}/${scale}-light.sheet ${GP_SHEET_DIR}/${scale}-dark.sheet)
  endforeach()
  add_custom_command(
    OUTPUT ${sheets}
    COMMAND rasterize ${GP_SHEET_DIR} ${drawings} ${box_sizes} ${logo}:64 ${program}:16,32,48,64
    DEPENDS rasterize ${drawings} ${boxes} ${logo} ${program}
    COMMENT "Rasterising pictures"
    VERBATIM)

  set(embedded ${CMAKE_BINARY_DIR}/PictureSheets.S)
  configure_file(${GP_PICTURE_TEMPLATE} ${embedded} @ONLY)
  set_source_files_properties(${embedded} PROPERTIES OBJECT_DEPENDS "${sheets}" SKIP_AUTOGEN ON)
  target_sources(${target} PRIVATE ${embedded})
endfunction()
