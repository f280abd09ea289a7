# One target per folder of src/. Each sees only the headers of what it links: its public include folder holds
# nothing but a link to its own folder, so that an #include that points upward finds no file.

# tessarel_module(NAME DOSSIER folder-below-src [LIENS targets...] [PRIVES targets...])
#   NAME     the target; its sources are the .cpp and .qrc files that stand directly in the folder
#   LIENS    what its headers and sources use; PRIVES what only its sources use
function(tessarel_module nom)
  cmake_parse_arguments(M "" "DOSSIER" "LIENS;PRIVES" ${ARGN})
  set(dossier "${CMAKE_SOURCE_DIR}/src/${M_DOSSIER}")
  file(GLOB sources CONFIGURE_DEPENDS "${dossier}/*.cpp" "${dossier}/*.qrc")
  # Headers are named too: the meta-object step must see a window class whose source did not change with it.
  file(GLOB entetes CONFIGURE_DEPENDS "${dossier}/*.h")
  set(vue "${CMAKE_BINARY_DIR}/vues/${nom}")
  get_filename_component(parent "${vue}/${M_DOSSIER}" DIRECTORY)
  file(MAKE_DIRECTORY "${parent}")
  file(CREATE_LINK "${dossier}" "${vue}/${M_DOSSIER}" SYMBOLIC)
  if(sources)
    add_library(${nom} STATIC ${sources} ${entetes})
    target_include_directories(${nom} PUBLIC "${vue}")
    target_link_libraries(${nom} PUBLIC ${M_LIENS} PRIVATE ${M_PRIVES})
  else()
    add_library(${nom} INTERFACE)
    target_include_directories(${nom} INTERFACE "${vue}")
    target_link_libraries(${nom} INTERFACE ${M_LIENS} ${M_PRIVES})
  endif()
endfunction()

# tessarel_essai(NAME DOSSIER folder-below-tests LIENS targets...): one GoogleTest program per folder, its cases
# in a random order whose seed the run prints.
function(tessarel_essai nom)
  cmake_parse_arguments(E "" "DOSSIER" "LIENS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/${E_DOSSIER}/*.cpp")
  if(NOT sources)
    return()
  endif()
  add_executable(${nom} ${sources})
  target_compile_definitions(${nom} PRIVATE TESSAREL_RACINE="${CMAKE_SOURCE_DIR}"
    TESSAREL_BIN="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
  target_include_directories(${nom} PRIVATE "${CMAKE_SOURCE_DIR}/tests")
  target_link_libraries(${nom} PRIVATE ${E_LIENS} outils_essais GTest::gtest_main)
  add_test(NAME ${nom} COMMAND ${nom} --gtest_shuffle --gtest_brief=1)
endfunction()
