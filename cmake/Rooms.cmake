# A room is one folder of src/. Its logic is a static library that uses only the rooms to its left and the standard
# library; its ui/ folder is part of glimmerpane_ui. ROOMS lists the rooms from left to right.
set(ROOMS platform document colour palette drawing files alpha effects animation incoming extraction output shell)

# gp_core_rooms(): creates one library per room with sources, each linked to the nearest one on its left, and the
# interface library glimmerpane_core, which links all of them. libpng is the only other library; src/platform/codec
# uses it.
function(gp_core_rooms)
  find_package(PNG 1.6 REQUIRED)
  add_library(glimmerpane_core INTERFACE)
  set(left "")
  foreach(room IN LISTS ROOMS)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${room}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "/src/${room}/(ui|qt)/")
    if(sources)
      add_library(gp_${room} STATIC ${sources})
      target_include_directories(gp_${room} PUBLIC ${CMAKE_SOURCE_DIR}/src)
      if(left)
        target_link_libraries(gp_${room} PUBLIC ${left})
      endif()
      set(left gp_${room})
    endif()
  endforeach()
  target_link_libraries(gp_platform PRIVATE PNG::PNG)
  target_link_libraries(glimmerpane_core INTERFACE ${left})
endfunction()

# gp_ui_sources(OUT): sets OUT to the sources of all ui/ folders and of platform/qt.
function(gp_ui_sources out)
  set(all "")
  foreach(room IN LISTS ROOMS)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
         ${CMAKE_SOURCE_DIR}/src/${room}/ui/*.cpp ${CMAKE_SOURCE_DIR}/src/${room}/ui/*.h
         ${CMAKE_SOURCE_DIR}/src/${room}/qt/*.cpp ${CMAKE_SOURCE_DIR}/src/${room}/qt/*.h)
    list(APPEND all ${sources})
  endforeach()
  set(${out} ${all} PARENT_SCOPE)
endfunction()
