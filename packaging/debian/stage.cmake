# What Debian wants otherwise than cmake --install puts it, done where cpack has gathered the files of each package:
# changelogs in Debian's form, the guide's place among the documents, and what is compressed.

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(package IN LISTS CPACK_COMPONENTS_ALL)
  set(root "${CPACK_TEMPORARY_DIRECTORY}/${package}/usr/share")
  file(REMOVE "${root}/doc/${package}/CHANGELOG.md")
  run("${CPACK_VELDRIN_PYTHON}" -B "${CPACK_VELDRIN_SOURCE}/packaging/debian/changelog.py"
      "${CPACK_VELDRIN_SOURCE}/CHANGELOG.md" "${CPACK_PACKAGE_CONTACT}" "${root}/doc/${package}/changelog")
  run(gzip -9n "${root}/doc/${package}/changelog")
  file(GLOB pages "${root}/man/man1/*.1")
  foreach(page IN LISTS pages)
    if(IS_SYMLINK "${page}")
      file(READ_SYMLINK "${page}" target)
      file(REMOVE "${page}")
      file(CREATE_LINK "${target}.gz" "${page}.gz" SYMBOLIC)
    else()
      run(gzip -9n "${page}")
    endif()
  endforeach()
endforeach()

set(documents "${CPACK_TEMPORARY_DIRECTORY}/veldrin/usr/share/doc-base")
file(MAKE_DIRECTORY "${documents}")
configure_file("${CPACK_VELDRIN_SOURCE}/packaging/debian/doc-base" "${documents}/veldrin.veldrin-guide" COPYONLY)
