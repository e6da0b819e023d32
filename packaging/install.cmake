# What cmake --install puts where: two components, "veldrin" for people and "veldrin-tools" for those who write scripts.
# The programs look for samples and guide around the folder that they lie in, so that the whole may be moved.

# install_veldrin(...): install(), as a part of the component for people.
macro(install_veldrin)
  install(${ARGN} COMPONENT veldrin)
endmacro()
macro(install_tools)
  install(${ARGN} COMPONENT veldrin-tools)
endmacro()

set(data "${CMAKE_INSTALL_DATADIR}")
set(man "${CMAKE_INSTALL_MANDIR}/man1")

install_veldrin(TARGETS veldrin-plan RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install_veldrin(DIRECTORY share/veldrin DESTINATION "${data}")
install_veldrin(DIRECTORY "${guide}" DESTINATION "${data}/doc/veldrin")
install_veldrin(FILES CHANGELOG.md docs/veldrin-plan.schema.json DESTINATION "${data}/doc/veldrin")
install_veldrin(FILES packaging/copyright DESTINATION "${data}/doc/veldrin")
install_tools(TARGETS veldrin-script RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install_tools(FILES docs/scripting.md packaging/copyright DESTINATION "${data}/doc/veldrin-tools")

if(NOT WIN32)
  install_veldrin(FILES share/man/man1/veldrin-plan.1 DESTINATION "${man}")
  install_veldrin(DIRECTORY share/bash-completion DESTINATION "${data}")
  install_tools(FILES share/man/man1/veldrin-script.1 DESTINATION "${man}")
endif()

if(TARGET veldrin)
  install_veldrin(TARGETS veldrin RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  install_tools(TARGETS veldrin-window-script RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  if(NOT WIN32)
    install_veldrin(FILES share/man/man1/veldrin.1 DESTINATION "${man}")
    file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/man")
    file(CREATE_LINK veldrin-script.1 "${PROJECT_BINARY_DIR}/man/veldrin-window-script.1" SYMBOLIC)
    install_tools(FILES "${PROJECT_BINARY_DIR}/man/veldrin-window-script.1" DESTINATION "${man}")
    foreach(folder IN ITEMS applications icons metainfo mime)
      install_veldrin(DIRECTORY share/${folder} DESTINATION "${data}")
    endforeach()
  endif()
endif()
