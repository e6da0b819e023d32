# What cpack makes: Debian packages of the two components. scripts/package calls it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME veldrin)
set(CPACK_PACKAGE_VENDOR "The makers of Veldrin")
set(CPACK_PACKAGE_CONTACT "The makers of Veldrin <maintainers@veldrin.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://veldrin.example/")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
    WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL veldrin veldrin-tools)
set(CPACK_COMPONENTS_GROUPING IGNORE)
# Changelog, copyright and man pages in Debian's own manner.
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/debian/stage.cmake")
set(CPACK_VELDRIN_SOURCE "${PROJECT_SOURCE_DIR}")
set(CPACK_VELDRIN_PYTHON "${PYTHON3}")

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

set(CPACK_DEBIAN_VELDRIN_PACKAGE_NAME veldrin)
set(CPACK_DEBIAN_VELDRIN_PACKAGE_SECTION science)
# The windows are designed for the measures of these letters.
set(CPACK_DEBIAN_VELDRIN_PACKAGE_DEPENDS fonts-liberation)
set(CPACK_DEBIAN_VELDRIN_PACKAGE_RECOMMENDS
    "desktop-file-utils, fonts-noto-cjk, qt6-translations-l10n, shared-mime-info, xdg-utils")
set(CPACK_DEBIAN_VELDRIN_PACKAGE_SUGGESTS "pulseaudio-utils | pipewire-bin | alsa-utils, qt6-wayland, www-browser")
set(CPACK_COMPONENT_VELDRIN_DESCRIPTION
    "gearing of motorcycles and racing machines
From the list of parts that fit a machine (primary reductions, sprockets, gear
pairs) Veldrin computes the road speed of every gear, the steps between the
gears and the revolutions after each change. Or the speeds wanted in each gear
are named, and all combinations are searched for plans that meet them.
.
Plans are kept in small text files, compared, printed and exported as pictures.
The interface speaks English and Japanese.
.
veldrin-plan does the same search on the console, and more.")

set(CPACK_DEBIAN_VELDRIN-TOOLS_PACKAGE_NAME veldrin-tools)
set(CPACK_DEBIAN_VELDRIN-TOOLS_PACKAGE_SECTION science)
set(CPACK_DEBIAN_VELDRIN-TOOLS_PACKAGE_DEPENDS fonts-liberation)
set(CPACK_DEBIAN_VELDRIN-TOOLS_PACKAGE_SUGGESTS veldrin)
set(CPACK_COMPONENT_VELDRIN-TOOLS_DESCRIPTION
    "use Veldrin by scripts
A script uses Veldrin, the program for the gearing of motorcycles and racing
machines, the way a person does, a command on each line, and asks in between
what the windows, the files and the settings hold.
.
veldrin-script works on the windows as they are described,
veldrin-window-script on the real widgets. Both have a simulated machine of
their own: nothing on the disk is changed.")
include(CPack)
