# The Debian packages vantrell and, where printing is built, vantrell-print: run `cpack` in the folder of an
# optimised build with the window. Their revision and the time stamps of their files are taken from
# packaging/debian/changelog.

set(changelog "${PROJECT_SOURCE_DIR}/packaging/debian/changelog")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${changelog}")
file(STRINGS "${changelog}" version_line LIMIT_COUNT 1)
if(NOT version_line MATCHES "^vantrell \\(([0-9.]+)-([0-9]+)\\) " OR NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
    message(FATAL_ERROR "${changelog} does not begin with version ${PROJECT_VERSION}, but with: ${version_line}")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vantrell)
set(CPACK_PACKAGE_VENDOR Orvandel)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_DEBIAN_PACKAGE_RELEASE "${CMAKE_MATCH_2}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Orvandel <support@orvandel.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "media, effects and markers of editing projects")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION [[
Vantrell shows film and video editors the contents of an editing project: the
media that its clips use, their effects and their markers. It reads xmeml
projects, the XML format that editing systems exchange, repairs damaged ones
as far as possible, and saves changes.

 * Media: kind, size, date, usage count, and missing files.
 * Effects: find, disable and remove filters and generators.
 * Markers: edit, add, move and remove markers, and exchange marker lists with
   other editing systems.

The package contains the desktop program vantrell, the command line program
vantrell-cli, which works without a window system, and fcp-host, which stands
in for the editing application.]])

set(CPACK_DEBIAN_MAIN_PACKAGE_NAME vantrell)
set(CPACK_DEBIAN_MAIN_DESCRIPTION "${CPACK_DEBIAN_PACKAGE_DESCRIPTION}")

# Library dependencies are found automatically. Icons and Wayland sessions need plug-ins that are loaded by name,
# files are opened with xdg-open, and Qt has translations of its dialogs in a package of their own.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_MAIN_PACKAGE_DEPENDS "libqt6svg6, xdg-utils")
set(CPACK_DEBIAN_MAIN_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland, vantrell-print")

# The plug-in requires the program that it was built with. Printing uses lp.
set(CPACK_DEBIAN_PRINT_PACKAGE_NAME vantrell-print)
set(CPACK_DEBIAN_PRINT_PACKAGE_DEPENDS "vantrell (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(CPACK_DEBIAN_PRINT_PACKAGE_RECOMMENDS cups-client)
set(CPACK_DEBIAN_PRINT_DESCRIPTION [[
Vantrell shows film and video editors the contents of an editing project. This
package lets it print reports of the tabs, with a preview, and make PDF files,
also on machines without a display. It needs a web engine, unlike the main
package.]])

set(CPACK_COMPONENTS_ALL cli desktop debian)
if(VANTRELL_HAS_PRINT)
    list(APPEND CPACK_COMPONENTS_ALL print print_debian)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_SOURCE_DIR}/cmake/PackagingTime.cmake")
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/PackagingModes.cmake")
set(CPACK_VANTRELL_CHANGELOG "${changelog}")
include(CPack)
cpack_add_component_group(main DESCRIPTION "media, effects and markers of editing projects")
cpack_add_component_group(print DESCRIPTION "print reports of editing projects")
foreach(component cli desktop debian)
    cpack_add_component(${component} GROUP main)
endforeach()
foreach(component print print_debian)
    cpack_add_component(${component} GROUP print)
endforeach()
