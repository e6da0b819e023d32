# What the programs carry inside on Windows: icons, version, manifest.

# veldrin_ico(NAME SOURCE): SOURCE.png of the icon theme in all sizes as NAME.ico.
function(veldrin_ico name source)
  file(GLOB drawn CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/share/icons/hicolor/*/${source}.png")
  set(maker "${PROJECT_SOURCE_DIR}/packaging/windows/make_ico.py")
  add_custom_command(OUTPUT "${PROJECT_BINARY_DIR}/resources/${name}.ico"
                     COMMAND "${PYTHON3}" -B "${maker}" "${source}" "${PROJECT_BINARY_DIR}/resources/${name}.ico"
                     DEPENDS ${drawn} "${maker}"
                     COMMENT "Drawing ${name}.ico"
                     VERBATIM)
endfunction()

# veldrin_resources(PROGRAM ENGLISH JAPANESE [UTF8]): its own, described in two languages. With UTF8 the process has
# UTF-8 for its code page.
function(veldrin_resources program english japanese)
  set(folder "${PROJECT_BINARY_DIR}/resources")
  set(name "${program}")
  set(code_page "")
  if("UTF8" IN_LIST ARGN)
    set(code_page "<activeCodePage xmlns=\"http://schemas.microsoft.com/SMI/2019/WindowsSettings\">UTF-8</activeCodePage>")
  endif()
  set(version "${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},0")
  configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/manifest.in" "${folder}/${name}.manifest" @ONLY)
  configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/resources.rc.in" "${folder}/${name}.rc" @ONLY)
  target_sources(${program} PRIVATE "${folder}/${name}.rc")
  set_source_files_properties("${folder}/${name}.rc" PROPERTIES OBJECT_DEPENDS
                              "${folder}/${name}.manifest;${folder}/program.ico;${folder}/plan.ico;${folder}/list.ico")
endfunction()

enable_language(RC)
set(CMAKE_RC_FLAGS "-c 65001")
# Built twice, a program has the same bytes.
add_link_options(-Wl,--no-insert-timestamp)
veldrin_ico(program apps/veldrin)
veldrin_ico(plan mimetypes/application-x-veldrin-plan)
veldrin_ico(list mimetypes/application-x-veldrin-list)
