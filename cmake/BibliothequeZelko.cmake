# The link library that programs look for at run time, beside themselves first. It exports five functions and shares
# no symbol with the programs: what it needs of the platform is compiled into it.
set(TESSAREL_USB_VENDEUR "0x1209" CACHE STRING "USB vendor number of the interface box")
set(TESSAREL_USB_PRODUIT "0x0001" CACHE STRING "USB product number of the interface box")
pkg_check_modules(hidapi REQUIRED IMPORTED_TARGET hidapi-hidraw)

# bibliotheque_zelko(TARGET KIND [LIENS targets...] [SOURCES more...])
function(bibliotheque_zelko nom genre)
  cmake_parse_arguments(B "" "" "LIENS;SOURCES" ${ARGN})
  set(dossier "${CMAKE_SOURCE_DIR}/src/platform/bibliotheque_zelko")
  set(vue "${CMAKE_BINARY_DIR}/vues/bibliotheque_zelko")
  file(MAKE_DIRECTORY "${vue}")
  file(CREATE_LINK "${CMAKE_SOURCE_DIR}/src/platform" "${vue}/platform" SYMBOLIC)
  file(GLOB sources CONFIGURE_DEPENDS "${dossier}/*.cpp")
  add_library(${nom} ${genre} ${sources} "${CMAKE_SOURCE_DIR}/src/platform/adresse_zelko.cpp" ${B_SOURCES})
  target_include_directories(${nom} PRIVATE "${vue}")
  target_include_directories(${nom} SYSTEM PRIVATE ${hidapi_INCLUDE_DIRS})
  target_compile_definitions(${nom} PRIVATE TESSAREL_USB_VENDEUR=${TESSAREL_USB_VENDEUR}
    TESSAREL_USB_PRODUIT=${TESSAREL_USB_PRODUIT})
  target_link_libraries(${nom} PRIVATE ${B_LIENS})
  target_link_options(${nom} PRIVATE "LINKER:--version-script=${dossier}/exportees.map")
  set_target_properties(${nom} PROPERTIES OUTPUT_NAME ZelkoCom CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON LINK_DEPENDS "${dossier}/exportees.map")
endfunction()

bibliotheque_zelko(ZelkoCom SHARED LIENS PkgConfig::hidapi)
